// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/computer_clan.h"

#include <algorithm>

#include "model/dice.h"
#include "rules/division.h"
#include "rules/menus.h"

namespace plasmos {

namespace {

constexpr int Tries = 23;
constexpr int DrawnSquares = 24;

int CountDivisions(int clan, int cost) {
    const int affordable = std::min(game.BP[clan] / cost, game.MaxAmoeba - game.AmoebaCount[clan]);
    if (game.Turn == 1) {
        return RollDie(2) == 1 ? 1 : 0;
    }
    return game.Turn <= 4 && affordable > 1 ? affordable - 1 : affordable;
}

bool IsFreeOfOwn(int square, int clan) {
    return IsValidSquare(square) && game.Occupancy[square][clan] == 0;
}

}  // namespace

void ComputerDivide(int cost) {
    const int clan = game.CurPlayer;
    const int count = CountDivisions(clan, cost);
    for (int i = 1; i <= count && DivideOnce(clan, cost); ++i) {
    }
}

int ComputerPlaceSquare(int clan) {
    for (int draw = 1; draw <= Tries; ++draw) {
        const int square = RollDie(DrawnSquares);
        if (IsFreeOfOwn(square, clan) && CanEat(square, clan)) {
            return square;
        }
    }
    for (int draw = 1; draw <= MaxDraws; ++draw) {
        const int square = RollDie(DrawnSquares);
        if (IsFreeOfOwn(square, clan)) {
            return square;
        }
    }
    for (int square = 1; square <= game.NumSquares; ++square) {
        if (IsFreeOfOwn(square, clan)) {
            return square;
        }
    }
    return 0;
}

int ComputerPlaceBeside(int clan) {
    const SquareSet offered = PlacingSquares(clan, true);
    if (offered.Empty()) {
        return 0;
    }
    for (int draw = 1; draw <= Tries; ++draw) {
        const int square = RollDie(DrawnSquares);
        if (offered.Has(square) && CanEat(square, clan)) {
            return square;
        }
    }
    return offered.Nth(RollDie(offered.Count()));
}

}  // namespace plasmos
