// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/fight.h"

#include <gmock/gmock.h>

#include "rules/move_amoeba.h"
#include "tests/rules/fights.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int Spot = 9;

class Eating : public Fights {};

TEST_F(Eating, TheLeastDamagedIsTheVictim) {
    Victims(2, {1, 0, 0});
    EXPECT_TRUE(Eats(2));
    EXPECT_TRUE(IsGone(2, 2)) << "the lower number of two";
    EXPECT_EQ(game.Occupancy[13][2], 2);
    EXPECT_THAT(FoodOn(13), ElementsAre(1, 1, 1, 1));
    EXPECT_THAT(board.LogLines, ElementsAre("B2 Eaten!"));
    EXPECT_THAT(board.Pauses, ElementsAre(15));
    EXPECT_EQ(game.BP[1], 0) << "who attacks has paid before";
}

TEST_F(Eating, AGivenVictimIsTaken) {
    Victims(2, {0, 0, 1});
    EXPECT_TRUE(Eats(2, 3));
    EXPECT_TRUE(IsGone(2, 3));
}

TEST_F(Eating, PiecesInOtherSquaresDoNotCount) {
    Put(2, 1, 12);
    Put(2, 2, 13);
    game.Amoeba[2][2].Damage = 1;
    EXPECT_TRUE(Eats(2));
    EXPECT_TRUE(IsGone(2, 2));
}

TEST_F(Eating, ArmourDoesNotHelp) {
    Victims(2, {0});
    Give(2, "arm");
    EXPECT_TRUE(Eats(2));
    EXPECT_TRUE(IsGone(2, 1));
}

TEST_F(Eating, EscapeIsTriedBeforeDefence) {
    Victims(2, {0});
    Give(2, {"def", "esc"});
    Script script({2, Spot});
    EXPECT_FALSE(Eats(2));
    EXPECT_EQ(game.Amoeba[1][2].Square, 18);
    EXPECT_EQ(game.BP[2], 2) << "the defence was not needed";
    EXPECT_THAT(FoodOn(13), ElementsAre(0, 0, 0, 0));
}

TEST_F(Eating, DefenceIsTriedAfterAFailedEscape) {
    Victims(2, {0});
    Give(2, {"def", "esc"});
    Script script({5, 1, 2});
    EXPECT_FALSE(Eats(2));
    EXPECT_EQ(game.Amoeba[1][2].Square, 13);
    EXPECT_EQ(game.BP[2], 1);
}

TEST_F(Eating, WhoFailsInBothIsEaten) {
    Victims(2, {0});
    Give(2, {"def", "esc"});
    Script script({5, 2, 1});
    EXPECT_TRUE(Eats(2));
    EXPECT_EQ(game.BP[2], 1);
}

TEST_F(Eating, TheLastBPSpentOnAFailedEscapeLeavesNoDefence) {
    Victims(2, {0});
    Give(2, {"def", "esc"});
    game.BP[2] = 1;
    Script script({5});
    EXPECT_TRUE(Eats(2));
}

TEST_F(Eating, EachGeneAlone) {
    Victims(2, {0});
    Victims(3, {0});
    Give(2, "esc");
    Give(3, "def");
    {
        Script script({5});
        EXPECT_TRUE(Eats(2));
    }
    Script script({1, 2});
    EXPECT_FALSE(Eats(3));
}

TEST_F(Eating, APersonIsTold) {
    Victims(2, {0});
    Person(2);
    Eats(2);
    EXPECT_THAT(board.Boxes, ElementsAre("Player 2: You are being attacked!"));
}

TEST_F(Eating, TheVictimMovesBesideTheAttacker) {
    Put(2, 1, 13, 25);
    Give(2, "def");
    Script script({1, 2});
    Eats(2);
    EXPECT_EQ(game.Amoeba[1][2].Slot, 9) << "next to spot 10, the lower on a tie";
    EXPECT_EQ(game.Amoeba[1][1].Slot, 10);
}

// ---- spots ----

TEST_F(Fights, TheNearestFreeSpotIsTakenAndTheOldOneIsFree) {
    Put(2, 1, 13, 25);
    Put(3, 1, 13, 9);
    Put(4, 1, 13, 11);
    MoveBeside(2, 1, 10);
    EXPECT_EQ(game.Amoeba[1][2].Slot, 8);
    MoveBeside(3, 1, 26);
    EXPECT_EQ(game.Amoeba[1][3].Slot, 26) << "it is free itself";
    MoveBeside(4, 1, 24);
    EXPECT_EQ(game.Amoeba[1][4].Slot, 24);
    MoveBeside(2, 1, 24);
    EXPECT_EQ(game.Amoeba[1][2].Slot, 23) << "25 is free again, and so is 23";
}

TEST_F(Fights, AtTheEndOfTheSpotsTheOtherSideIsTaken) {
    Put(2, 1, 13, 1);
    Put(3, 1, 13, 20);
    MoveBeside(3, 1, 1);
    EXPECT_EQ(game.Amoeba[1][3].Slot, 2);
}

TEST_F(Fights, WithoutAFreeSpotItStays) {
    NewPosition(5);
    for (int clan = 1; clan <= 5; ++clan) {
        for (int amoeba = 1; amoeba <= 6; ++amoeba) {
            Put(clan, amoeba, 13);
        }
    }
    MoveBeside(5, 6, 1);
    EXPECT_EQ(game.Amoeba[6][5].Slot, 30);
}

// ---- attacks of the aggression step ----

class Attacks : public Fights {};

TEST_F(Attacks, TearTheLeastDamagedToPieces) {
    Victims(2, {1, 0, 0});
    AttackAmoeba(2, 13, 0);
    EXPECT_TRUE(IsGone(2, 2));
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 2, 2, 2)) << "twice what an eaten amoeba leaves";
    EXPECT_THAT(board.LogLines, ElementsAre("A1 picking a fight with B2 in 13", "B2 torn viciously to pieces!!!"));
    EXPECT_EQ(game.Message, "A1 picking a fight with B2 in 13\nB2 torn viciously to pieces!!!");
    EXPECT_THAT(board.Pauses, ElementsAre(15, 15));
    EXPECT_EQ(game.BP[1], 0) << "the aggression step has paid";
}

TEST_F(Attacks, TakeTheMostDamagedInArmour) {
    Victims(2, {0, 1, 1});
    Give(2, "arm");
    AttackAmoeba(2, 13, 0);
    EXPECT_EQ(game.Amoeba[2][2].Damage, 2) << "the lower number of two";
    EXPECT_FALSE(IsGone(2, 2)) << "it dies in the next turn";
    EXPECT_EQ(game.Amoeba[3][2].Damage, 1);
    EXPECT_THAT(FoodOn(13), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(board.LogLines, ElementsAre("A1 picking a fight with B2 in 13"));
}

TEST_F(Attacks, ArmourThatDefendsItselfIsUnharmed) {
    Victims(2, {0});
    Give(2, {"arm", "esc"});
    Script script({2, Spot});
    AttackAmoeba(2, 13, 0);
    EXPECT_EQ(game.Amoeba[1][2].Damage, 0);
    EXPECT_EQ(game.Amoeba[1][2].Square, 18);
}

TEST_F(Attacks, TheAttackerMovesBesideItsVictim) {
    Put(2, 1, 13, 25);
    Give(2, "arm");
    AttackAmoeba(2, 13, 0);
    EXPECT_EQ(game.Amoeba[1][1].Slot, 24);
    EXPECT_EQ(game.Amoeba[1][2].Slot, 25);
}

TEST_F(Attacks, WithoutPersistenceThereIsOne) {
    Victims(2, {0});
    Give(2, "def");
    Script script({1, 2});
    AttackAmoeba(2, 13, 0);
    EXPECT_FALSE(IsGone(2, 1));
    EXPECT_EQ(game.BP[2], 2);
}

TEST_F(Attacks, PersistenceAttacksTheSameClanAgain) {
    Give(1, "per");
    Victims(2, {0});
    Victims(3, {0});
    Give(3, "def");
    Script script({1, 2, 2, 1});
    AttackAmoeba(3, 13, 0);
    EXPECT_TRUE(IsGone(3, 1));
    EXPECT_FALSE(IsGone(2, 1)) << "although its number is lower";
    EXPECT_EQ(game.BP[1], 0) << "a computer clan pays once";
}

TEST_F(Attacks, PersistenceAttacksTheNextClanWhenTheFirstHasFled) {
    Give(1, "per");
    Victims(2, {0});
    Victims(3, {0});
    Victims(4, {0});
    Give(4, "esc");
    Script script({2, Spot});
    AttackAmoeba(4, 13, 0);
    EXPECT_TRUE(IsGone(2, 1)) << "the lowest-numbered clan that is a victim";
    EXPECT_FALSE(IsGone(3, 1));
}

TEST_F(Attacks, PersistenceStopsWhenNobodyIsLeft) {
    Give(1, "per");
    Victims(2, {0});
    Give(2, "esc");
    Script script({2, Spot});
    AttackAmoeba(2, 13, 0);
    EXPECT_THAT(board.LogLines, ElementsAre("A1 picking a fight with B1 in 13", "B1 escaped to 18!"));
}

TEST_F(Attacks, PersistenceDoesNotAttackAThirdTime) {
    Give(1, "per");
    Victims(2, {0});
    Give(2, "def");
    Script script({1, 2, 1, 2});
    AttackAmoeba(2, 13, 0);
    EXPECT_FALSE(IsGone(2, 1));
    EXPECT_EQ(game.BP[2], 1);
}

TEST_F(Attacks, PersistenceThatHasWonIsContent) {
    Give(1, "per");
    Victims(2, {0, 0});
    AttackAmoeba(2, 13, 0);
    EXPECT_EQ(game.Occupancy[13][2], 1);
}

TEST_F(Attacks, ArmourHurtIsNoReasonToAttackAgain) {
    Give(1, "per");
    Victims(2, {0});
    Give(2, "arm");
    AttackAmoeba(2, 13, 0);
    EXPECT_EQ(game.Amoeba[1][2].Damage, 1);
}

}  // namespace
}  // namespace plasmos::testing
