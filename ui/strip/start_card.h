// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QPushButton>

#include "ui/look/card.h"

namespace plasmos {

struct GameState;

/// What greets the person between two games: Go, the replay number, and a game to watch.
class StartCard : public Card {
public:
    StartCard(QWidget* parent, const GameState& state);

    QPushButton* gob;
    QPushButton* watchb;
    QLineEdit* txtReplay;

    /// A line about the game that is over; empty before the first.
    void ShowResult(const QString& line, int clan);
    /// A result is told in fewer lines where there is little room, so that the final scores stay in sight.
    int HeightFor(int width) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override { Redress(); }
    void Redress() override;

private:
    bool IsShort(int width) const;

    static constexpr int Roomy = 420;

    const GameState& state_;
    QLabel* title_;
    FitLabel* text_;
    QLabel* replayLabel_;
    int winner_ = 0;
};

}  // namespace plasmos
