// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QRectF>

namespace plasmos {

struct GameState;

/// Where the pieces of a state lie on its board, in board units (a square is SquareUnits wide and high).
/// A piece lies at its spot of the square, moved aside a little where others would cover it.

/// Left top corner of a square.
QPointF SquareCorner(const GameState& state, int square);
/// Middle of a square.
QPointF SquareMiddle(const GameState& state, int square);

/// A piece's marker: the rectangle around its blob. Empty for a piece that is off the board or not drawn.
QRectF MarkerOf(const GameState& state, int clan, int amoeba);

/// Centre of spot 1..30 inside a square, relative to its left top corner, for blobs of a radius.
QPointF SpotCentre(int spot, int square, double radius);

}  // namespace plasmos
