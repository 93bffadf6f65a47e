// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>

class QPainter;

namespace plasmos {

// What the motions of the board look like, in board units.

/// Cubes of a colour on their way: up to three, with the count of more.
void DrawCarried(QPainter& painter, int colour, int pieces, QPointF centre);
/// Words that rise from a place; share: how far they have come, from 0 to 1.
void DrawRising(QPainter& painter, const QString& words, const QColor& ink, QPointF from, double share);
/// A ring in a colour between two light ones, seen on any ground.
void DrawRing(QPainter& painter, QPointF centre, double radius, const QColor& colour, double opacity = 1);
/// An attack: rings around both pieces and an arrow that bows over from one to the other, as far as its share. Once it
/// is over its outcome stands above; where the victim is safe the arrow is crossed out.
void DrawAttack(QPainter& painter, const QRectF& attacker, const QRectF& victim, double share, const QString& outcome,
                bool safe);
/// A frame of dark and light lines around a rectangle, seen on any ground.
void DrawDoubleFrame(QPainter& painter, const QRectF& rect, double corner);

}  // namespace plasmos
