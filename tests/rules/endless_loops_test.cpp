// SPDX-License-Identifier: GPL-3.0-or-later
// Positions built to starve every draw that is made again and again: each ends.
#include <gmock/gmock.h>

#include "flow/play_game.h"
#include "rules/aggression.h"
#include "rules/computer_clan.h"
#include "rules/division.h"
#include "rules/move_amoeba.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

class EndlessLoops : public GameTest {
protected:
    /// A tape on which the same faces come for longer than any draw is patient.
    static std::vector<int> Forever(std::vector<int> faces) {
        std::vector<int> rolls;
        while (rolls.size() < 3 * static_cast<std::size_t>(MaxDraws)) {
            rolls.insert(rolls.end(), faces.begin(), faces.end());
        }
        return rolls;
    }
};

TEST_F(EndlessLoops, ASpotThatIsNeverDrawnIsTheLowestFreeOne) {
    NewPosition(3);
    Put(1, 1, 7, 1);
    Put(2, 1, 7, 2);
    Script rolls(Forever({1, 2}));
    rolls.MayBeLeft();
    EXPECT_EQ(SquareCapacity(7), 3);
}

TEST_F(EndlessLoops, AStartSquareThatIsNeverDrawnIsTheLowestEmptyOne) {
    NewPosition(3);
    game.Turn = 0;
    Put(1, 1, 1);
    std::vector<int> faces(static_cast<std::size_t>(MaxDraws), 1);
    faces.push_back(9);
    const Script rolls(faces);
    EXPECT_TRUE(CreateAmoeba(2));
    EXPECT_EQ(game.Amoeba[1][2].Square, 2);
}

TEST_F(EndlessLoops, ASporesSquareThatIsNeverDrawnIsTheLowestWithoutItsOwn) {
    NewPosition(3);
    Put(2, 1, 1);
    Script rolls(Forever({1}));
    rolls.MayBeLeft();
    EXPECT_EQ(ComputerPlaceSquare(2), 2);
}

TEST_F(EndlessLoops, DefenceDiceThatAreAlwaysEqualEnd) {
    NewPosition(3);
    game.CurPlayer = game.CurAmoeba = 1;
    Put(1, 1, 7);
    Put(2, 1, 7);
    Give(2, "def");
    game.BP[2] = 1;
    Script rolls(Forever({4, 4}));
    rolls.MayBeLeft();
    DefendAmoeba(2, 1);
    EXPECT_EQ(game.BP[2], 0);
}

TEST_F(EndlessLoops, ASetupWithoutAnEmptySquareSkipsTheCreation) {
    NewPosition(6, 3, 4);
    game.Turn = 0;
    for (int square = 1; square <= 12; ++square) {
        Put((square - 1) % 6 + 1, (square - 1) / 6 + 1, square);
    }
    Script rolls(Forever({5}));
    rolls.MayBeLeft();
    EXPECT_FALSE(CreateAmoeba(1));
    EXPECT_EQ(game.AmoebaCount[1], 2);
}

TEST_F(EndlessLoops, AWalledInClanOnAFullBoardStillPlaysItsGame) {
    for (int replay = 1; replay <= 20; ++replay) {
        SetBoard(5, 4, "2:5:7:10:13:15:18:20:");
        game.AutoPlay = game.FastMode = game.HasRequestedReplay = true;
        game.RequestedReplay = static_cast<float>(replay);
        game.RequestedClans = 6;
        PlayUnattended();
        EXPECT_EQ(game.Turn, 11);
    }
}

TEST_F(EndlessLoops, TheThirtyFirstPieceOfASquareIsNotDrawnAndRollsNothing) {
    NewPosition(6);
    for (int clan = 1; clan <= 6; ++clan) {
        for (int piece = 1; piece <= 5; ++piece) {
            Put(clan, piece, 7);
        }
    }
    ScriptedBoard board;
    const Script rolls({});
    EXPECT_EQ(SquareCapacity(7), 0);
    EXPECT_THAT(board.Boxes, ::testing::ElementsAre("How did you ever manage to squeeze 30 amoebas in square 7?!?!?"));
}

}  // namespace
}  // namespace plasmos::testing
