// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <vector>

#include "questions/victim_form.h"
#include "ui/dialogs/question_panel.h"

namespace plasmos {

/// One piece of the square, drawn as on the board.
class FigureButton : public QAbstractButton {
public:
    FigureButton(QWidget* parent, const GameState& state) : QAbstractButton(parent), state_(state) {}

    VictimFigure Figure;
    QSize sizeHint() const override { return {52, 52}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const GameState& state_;
};

/// Which amoeba to attack, to live off, or to let ride: a picture of the square.
class VictimPanel : public QuestionPanel {
public:
    VictimPanel(QWidget* parent, const GameState& state, VictimForm& form);
    void Reread() override;
    void CloseAsked() override;
    QWidget* FirstControl() override;

protected:
    bool event(QEvent* event) override;

private:
    QString SpokenOf(const VictimFigure& figure) const;

    VictimForm& form_;
    std::vector<FigureButton*> figures_;
    QLabel* vfamlab_;
    QPushButton* doneb_;
};

}  // namespace plasmos
