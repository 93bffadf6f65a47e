// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>

class QPainter;

namespace plasmos {

struct GameState;

/// What the puddle of a state looks like, drawn in board units (SquareUnits to a square).

/// The water under everything.
void DrawWater(QPainter& painter, const QRectF& puddle);
/// The glass of one square with its gridlines.
void DrawGlass(const GameState& state, QPainter& painter, int square);
/// The stone that covers a blocked square.
void DrawStone(const GameState& state, QPainter& painter, int square);
/// The square's number in its corner, small and bold.
void DrawSquareNumber(const GameState& state, QPainter& painter, int square);
/// Cubes stacked by colour.
void DrawFood(const GameState& state, QPainter& painter, int square);
/// Where a colour's stack stands, at so many pixels to a board unit; on its line where there is none.
QRectF FoodRect(const GameState& state, int square, int clan, double scale);
/// The count above every stack that is higher than it shows.
void DrawFoodCounts(const GameState& state, QPainter& painter, int square);
/// The amber glow of an offered square; brighter under the pointer or the arrow keys.
void DrawOffer(const GameState& state, QPainter& painter, int square, bool bright);
/// Dashes around the square that a question speaks of.
void DrawSpokenOf(const GameState& state, QPainter& painter, int square);
/// A thin frame for the square under the pointer.
void DrawHover(const GameState& state, QPainter& painter, int square);

}  // namespace plasmos
