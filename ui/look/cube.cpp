// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/cube.h"

#include <QPainter>

#include "ui/look/palette.h"

namespace plasmos {

void DrawCube(QPainter& painter, int clan, const QRectF& cube) {
    const ClanShades& shades = ShadesOf(clan);
    const double side = cube.width();
    painter.setBrush(shades.Body);
    painter.setPen(QPen(shades.Edge, side * 0.085));
    painter.drawRoundedRect(cube.adjusted(side * 0.04, side * 0.04, -side * 0.04, -side * 0.04), side * 0.2,
                            side * 0.2);
    painter.setPen(QPen(Shade(Tone::Shine), side * 0.11, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(cube.topLeft() + QPointF(side * 0.2, side * 0.19),
                     cube.topRight() + QPointF(-side * 0.2, side * 0.19));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shades.Ink);
    painter.drawPath(SignPath(clan, cube.center() + QPointF(0, side * 0.1), side * 0.22));
}

}  // namespace plasmos
