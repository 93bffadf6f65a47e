// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/computer_clan.h"

#include <algorithm>

#include "model/dice.h"
#include "model/reasons.h"
#include "rules/division.h"
#include "rules/menus.h"
#include "rules/reason_words.h"

namespace plasmos {

namespace {

constexpr int Tries = 23;
constexpr int DrawnSquares = 24;
/// Until then a clan divides once less than it could.
constexpr int CautiousTurns = 4;

[[gnu::cold]] void TellCount(int clan, int cost, int places, int count) {
    const int paid = game.BP[clan] / cost;
    if (places == 0) {
        Because(TheClan{clan}, " has all its ", game.MaxAmoeba, " amoebas on the board.");
    } else if (paid == 0) {
        Because(TheClan{clan}, " has ", game.BP[clan], " BP, too few for an amoeba at ", cost, ".");
    } else {
        Because(TheClan{clan}, " has BP for ", Counted{paid, "amoeba"}, " at ", cost, " and room for ", places,
                Where{count < std::min(paid, places), ", and until turn 4 it makes one less than it could.", "."});
    }
}

int CountDivisions(int clan, int cost) {
    const int places = game.MaxAmoeba - game.AmoebaCount[clan];
    const int affordable = std::min(game.BP[clan] / cost, places);
    if (game.Turn == 1) {
        const int coin = RollDie(2);
        Because("In turn 1 a coin decides whether ", TheClan{clan}, " divides once: it threw ", coin,
                Where{coin == 1, ", so it does.", ", so it does not."});
        return coin == 1 ? 1 : 0;
    }
    const int count = game.Turn <= CautiousTurns && affordable > 1 ? affordable - 1 : affordable;
    if (ReasonsAreWanted()) [[unlikely]] {
        TellCount(clan, cost, places, count);
    }
    return count;
}

void TellMealSquare(int square, int draw) {
    Because("The die over squares 1 to ", DrawnSquares, " found ", square,
            ", where it may divide and can eat, on draw ", draw, " of up to ", Tries, ".");
}

bool IsFreeOfOwn(int square, int clan) {
    return IsValidSquare(square) && game.Occupancy[square][clan] == 0;
}

}  // namespace

void ComputerDivide(int cost) {
    const int clan = game.CurPlayer;
    const int count = CountDivisions(clan, cost);
    for (int i = 1; i <= count; ++i) {
        if (!DivideOnce(clan, cost)) {
            Because("There is no square without an amoeba of ", TheClan{clan}, " for another one.");
            return;
        }
    }
}

int ComputerPlaceSquare(int clan) {
    for (int draw = 1; draw <= Tries; ++draw) {
        const int square = RollDie(DrawnSquares);
        if (IsFreeOfOwn(square, clan) && CanEat(square, clan)) {
            TellMealSquare(square, draw);
            return square;
        }
    }
    for (int draw = 1; draw <= MaxDraws; ++draw) {
        const int square = RollDie(DrawnSquares);
        if (IsFreeOfOwn(square, clan)) {
            Because(Tries,
                    " draws found no meal where it may divide; the next square without an amoeba of its own was ",
                    square, ".");
            return square;
        }
    }
    for (int square = 1; square <= game.NumSquares; ++square) {
        if (IsFreeOfOwn(square, clan)) {
            Because("No draw helped: ", square, " is the first square without an amoeba of its own.");
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
            TellMealSquare(square, draw);
            return square;
        }
    }
    const int square = offered.Nth(RollDie(offered.Count()));
    Because(Tries, " draws found no meal where it may divide: of those ", Counted{offered.Count(), "square"},
            " a die took ", square, ".");
    return square;
}

}  // namespace plasmos
