// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractSlider>
#include <QLabel>
#include <QPushButton>
#include <functional>
#include <vector>

#include "record/game_recorder.h"

namespace plasmos {

/// The turns of a game and their phases in a row, as far as it has come: a phase can be chosen by pressing it, by the
/// arrow keys, and by whatever moves a slider. Its value is the chapter's number from 0; the highest is the present.
class TurnSlider : public QAbstractSlider {
public:
    explicit TurnSlider(QWidget* parent);

    void ShowChapters(const std::vector<GameRecorder::Chapter>& chapters);
    /// What a chapter is called: "Turn 3, Division".
    QString NameOf(int chapter) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;
    void sliderChange(SliderChange change) override;

private:
    double PlaceOf(int chapter) const;
    int ChapterAt(double x) const;
    void DrawTurns(QPainter& painter) const;

    std::vector<GameRecorder::Chapter> chapters_;
};

/// The bar below the board: where the game stands among its turns, and while an earlier board is shown what can be done
/// about that.
class LookBar : public QWidget {
public:
    explicit LookBar(QWidget* parent);

    TurnSlider* Slider;
    QPushButton* goonb;  ///< the game goes on from what is shown
    QPushButton* nowb;   ///< the present is shown again

    /// What is shown of the past; empty: the present is.
    void ShowPast(const QString& what);
    int Height() const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Arrange();

    QLabel* past_;
};

}  // namespace plasmos
