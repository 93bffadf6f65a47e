// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#movement

#include <cstddef>
#include <cstdint>

#include "model/game_state.h"

namespace plasmos {

/// The squares an amoeba reaches or is offered, in the order in which they are tried; the same square
/// may stand in it more than once.
class SquareList {
public:
    void Add(int square) { squares_[Position(++count_)] = static_cast<std::int8_t>(square); }
    int Count() const { return count_; }
    /// The square at a place, 1..Count().
    int operator[](int place) const {
        if (place < 1 || place > count_) {
            RaiseSubscriptError();
        }
        return squares_[Position(place)];
    }
    bool Has(int square) const {
        for (int place = 1; place <= count_; ++place) {
            if (squares_[Position(place)] == square) {
                return true;
            }
        }
        return false;
    }

private:
    static constexpr int Most = 20;

    static std::size_t Position(int place) {
        if (place > Most) {
            RaiseSubscriptError();
        }
        return static_cast<std::size_t>(place - 1);
    }

    std::int8_t squares_[Most];  // filled as far as count_
    int count_ = 0;
};

/// Square offset of a direction roll: 1 right (+1), 2 down (+NumCols), 3 left (-1), 4 up (-NumCols),
/// 5 in place (0), 6 where it wants (-666). Any other roll raises error 5.
inline int DirectionFromDie(int roll) {
    switch (roll) {
        case 1: return 1;
        case 2: return game.NumCols;
        case 3: return -1;
        case 4: return -game.NumCols;
        case 5: return 0;
        case 6: return WhereItWants;
        default: throw RuntimeError(5, "Invalid procedure call: a direction die shows 1 to 6");
    }
}

/// The square one step on in a direction (a square offset); the square itself where an edge or a block
/// stops the step, and for any offset that is no step.
inline int MoveDestination(int square, int direction) {
    if (direction == 1)
        return game.NextTo[square][1];
    if (direction == game.NumCols)
        return game.NextTo[square][2];
    if (direction == -1)
        return game.NextTo[square][3];
    if (direction == -game.NumCols)
        return game.NextTo[square][4];
    return square;
}

/// The square one step on in the turn's drift.
inline int MoveDestination(int square) {
    return MoveDestination(square, game.Drift);
}

/// The square one step on by direction roll 1 to 6.
inline int NeighbourByDie(int square, int roll) {
    return roll <= 4 ? int{game.NextTo[square][roll]} : square;
}

/// The squares an amoeba reaches: left, right, up, down. Its own square is listed every time an edge
/// or a block gives it, and once at the end for a clan with "hol" when it is not there yet.
SquareList Neighbours(int square, int clan);

}  // namespace plasmos
