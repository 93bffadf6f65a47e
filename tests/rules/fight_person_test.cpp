// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "tests/rules/fights.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PersonsAttack : public Fights {
protected:
    PersonsAttack() {
        Person(1);
        Give(1, "agg");
        game.BP[1] = 2;
        Put(1, 2, 13);
        Victims(2, {0, 0});
        Victims(3, {0});
    }
};

TEST_F(PersonsAttack, PicksItsVictimAndPays) {
    board.Then(Pick({{2, 2}}));
    AttackAmoeba(0, 13, 0);
    EXPECT_THAT(board.Questions[0].Offered, ElementsAre(21, 22, 31)) << "its own piece cannot be marked";
    EXPECT_TRUE(IsGone(2, 2));
    EXPECT_EQ(game.BP[1], 1);
    EXPECT_EQ(game.DialogMode, "");
}

TEST_F(PersonsAttack, APickOfNobodyEndsItUnpaid) {
    board.Then(Pick({}));
    AttackAmoeba(0, 13, 0);
    EXPECT_EQ(game.BP[1], 2);
    EXPECT_THAT(board.LogLines, IsEmpty());
}

TEST_F(PersonsAttack, TheProtectedCannotBeMarked) {
    Give(1, "par");
    game.BP[2] = 0;
    board.Then(Pick({{3, 1}}));
    AttackAmoeba(0, 13, 0);
    EXPECT_THAT(board.Questions[0].Offered, ElementsAre(31)) << "the poor are safe from parasites";
}

TEST_F(PersonsAttack, PersistencePicksAndPaysAgain) {
    Give(1, "per");
    Give(2, "def");
    board.Then({Pick({{2, 2}}), Pick({{3, 1}})});
    Script script({1, 2});
    AttackAmoeba(0, 13, 0);
    EXPECT_TRUE(IsGone(3, 1));
    EXPECT_EQ(game.BP[1], 0);
}

TEST_F(PersonsAttack, PersistenceWithoutAnotherBPIsOver) {
    Give(1, "per");
    Give(2, "def");
    game.BP[1] = 1;
    board.Then(Pick({{2, 2}}));
    Script script({1, 2});
    AttackAmoeba(0, 13, 0);
    EXPECT_EQ(game.BP[1], 0);
    EXPECT_EQ(board.Questions.size(), 1U);
}

}  // namespace
}  // namespace plasmos::testing
