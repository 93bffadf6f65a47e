// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/dice.h"
#include "model/happening.h"
#include "questions/ask.h"
#include "rules/move_amoeba.h"

namespace plasmos {

namespace {

/// The free spot of a square closest to a spot, the lower one of two; 0: all are taken.
int NearestFreeSpot(int square, int slot) {
    const std::uint32_t taken = game.SpotsTaken[square];
    const auto isFree = [&](int spot) {
        return spot >= 1 && spot <= MaxSpots && (taken >> static_cast<unsigned>(spot) & 1U) == 0;
    };
    for (int distance = 0; distance <= MaxSpots; ++distance) {
        if (isFree(slot - distance)) {
            return slot - distance;
        }
        if (isFree(slot + distance)) {
            return slot + distance;
        }
    }
    return 0;
}

/// The clan that acts put one amoeba too many into a square.
void TellOfTheCrowd(int square) {
    const auto text = Concat("How did you ever manage to squeeze ", "30", " amoebas in square ", square, "?!?!?");
    if (game.Players[game.CurPlayer].IsComputer) {
        ReportBox(text);
    } else {
        ShowBox(game.CurPlayer, text);
    }
}

}  // namespace

int SquareCapacity(int square) {
    if (game.Occupancy[square][0] >= MaxSpots) {
        TellOfTheCrowd(square);
        return 0;
    }
    const std::uint32_t taken = game.SpotsTaken[square];
    for (int draw = 1; draw <= MaxDraws; ++draw) {
        const int spot = RollDie(MaxSpots);
        if ((taken >> static_cast<unsigned>(spot) & 1U) == 0) {
            return spot;
        }
    }
    int lowest = 1;
    while ((taken >> static_cast<unsigned>(lowest) & 1U) != 0) {
        ++lowest;
    }
    return lowest;
}

void MoveBeside(int clan, int amoeba, int otherSlot) {
    const int square = game.Amoeba[amoeba][clan].Square;
    const int nearest = NearestFreeSpot(square, otherSlot);
    if (nearest == 0) {
        return;
    }
    LiftPiece(clan, amoeba);
    PutPiece(clan, amoeba, square, nearest);
    Happened(
        {.What = Happening::Kind::ChangesSpot, .Clan = clan, .Amoeba = amoeba, .Square = square, .Number = nearest});
}

}  // namespace plasmos
