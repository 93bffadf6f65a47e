// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "rules/aggression.h"
#include "tests/rules/two_aggressive_clans.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class PersonsAggression : public GameTest {
protected:
    PersonsAggression() {
        NewPosition(4);
        Person(2);
        Give(2, "agg");
        game.BP[2] = 2;
        Put(2, 1, 13);
        Put(2, 2, 7);
        Put(3, 1, 13);
        Put(4, 1, 7);
    }
    ScriptedBoard board;
};

TEST_F(PersonsAggression, IsAskedForAndCarriedOut) {
    board.Then({Yes(), Square(13), Pick({{3, 1}})});
    AggressionPhase();
    EXPECT_EQ(board.Questions[0].Text, "Player 2: would you like to Aggress another amoeba now?");
    EXPECT_EQ(board.Questions[1].Text, "Choose the square in which to aggress:");
    EXPECT_THAT(board.Questions[1].Offered, ElementsAre(7, 13));
    EXPECT_EQ(board.Questions[2].Text, "Choose the Attack-victim:");
    EXPECT_EQ(board.Questions[2].Mode, "AGGRESS");
    EXPECT_EQ(game.Amoeba[1][3].Square, 0);
    EXPECT_EQ(game.BP[2], 1);
    EXPECT_TRUE(board.HasLogLine("B1 picking a fight with C1 in 13"));
}

TEST_F(PersonsAggression, NoEndsTheStepForEverybody) {
    NEEDS_TWO_AGGRESSIVE_CLANS();
    Give(3, "agg");
    game.BP[3] = 2;
    board.Then(No());
    Script script({});
    AggressionPhase();
    EXPECT_EQ(game.BP[3], 2);
}

TEST_F(PersonsAggression, WithoutAVictimNobodyIsAskedAndTheNextClanIsTaken) {
    NEEDS_TWO_AGGRESSIVE_CLANS();
    for (const int amoeba : {1, 2}) {
        LiftPiece(2, amoeba);
        PutPiece(2, amoeba, 20 + amoeba, 1);
    }
    Give(3, "agg");
    game.BP[3] = 2;
    Put(1, 1, 13);
    Script script({1});
    AggressionPhase();
    EXPECT_THAT(board.Questions, IsEmpty());
    EXPECT_EQ(game.BP[3], 1);
}

TEST_F(PersonsAggression, ASingleSquareIsNotAskedFor) {
    LiftPiece(4, 1);
    PutPiece(4, 1, 1, 1);
    board.Then({Yes(), Pick({{3, 1}})});
    AggressionPhase();
    EXPECT_EQ(game.Amoeba[1][3].Square, 0);
}

TEST_F(PersonsAggression, OfSeveralPiecesOneIsAskedFor) {
    Put(2, 5, 13);
    board.Then({Yes(), Square(13), Amoeba(5), Pick({{3, 1}})});
    AggressionPhase();
    EXPECT_THAT(board.Questions[2].Offered, ElementsAre(1, 5));
    EXPECT_TRUE(board.HasLogLine("B5 picking a fight with C1 in 13"));
}

TEST_F(PersonsAggression, AWithdrawnPickEndsTheStep) {
    NEEDS_TWO_AGGRESSIVE_CLANS();
    Put(2, 5, 13);
    Give(3, "agg");
    game.BP[3] = 2;
    board.Then({Yes(), Square(13), Nobody()});
    Script script({});
    AggressionPhase();
    EXPECT_EQ(game.BP[2], 2);
    EXPECT_EQ(game.BP[3], 2);
}

TEST_F(PersonsAggression, ThePickOfNobodyCostsNothing) {
    board.Then({Yes(), Square(13), Pick({})});
    AggressionPhase();
    EXPECT_EQ(game.BP[2], 2);
    EXPECT_EQ(game.Amoeba[1][3].Square, 13);
    EXPECT_THAT(board.LogLines, Not(Contains("B1 picking a fight with C1 in 13")));
}

TEST_F(PersonsAggression, WithoutBPNobodyIsAsked) {
    game.BP[2] = 0;
    AggressionPhase();
    EXPECT_THAT(board.Questions, IsEmpty());
}

}  // namespace
}  // namespace plasmos::testing
