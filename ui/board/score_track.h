// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace plasmos {

class PuddleView;
struct GameState;

/// The frame around the puddle: the score track of 60 spaces with the mark at 42 and a marker for every
/// clan. Beyond 60 a marker goes round again and says so. It keeps the puddle's squares square.
class ScoreTrack : public QWidget {
    Q_OBJECT

public:
    ScoreTrack(QWidget* parent, const GameState& state);

    PuddleView* Puddle() const { return puddle_; }
    /// Shows another state, in the puddle too; it is to live as long as it is shown.
    void ShowState(const GameState& state);
    /// The board has other rows or columns.
    void BoardChanged();
    /// Rectangle of space 1..60 in the widget.
    QRectF SpaceRect(int space) const;

    QSize minimumSizeHint() const override { return {320, 320}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Arrange();
    void DrawSpaces(QPainter& painter) const;
    void DrawMarkers(QPainter& painter) const;

    const GameState* state_;
    PuddleView* puddle_;
    QRectF frame_;  ///< track and puddle
    double lane_ = 26;
};

}  // namespace plasmos
