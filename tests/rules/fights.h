// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rules/fight.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {

/// A1 of clan 1, a computer clan, fights in square 13.
class Fights : public GameTest {
protected:
    Fights() {
        NewPosition(4);
        Put(1, 1, 13, 10);
        game.BP[2] = game.BP[3] = game.BP[4] = 3;
    }
    /// Pieces of a clan in 13 with their damage; the first is number 1.
    static void Victims(int clan, std::initializer_list<int> damage) {
        int amoeba = 0;
        for (const int each : damage) {
            Put(clan, ++amoeba, 13);
            game.Amoeba[amoeba][clan].Damage = each;
        }
    }
    static bool IsGone(int clan, int amoeba) { return game.Amoeba[amoeba][clan].Square == 0; }

    bool Eats(int clan, int amoeba = 0) {
        bool hungry = false;
        AttackToEat(clan, 13, 1, hungry, amoeba);
        return !hungry;
    }

    ScriptedBoard board;
};

}  // namespace plasmos::testing
