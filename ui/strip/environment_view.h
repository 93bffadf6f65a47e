// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <vector>

#include "ui/look/card.h"
#include "ui/look/heard.h"
#include "ui/look/motion_clock.h"

namespace plasmos {

struct GameState;

/// Turn, drift and UV level of the state it is given, the last against every clan's mutation level.
class EnvironmentView : public Card, public HeardPlace {
public:
    EnvironmentView(QWidget* parent, const GameState& state);

    QLabel* turnlab;
    FitLabel* driftlab;
    FitLabel* UVlab;

    /// Shows another state, which is to live as long as it is shown.
    void ShowState(const GameState& state);
    const GameState& State() const { return *state_; }
    /// No game is shown.
    void Clear();
    /// Shows the turn, its phase, the drift and the UV level of the state.
    void ShowTurn();
    void ShowPhase();
    void ShowDrift();
    void ShowUV();

    /// The UV card that the state has is turned: the arrow of the drift turns over, the pointer goes to the new level.
    void TurnCard(int milliseconds);
    /// Something moves just now.
    bool Runs() const { return clock_.Runs(); }

    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override { Redress(); }
    void Redress() override;

private:
    void DrawTurns(QPainter& painter) const;
    void DrawArrow(QPainter& painter) const;
    void DrawLevels(QPainter& painter) const;
    void DrawPointer(QPainter& painter, const QRectF& bar) const;
    QRectF Bar() const;
    QString TipAt(QPointF point) const;

    double DriftLeft() const;
    double UvLeft() const;

    const GameState* state_;
    bool phaseTold_ = false;
    int shownUV_ = 0;   ///< the level that has been shown last
    int beforeUV_ = 0;  ///< the level before it
    MotionClock clock_;
    MotionClock::Span turning_;
};

/// Where the marks of clan 1, 2, ... stand under the bar of levels: at the clan's mutation level, below
/// each other where they would cover each other, and aside where there is no more room below.
std::vector<QPointF> LevelMarks(const GameState& state, const QRectF& bar);

/// The arrow of a drift direction (a square offset) in a circle; a dot in place, a star of arrows where
/// the amoeba may choose.
void DrawDriftArrow(QPainter& painter, int drift, QPointF centre, double radius);

}  // namespace plasmos
