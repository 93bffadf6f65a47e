// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/aggression.h"

#include <gmock/gmock.h>

#include <functional>

#include "model/step.h"
#include "rules/computer_clan.h"
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

/// There is one copy of Aggression. What two clans with it would do shows only where nobody counts the
/// copies after every step.
#define NEEDS_TWO_AGGRESSIVE_CLANS() \
    if (EveryStepIsChecked)          \
    GTEST_SKIP() << "a second copy of Aggression does not exist"

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
    void AnimateDeath(int clan, int amoeba, int square) override {
        Dead.push_back(Concat(clan, ",", amoeba, " in ", square));
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

// ---- the search ----

/// Clan 1 searches; its pieces A1 in 13 and A2 in 7 meet what `Set` puts there.
struct SearchRow {
    std::string_view Name;
    std::function<void()> Set;
    int Roll;
    int Attacker;
    int Clan;
    bool IsDamaged = false;
};

void PrintTo(const SearchRow& row, std::ostream* out) {
    *out << row.Name;
}

class TargetSearch : public GameRows<SearchRow> {};

TEST_P(TargetSearch, Finds) {
    NewPosition(4);
    Give(1, "agg");
    game.BP[1] = 1;
    Put(1, 1, 13);
    Put(1, 2, 7);
    GetParam().Set();
    Script script({GetParam().Roll});
    const ComputerTarget target = FindComputerTarget(1);
    EXPECT_EQ(target.Attacker, GetParam().Attacker);
    EXPECT_EQ(target.Clan, GetParam().Clan);
    EXPECT_EQ(target.IsDamaged, GetParam().IsDamaged);
}

void Meet(int clan, int square, std::string_view gene = "", int damage = 0) {
    Put(clan, 1, square);
    game.Amoeba[1][clan].Damage = damage;
    if (!gene.empty()) {
        Give(clan, gene);
    }
}

// clang-format off
const SearchRow SearchRows[] = {
    {"nobody_and_rolls_all_the_same", [] {}, 2, 0, 0},
    {"nobody_in_other_squares", [] { Meet(2, 8); }, 2, 0, 0},
    {"the_rolled_clan_first", [] { Meet(2, 13); Meet(3, 13); Meet(4, 13); }, 3, 1, 3},
    {"wrapping_round_past_its_own", [] { Meet(2, 13); Meet(3, 13); }, 4, 1, 2},
    {"its_own_clan_is_passed_over", [] { Meet(2, 13); Meet(3, 13); }, 1, 1, 2},
    {"its_first_piece_before_the_rolled_clan", [] { Meet(2, 13); Meet(3, 7); }, 3, 1, 2},
    {"its_second_piece_where_the_first_is_alone", [] { Meet(3, 7); }, 1, 2, 3},
    {"who_can_neither_escape_nor_defend_first", [] { Meet(2, 13, "esc"); Meet(3, 13, "def"); Meet(4, 7); }, 2, 2, 4},
    {"the_defenceless_before_the_damaged", [] { Meet(2, 13, "esc", 1); Meet(3, 7); }, 2, 2, 3},
    {"then_the_damaged", [] { Meet(2, 13, "esc"); Meet(3, 7, "def", 1); }, 2, 2, 3, true},
    {"the_damaged_in_armour_too", [] { Meet(2, 13, "esc"); Meet(3, 13, "arm", 1); }, 2, 1, 3, true},
    {"damage_elsewhere_does_not_count", [] { Meet(2, 13, "esc"); Put(2, 2, 8); game.Amoeba[2][2].Damage = 1; }, 2, 1,
     2},
    {"then_who_escapes_badly", [] { Meet(2, 13, "def"); Meet(3, 7, "esc"); }, 2, 2, 3},
    {"streamlined_is_no_bad_escape", [] { Meet(2, 13, "esc"); Give(2, "str"); }, 2, 0, 0},
    {"movement_2_is_no_bad_escape", [] { Meet(2, 13, "esc"); Give(2, "mv2"); }, 2, 0, 0},
    {"movement_1_is", [] { Meet(2, 13, "esc"); Give(2, "mv1"); }, 2, 1, 2},
    {"defence_is_left_alone", [] { Meet(2, 13, "def"); }, 2, 0, 0},
    {"armour_is_left_alone", [] { Meet(2, 13, "arm"); }, 2, 0, 0},
    {"escape_and_defence_are_left_alone", [] { Meet(2, 13, "esc"); Give(2, "def"); }, 2, 0, 0},
    {"the_poor_are_safe_from_parasites_even_when_attacked", [] { Give(1, "par"); Meet(2, 13); }, 2, 0, 0},
    {"the_rich_beside_them_are_not", [] { Give(1, "par"); Meet(2, 13); Meet(3, 13); game.BP[3] = 1; }, 2, 1, 3},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Search, TargetSearch, ::testing::ValuesIn(SearchRows), RowName());

// ---- persons ----

class PersonsAggression : public Aggression {
protected:
    PersonsAggression() {
        Person(2);
        Give(2, "agg");
        game.BP[2] = 2;
        Put(2, 1, 13);
        Put(2, 2, 7);
        Put(3, 1, 13);
        Put(4, 1, 7);
    }
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
