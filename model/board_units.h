// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/game_state.h"

namespace plasmos {

/// A point of the board in board units, from its top left corner; a square is SquareUnits wide and high.
struct BoardPoint {
    int X = 0;
    int Y = 0;
};

/// The top left corner of a square of the current board.
inline BoardPoint CornerOf(int square) {
    const int place = square - 1;
    return {place % game.NumCols * SquareUnits, place / game.NumCols * SquareUnits};
}

/// The middle of a square: a click there is meant for it.
inline BoardPoint MiddleOf(int square) {
    const BoardPoint corner = CornerOf(square);
    return {corner.X + SquareUnits / 2, corner.Y + SquareUnits / 2};
}

}  // namespace plasmos
