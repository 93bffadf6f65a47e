// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/game_state.h"

namespace plasmos {

/// A point of the board in board units, from its top left corner; a square is SquareUnits wide and high.
struct BoardPoint {
    int X = 0;
    int Y = 0;
};

/// The top left corner of a square of a game's board, the current one's where none is named.
inline BoardPoint CornerOf(const GameState& state, int square) {
    const int place = square - 1;
    return {place % state.NumCols * SquareUnits, place / state.NumCols * SquareUnits};
}
inline BoardPoint CornerOf(int square) {
    return CornerOf(game, square);
}

/// The middle of a square: a click there is meant for it.
inline BoardPoint MiddleOf(const GameState& state, int square) {
    const BoardPoint corner = CornerOf(state, square);
    return {corner.X + SquareUnits / 2, corner.Y + SquareUnits / 2};
}
inline BoardPoint MiddleOf(int square) {
    return MiddleOf(game, square);
}

}  // namespace plasmos
