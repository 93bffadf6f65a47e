// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "rules/movement.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Choosing : public GameTest {
protected:
    Choosing() {
        NewPosition(4);
        Person(2);
    }

    ScriptedBoard board;
};

TEST_F(Choosing, OffersTheNeighboursOnceEach) {
    Put(2, 3, 1);
    board.Then(Square(6));
    EXPECT_EQ(ChooseSquare(2, 3, true), 6);
    EXPECT_THAT(board.Questions[0].Offered, ElementsAre(1, 2, 6));
}

TEST_F(Choosing, AddsToTheMessageAndPutsItBack) {
    Put(2, 3, 13);
    game.Message = "B3 will drift into 14.";
    board.Then(Square(8));
    ChooseSquare(2, 3, true);
    EXPECT_EQ(board.Questions[0].Text, "B3 will drift into 14.\nChoose a square for B3 to Move into:");
    EXPECT_EQ(game.Message, "B3 will drift into 14.");
}

TEST_F(Choosing, WithAnEmptyMessageBeginsWithTheQuestion) {
    Put(2, 3, 13);
    board.Then(Square(8));
    ChooseSquare(2, 3, true);
    EXPECT_THAT(board.Messages, ElementsAre("Choose a square for B3 to Move into:", ""));
}

TEST_F(Choosing, WhereTheCurrentLetsItChooseBeginsWithTheQuestion) {
    Person(2);
    Put(2, 3, 13);
    game.Drift = WhereItWants;
    board.Then(Square(8));
    Script script({9});
    MovePersonsAmoeba(2, 3);
    EXPECT_EQ(board.Messages.front(), "Choose a square for B3 to Move into:");
}

TEST_F(Choosing, WithoutTheFlagTheListIsTheCallers) {
    Put(2, 3, 13);
    SquareList list;
    list.Add(25);
    list.Add(2);
    board.Then({Square(12), Square(25)});
    EXPECT_EQ(ChooseSquare(2, 3, false, list), 25);
    EXPECT_THAT(board.Questions[0].Offered, ElementsAre(2, 25));
}

TEST_F(Choosing, OneSquareIsNoQuestion) {
    Put(2, 3, 13);
    SetBoard(5, 5, "8:12:14:18:");
    EXPECT_EQ(ChooseSquare(2, 3, true), 13);
    EXPECT_THAT(board.Questions, IsEmpty());
}

TEST_F(Choosing, AClickBesideTheBoardIsIgnored) {
    Put(2, 3, 13);
    board.Then({ClickAt(-1, -1), ClickAt(6000, 600), ClickAt(3 * 1200, 2 * 1200)});
    EXPECT_EQ(ChooseSquare(2, 3, true), 14);
}

TEST_F(Choosing, TheDirectionOfASecondAttemptIsAlwaysInstead) {
    Put(2, 3, 13);
    game.Drift = game.NumCols;
    {
        Script script({2});
        EXPECT_EQ(FindPersonsDestination(2, 3, MoveKind::FirstAttempt), 18);
    }
    Script script({2});
    EXPECT_EQ(FindPersonsDestination(2, 3, MoveKind::SecondAttempt), 18);
    EXPECT_THAT(board.LogLines, ElementsAre("Amoeba 3 will move Down anyway.", "Amoeba 3 will move Down instead."));
}

}  // namespace
}  // namespace plasmos::testing
