// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/move_amoeba.h"
#include "model/services.h"

#include <gmock/gmock.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "model/consistency.h"
#include "tests/support/game_fixture.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Four clans; A1 stands in square 13 and moves to 14.
class Moving : public GameTest {
protected:
    Moving() {
        NewPosition(4);
        game.Turn = 4;
        Put(1, 1, 13, 3);
    }
    ~Moving() override {
        EXPECT_EQ(CheckConsistency(), "");
        EXPECT_EQ(files.Errors(), "") << "a roll that is missing is an error, too";
    }

    MemoryFiles files;
};

TEST_F(Moving, AComputerClansMoveIsTracedWithItsSpot) {
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(files.Moves(), "Turn: 4   Amoeba 1, 1 moving to square 14\nmposition 9\n\n");
    EXPECT_EQ(game.Amoeba[1][1].Square, 14);
    EXPECT_EQ(game.Amoeba[1][1].Slot, 9);
}

TEST_F(Moving, APersonsMoveIsTracedInOtherWords) {
    Person(1);
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(files.Moves(), "Turn: 4   Amoeba 1, 1 moving to square 14\nposition 9\n\n");
}

TEST_F(Moving, ToItsOwnSquareIsAPositionAndNothingElse) {
    Script script({});
    MoveAmoeba(1, 1, 13);
    EXPECT_EQ(files.Moves(), "position 3\n\n") << "of a computer clan too";
    EXPECT_EQ(game.Amoeba[1][1].Slot, 3);
}

TEST_F(Moving, CountsFollowThePiece) {
    Put(1, 2, 13);
    Put(2, 1, 14);
    Script script({9, 10});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Occupancy[13][1], 1);
    EXPECT_EQ(game.Occupancy[13][0], 1) << "another piece is still there";
    EXPECT_EQ(game.Occupancy[14][0], 2);
    MoveAmoeba(1, 2, 14);
    EXPECT_EQ(game.Occupancy[13][0], 0);
    EXPECT_EQ(game.Occupancy[14][1], 2);
}

TEST_F(Moving, ATakenSpotIsDrawnAgain) {
    Put(2, 1, 14, 9);
    Script script({9, 9, 4});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Amoeba[1][1].Slot, 4);
}

TEST_F(Moving, TheSpotItLeavesIsFree) {
    Put(2, 1, 14);
    Script script({9, 3});
    MoveAmoeba(1, 1, 14);
    MoveAmoeba(2, 1, 13);
    EXPECT_EQ(game.Amoeba[1][2].Slot, 3);
}

/// So many pieces of the clans 2 to 6 crowd into a square.
void Crowd(int square, int pieces) {
    for (int clan = 2; clan <= 6; ++clan) {
        for (int amoeba = 1; amoeba <= 6 && pieces > 0; ++amoeba, --pieces) {
            Put(clan, amoeba, square);
        }
    }
}

class Crowded : public Moving {
protected:
    Crowded() {
        NewPosition(6);
        Put(1, 1, 13, 3);
    }
    ScriptedBoard board;
};

TEST_F(Crowded, TheThirtiethPieceTakesTheLastSpot) {
    Crowd(14, 29);
    Script script({29, 1, 30});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Amoeba[1][1].Slot, 30);
    EXPECT_THAT(board.Boxes, IsEmpty());
}

TEST_F(Crowded, TheThirtyFirstPieceMovesWithoutARollAndIsNotDrawn) {
    Crowd(14, 30);
    Script script({});
    MoveAmoeba(1, 1, 14);
    EXPECT_THAT(board.Boxes, ElementsAre("How did you ever manage to squeeze 30 amoebas in square 14?!?!?"));
    EXPECT_EQ(game.Amoeba[1][1].Square, 14);
    EXPECT_EQ(game.Amoeba[1][1].Slot, 0);
    EXPECT_EQ(files.Moves(), "Turn: 1   Amoeba 1, 1 moving to square 14\nmposition 0\n\n");
    EXPECT_EQ(files.Errors(), "");
}

TEST_F(Crowded, InFastModeTheMessageIsALineOfTheLog) {
    Crowd(14, 30);
    game.FastMode = true;
    MoveAmoeba(1, 1, 14);
    EXPECT_THAT(board.Boxes, IsEmpty());
    EXPECT_TRUE(board.HasLogLine("How did you ever manage to squeeze 30 amoebas in square 14?!?!?"));
}

TEST_F(Crowded, APersonGetsTheMessageInFastModeToo) {
    Crowd(14, 30);
    Person(1);
    game.FastMode = true;
    MoveAmoeba(1, 1, 14);
    EXPECT_THAT(board.Boxes, ElementsAre("How did you ever manage to squeeze 30 amoebas in square 14?!?!?"));
}

// ---- hitch-hikers ----

class HitchHiking : public Moving {
protected:
    HitchHiking() {
        Put(2, 1, 13);
        Put(2, 2, 13);
        Give(2, "hol");
        Feed(14, {1, 0, 1, 1});
    }
    ScriptedBoard board;
};

TEST_F(HitchHiking, AComputerClanRidesToAMeal) {
    Put(2, 3, 12);
    Script script({9, 10, 11});
    MoveAmoeba(1, 1, 14);
    EXPECT_THAT(board.LogLines, ElementsAre("B1 holding on to A1", "B2 holding on to A1"));
    EXPECT_EQ(game.Amoeba[2][2].Square, 14);
    EXPECT_EQ(game.Amoeba[3][2].Square, 12) << "it was not on the start square";
    EXPECT_EQ(files.Moves(),
              "Turn: 4   Amoeba 1, 1 moving to square 14\nmposition 9\n\n"
              "Turn: 4   Amoeba 2, 1 moving to square 14\nmposition 10\n\n"
              "Turn: 4   Amoeba 2, 2 moving to square 14\nmposition 11\n\n");
}

TEST_F(HitchHiking, NobodyRidesAwayFromAMeal) {
    Feed(13, {1, 0, 1, 1});
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Amoeba[1][2].Square, 13);
}

TEST_F(HitchHiking, NobodyRidesToWhereItCannotEat) {
    Feed(14, {0, 0, 1, 1});
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Amoeba[1][2].Square, 13);
}

TEST_F(HitchHiking, OnlyClansWithHoldingRide) {
    Put(3, 1, 13);
    Feed(14, {1, 1, 1, 1});
    Script script({9, 10, 11});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Amoeba[1][3].Square, 13);
}

TEST_F(HitchHiking, TheMoversOwnClanDoesNotRide) {
    Script script({9});
    MoveAmoeba(2, 1, 14);
    EXPECT_EQ(game.Amoeba[2][2].Square, 13);
}

TEST_F(HitchHiking, WhatTheTentacleBringsCounts) {
    Give(1, "ten");
    Feed(14, {1, 1, 1, 0});
    Feed(13, {0, 0, 0, 1});
    Script script({9, 10, 11});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Amoeba[1][2].Square, 14) << "the fourth colour comes along";
    EXPECT_THAT(FoodOn(14), ElementsAre(1, 1, 1, 1));
}

TEST_F(HitchHiking, WhereNobodyMovesNobodyRides) {
    Script script({});
    MoveAmoeba(1, 1, 13);
    EXPECT_THAT(board.LogLines, IsEmpty());
}

TEST_F(HitchHiking, APersonIsAskedAndPicksItsRiders) {
    Person(2);
    Feed(14, {0, 0, 0, 0});
    board.Then({Yes(), Pick({{2, 2}})});
    Script script({9, 10});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(
        board.Questions[0].Text,
        "Player 2: there is an amoeba moving from square 13 to 14\nWould any of your amoebas like to hitch a ride?");
    EXPECT_EQ(board.Questions[0].Clan, 2);
    EXPECT_EQ(board.Questions[1].Text, "Choose the Hitch-hiker(s):");
    EXPECT_EQ(board.Questions[1].Mode, "HOLD");
    EXPECT_THAT(board.Questions[1].Offered, ElementsAre(21, 22)) << "its own pieces alone";
    EXPECT_EQ(game.Amoeba[1][2].Square, 13);
    EXPECT_EQ(game.Amoeba[2][2].Square, 14);
    EXPECT_THAT(board.LogLines, ElementsAre("B2 holding on to A1"));
    EXPECT_THAT(files.Moves(), HasSubstr("Turn: 4   Amoeba 2, 2 moving to square 14\nposition 10\n"));
    EXPECT_EQ(game.BP[2], 0) << "riding costs nothing";
}

TEST_F(HitchHiking, APersonMayPickSeveral) {
    Person(2);
    board.Then({Yes(), Pick({{2, 1}, {2, 2}})});
    Script script({9, 10, 11});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Occupancy[14][2], 2);
}

TEST_F(HitchHiking, APersonWhoDoesNotWantToStays) {
    Person(2);
    board.Then(No());
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Occupancy[13][2], 2);
}

TEST_F(HitchHiking, AClosedDialogIsNobody) {
    Person(2);
    board.Then({Yes(), CloseIt()});
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Occupancy[13][2], 2);
}

TEST_F(Moving, TheLinesReachTheMoveFileOfADataFolder) {
    const auto folder = std::filesystem::temp_directory_path() / Concat("plasmos_moves_", ::getpid());
    DataFolder data(folder.string());
    data.MakeFolder();
    services.Files = &data;
    {
        Script script({9});
        MoveAmoeba(1, 1, 14);
        MoveAmoeba(1, 1, 14);
    }
    std::ifstream file(folder / "movefil.txt", std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(text, "Turn: 4   Amoeba 1, 1 moving to square 14\r\nmposition 9\r\n\r\nposition 9\r\n\r\n");
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace plasmos::testing
