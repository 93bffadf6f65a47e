// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <array>

#include "model/game_state.h"
#include "ui/look/heard.h"
#include "ui/look/motion_clock.h"

namespace plasmos {

class PuddleView;

/// The frame around the puddle: the score track of 60 spaces with the mark at 42 and a marker for every
/// clan. Beyond 60 a marker goes round again and says so. It keeps the puddle's squares square. By ear the marker of
/// every clan is a part.
class ScoreTrack : public QWidget, public HeardPicture {
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

    /// A clan's marker walks along the track from another score to the one it has now.
    void Walk(int clan, int fromScore, int milliseconds);
    /// Whether a marker walks just now.
    bool Runs() const { return clock_.Runs(); }

    // ---- by ear: part 1, 2, ... is the marker of clan 1, 2, ... ----
    std::vector<int> PartsOf(int part) const override;
    HeardPart Hear(int part) const override;
    int PartAt(QPoint point) const override;

    QSize minimumSizeHint() const override { return {320, 320}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Arrange();
    void DrawSpaces(QPainter& painter) const;
    void DrawMarkers(QPainter& painter) const;
    void DrawLap(QPainter& painter, int score, QPointF centre, double radius) const;
    /// The score at which a clan's marker is seen: between two scores while it walks.
    double SeenScore(int clan) const;
    QPointF MarkerPlace(double score) const;

    struct WalkOfMarker {
        int From = 0;
        MotionClock::Span Time;
    };

    const GameState* state_;
    PuddleView* puddle_;
    QRectF frame_;  ///< track and puddle
    double lane_ = 26;
    MotionClock clock_;
    std::array<WalkOfMarker, MaxClans + 1> walks_{};
};

}  // namespace plasmos
