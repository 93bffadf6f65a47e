// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/aggression.h"

#include <gmock/gmock.h>

#include "model/happening.h"
#include "rules/computer_clan.h"
#include "tests/rules/two_aggressive_clans.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class Aggression : public GameTest {
protected:
    Aggression() { NewPosition(4); }
    ScriptedBoard board;
};

// ---- deaths ----

struct DeathRow {
    std::string_view Name;
    int Damage;
    bool LivesLonger;
    bool Dies;
};

void PrintTo(const DeathRow& row, std::ostream* out) {
    *out << row.Name;
}

class Deaths : public GameRows<DeathRow> {};

TEST_P(Deaths, ComeWithTheDamage) {
    NewPosition(4);
    Put(2, 3, 13);
    Feed(13, {1, 0, 0, 4});
    game.Amoeba[3][2].Damage = GetParam().Damage;
    if (GetParam().LivesLonger) {
        Give(2, "lif");
    }
    AggressionPhase();
    const bool dies = GetParam().Dies;
    EXPECT_EQ(game.Amoeba[3][2].Square, dies ? 0 : 13);
    EXPECT_EQ(game.Amoeba[3][2].Damage, dies ? 0 : GetParam().Damage);
    EXPECT_EQ(game.AmoebaCount[2], dies ? 0 : 1);
    EXPECT_EQ(FoodOn(13), dies ? std::vector<int>({3, 2, 2, 6}) : std::vector<int>({1, 0, 0, 4}));
    EXPECT_EQ(game.Amoeba[3][2].Name.View(), "B3") << "the name stays with the slot";
    EXPECT_EQ(game.Food[13][5], 0) << "there is no fifth clan";
}

const DeathRow DeathRows[] = {
    {"damage_1_is_survived", 1, false, false},  {"damage_2_kills", 2, false, true},
    {"damage_3_kills", 3, false, true},         {"a_longer_life_survives_2", 2, true, false},
    {"a_longer_life_ends_at_3", 3, true, true},
};

INSTANTIATE_TEST_SUITE_P(Damage, Deaths, ::testing::ValuesIn(DeathRows), RowName());

/// Remembers who died in which order.
class DeathBoard : public ScriptedBoard {
public:
    void ShowHappening(const Happening& happening) override {
        if (happening.What == Happening::Kind::Dies) {
            Dead.push_back(Concat(happening.Clan, ",", happening.Amoeba, " in ", happening.Square));
        }
    }
    std::vector<std::string> Dead;
};

TEST_F(Aggression, TheDeadAreBuriedInTheOrderOfPlay) {
    DeathBoard deaths;
    game.PlayOrder[1] = 3;
    game.PlayOrder[3] = 1;
    for (const int clan : {1, 2, 3}) {
        Put(clan, 1, clan);
        Put(clan, 2, 7);
        game.Amoeba[1][clan].Damage = game.Amoeba[2][clan].Damage = 2;
    }
    AggressionPhase();
    EXPECT_THAT(deaths.Dead, ElementsAre("3,1 in 3", "3,2 in 7", "2,1 in 2", "2,2 in 7", "1,1 in 1", "1,2 in 7"));
    EXPECT_THAT(FoodOn(7), ElementsAre(6, 6, 6, 6));
}

TEST_F(Aggression, TheDeadNoLongerAttackAndAreNoVictims) {
    Give(1, "agg");
    game.BP[1] = 1;
    Put(1, 1, 13);
    Put(2, 1, 13);
    game.Amoeba[1][2].Damage = 2;
    Script script({1});
    AggressionPhase();
    EXPECT_EQ(game.BP[1], 1) << "its search found nobody";
}

// ---- computer clans ----

class ComputerAggression : public Aggression {
protected:
    ComputerAggression() {
        for (int clan = 1; clan <= 4; ++clan) {
            Put(clan, 1, 13);
        }
    }
    static void Aggressive(int clan) {
        Give(clan, "agg");
        game.BP[clan] = 2;
    }
};

TEST_F(ComputerAggression, PaysAndTearsItsVictimToPieces) {
    Aggressive(2);
    Script script({3});
    AggressionPhase();
    EXPECT_EQ(game.Amoeba[1][3].Square, 0);
    EXPECT_EQ(game.BP[2], 1);
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 2, 2, 2));
    EXPECT_THAT(board.LogLines, ElementsAre("B1 picking a fight with C1 in 13", "C1 torn viciously to pieces!!!"));
    EXPECT_THAT(board.Boxes, IsEmpty()) << "nobody is warned";
}

TEST_F(ComputerAggression, AtMostOneAttackATurnInClanNumberOrder) {
    NEEDS_TWO_AGGRESSIVE_CLANS();
    Aggressive(2);
    Aggressive(4);
    game.PlayOrder[1] = 4;
    game.PlayOrder[4] = 1;
    Script script({1});
    AggressionPhase();
    EXPECT_EQ(game.BP[2], 1);
    EXPECT_EQ(game.BP[4], 2) << "first in the order of play, second in clan numbers";
    EXPECT_EQ(game.CurPlayer, 2);
}

TEST_F(ComputerAggression, WithoutBPTheNextClanIsTaken) {
    NEEDS_TWO_AGGRESSIVE_CLANS();
    Aggressive(2);
    Aggressive(4);
    game.BP[2] = 0;
    Script script({1});
    AggressionPhase();
    EXPECT_EQ(game.BP[4], 1);
    EXPECT_EQ(game.Amoeba[1][1].Square, 0);
}

TEST_F(ComputerAggression, ExactlyOneBPIsEnough) {
    Aggressive(4);
    game.BP[4] = 1;
    Script script({1});
    AggressionPhase();
    EXPECT_EQ(game.BP[4], 0);
    EXPECT_EQ(game.Amoeba[1][1].Square, 0);
}

TEST_F(ComputerAggression, AClanThatFindsNobodyLeavesItToTheNext) {
    NEEDS_TWO_AGGRESSIVE_CLANS();
    Aggressive(2);
    Aggressive(4);
    LiftPiece(2, 1);
    PutPiece(2, 1, 1, 1);
    Script script({3, 1});
    AggressionPhase();
    EXPECT_EQ(game.BP[2], 2) << "its die was rolled, nothing was paid";
    EXPECT_EQ(game.BP[4], 1);
}

TEST_F(ComputerAggression, WithoutAggressionNothingHappens) {
    Give(2, "sfs");
    game.BP[2] = 5;
    Script script({});
    AggressionPhase();
    EXPECT_EQ(game.Occupancy[13][0], 4);
}

TEST_F(ComputerAggression, WarnsAPerson) {
    Aggressive(2);
    Person(3);
    Script script({3});
    AggressionPhase();
    EXPECT_THAT(board.Boxes, ElementsAre("You are being Aggressed!"));
}

TEST_F(ComputerAggression, WarnsAPersonWhoseAmoebaIsDamagedInOtherWords) {
    Aggressive(2);
    Give(1, "esc");
    Give(3, "esc");
    Give(4, "def");
    Person(3);
    game.Amoeba[1][3].Damage = 1;
    Script script({1});
    AggressionPhase();
    EXPECT_THAT(board.Boxes, ElementsAre("You are being attacked!"));
}

}  // namespace
}  // namespace plasmos::testing
