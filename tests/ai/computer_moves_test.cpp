// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "ai/computer_move.h"
#include "rules/computer_clan.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;

/// The spot that every real move rolls in its new square.
constexpr int Spot = 9;

/// Clan 1 can eat in these squares.
void Meals(std::initializer_list<int> squares) {
    for (const int square : squares) {
        Feed(square, {0, 2, 1});
    }
}

class ComputerMoves : public GameTest {
protected:
    ComputerMoves() {
        NewPosition(3);
        Put(1, 1, 13);
    }
};

TEST_F(ComputerMoves, PauseAfterEachMoveAndLongerAtRest) {
    ScriptedBoard board;
    game.Drift = 1;
    Script script({Spot});
    ComputerMoveAmoeba(1, 1);
    EXPECT_THAT(board.Pauses, ElementsAre(5));
    game.Drift = 0;
    ComputerMoveAmoeba(1, 1);
    EXPECT_THAT(board.Pauses, ElementsAre(5, 15, 5));
    Give(1, "hol");
    Meals({14});
    ComputerMoveAmoeba(1, 1);
    EXPECT_THAT(board.Pauses, ElementsAre(5, 15, 5, 15)) << "clinging is no move";
}

TEST_F(ComputerMoves, FoodNextDoorIsLookedForOnAllFourSides) {
    for (const int square : {12, 14, 8, 18}) {
        NewPosition(3);
        Meals({square});
        EXPECT_TRUE(HasFoodNextDoor(13, 1)) << square;
        EXPECT_FALSE(HasFoodNextDoor(13, 2)) << "clan 2 does not eat its own";
    }
    NewPosition(3);
    Meals({13, 7, 19});
    EXPECT_FALSE(HasFoodNextDoor(13, 1)) << "neither its own square nor a corner is next door";
}

TEST_F(ComputerMoves, ThePersonalityPlaysNoPart) {
    for (const int personality : {0, 1 << 1, 0xFFFFF}) {
        NewPosition(3);
        Put(1, 1, 13);
        game.BP[1] = 1;
        game.Players[1].Personality = personality;
        Meals({12, 14});
        Script script({3, Spot});
        ComputerMoveAmoeba(1, 1);
        EXPECT_EQ(game.Amoeba[1][1].Square, 12);
    }
}

}  // namespace
}  // namespace plasmos::testing
