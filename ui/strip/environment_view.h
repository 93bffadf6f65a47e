// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <vector>

#include "ui/look/card.h"

namespace plasmos {

struct GameState;

/// Turn, drift and UV level of the state it is given, the last against every clan's mutation level.
class EnvironmentView : public Card {
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

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override { Redress(); }
    void Redress() override;

private:
    void DrawTurns(QPainter& painter) const;
    void DrawArrow(QPainter& painter) const;
    void DrawLevels(QPainter& painter) const;

    double DriftLeft() const;
    double UvLeft() const;

    const GameState* state_;
    bool phaseTold_ = false;
};

/// Where the marks of clan 1, 2, ... stand under the bar of levels: at the clan's mutation level, below
/// each other where they would cover each other, and aside where there is no more room below.
std::vector<QPointF> LevelMarks(const GameState& state, const QRectF& bar);

/// The arrow of a drift direction (a square offset) in a circle; a dot in place, a star of arrows where
/// the amoeba may choose.
void DrawDriftArrow(QPainter& painter, int drift, QPointF centre, double radius);

}  // namespace plasmos
