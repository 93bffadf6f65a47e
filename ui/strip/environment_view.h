// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <vector>

#include "ui/look/card.h"

namespace plasmos {

/// Turn, drift and UV level, the last against every clan's mutation level.
class EnvironmentView : public Card {
public:
    explicit EnvironmentView(QWidget* parent);

    QLabel* turnlab;
    FitLabel* driftlab;
    FitLabel* UVlab;

    void ShowPhase(const QString& phase);
    /// No game is shown.
    void Clear();
    /// Shows the drift and the UV level of the state.
    void ShowDrift();
    void ShowUV();

    QSize sizeHint() const override { return {440, 88}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void DrawTurns(QPainter& painter) const;
    void DrawArrow(QPainter& painter) const;
    void DrawLevels(QPainter& painter) const;
    QString phase_;

    double DriftLeft() const { return width() * 0.41; }
    double UvLeft() const { return width() * 0.69; }
};

/// Where the marks of clan 1, 2, ... stand under the bar of levels: at the clan's mutation level, below
/// each other where they would cover each other, and aside where there is no more room below.
std::vector<QPointF> LevelMarks(const QRectF& bar);

/// The arrow of a drift direction (a square offset) in a circle; a dot in place, a star of arrows where
/// the amoeba may choose.
void DrawDriftArrow(QPainter& painter, int drift, QPointF centre, double radius);

}  // namespace plasmos
