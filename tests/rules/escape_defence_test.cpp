// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <algorithm>

#include "rules/aggression.h"
#include "tests/support/game_fixture.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int Spot = 9;

/// A1 attacks B1 in square 13; B1's clan answers by "def".
struct DefenceRow {
    std::string_view Name;
    std::vector<std::string_view> Genes;
    int BP;
    int Damage;
    std::vector<Line> Answers;  ///< none: a computer clan
    std::vector<int> Rolls;
    bool BeatenOff;
    int Paid;
};

void PrintTo(const DefenceRow& row, std::ostream* out) {
    *out << row.Name;
}

class Defence : public GameRows<DefenceRow> {};

TEST_P(Defence, IsRolled) {
    const DefenceRow& row = GetParam();
    NewPosition(4);
    Put(1, 1, 13);
    Put(2, 1, 13);
    Give(2, "def");
    for (const auto code : row.Genes) {
        Give(2, code);
    }
    game.BP[2] = row.BP;
    game.Amoeba[1][2].Damage = row.Damage;
    ScriptedBoard board;
    if (!row.Answers.empty()) {
        Person(2);
    }
    for (const Line& answer : row.Answers) {
        board.Then(answer);
    }
    {
        Script script(row.Rolls);
        EXPECT_EQ(DefendAmoeba(2, 1), row.BeatenOff);
    }
    EXPECT_EQ(row.BP - game.BP[2], row.Paid);
    EXPECT_EQ(game.Amoeba[1][2].Damage, row.Damage);
    EXPECT_EQ(board.Boxes.empty(), !row.BeatenOff);
    const auto failures = std::count(board.LogLines.begin(), board.LogLines.end(), "Amoeba's defense failed.");
    EXPECT_EQ(failures, row.Paid - (row.BeatenOff ? 1 : 0));
}

// clang-format off
const DefenceRow ComputerDefenceRows[] = {
    {"a_lower_first_die_beats_it_off", {}, 2, 0, {}, {2, 3}, true, 1},
    {"a_higher_first_die_fails", {}, 2, 0, {}, {3, 2}, false, 1},
    {"equal_defence_dice_are_rolled_again", {}, 2, 0, {}, {4, 4, 1, 1, 5, 6}, true, 1},
    {"equal_dice_never_decide", {}, 2, 0, {}, {6, 6, 6, 1}, false, 1},
    {"exactly_1_BP_is_enough", {}, 1, 0, {}, {1, 2}, true, 1},
    {"without_BP_there_is_no_defence", {}, 0, 0, {}, {}, false, 0},
    {"damage_at_the_limit_leaves_no_defence", {}, 2, 2, {}, {}, false, 0},
    {"damage_below_the_limit_does_not_matter", {}, 2, 1, {}, {1, 2}, true, 1},
    {"a_longer_life_defends_with_2_damage", {"lif"}, 2, 2, {}, {1, 2}, true, 1},
    {"but_not_with_3", {"lif"}, 2, 3, {}, {}, false, 0},
    {"persistence_tries_again", {"per"}, 3, 0, {}, {2, 1, 1, 2}, true, 2},
    {"persistence_does_not_try_a_third_time", {"per"}, 5, 0, {}, {2, 1, 6, 5}, false, 2},
    {"persistence_needs_another_BP", {"per"}, 1, 0, {}, {2, 1}, false, 1},
    {"persistence_stops_when_it_has_won", {"per"}, 5, 0, {}, {1, 2}, true, 1},
    {"streamlining_pays_for_its_defence", {"str"}, 1, 0, {}, {1, 2}, true, 1},
};

const DefenceRow PersonDefenceRows[] = {
    {"a_person_who_agrees_pays", {}, 2, 0, {Yes()}, {1, 2}, true, 1},
    {"a_person_may_refuse", {}, 2, 0, {No()}, {}, false, 0},
    {"persistence_asks_a_person_again", {"per"}, 2, 0, {Yes(), Yes()}, {2, 1, 1, 2}, true, 2},
    {"a_person_may_refuse_the_second", {"per"}, 2, 0, {Yes(), No()}, {2, 1}, false, 1},
    {"without_another_BP_a_person_is_not_asked_again", {"per"}, 1, 0, {Yes()}, {2, 1}, false, 1},
    {"refused_once_there_is_no_second_attempt", {"per"}, 2, 0, {No()}, {}, false, 0},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Computer, Defence, ::testing::ValuesIn(ComputerDefenceRows), RowName());
INSTANTIATE_TEST_SUITE_P(Person, Defence, ::testing::ValuesIn(PersonDefenceRows), RowName());

class Attacked : public GameTest {
protected:
    Attacked() {
        NewPosition(4);
        Put(1, 1, 13);
        Put(2, 1, 13);
        game.BP[2] = 3;
    }
    ScriptedBoard board;
};

TEST_F(Attacked, APersonIsAskedToDefendInTheseWords) {
    Person(2);
    Give(2, {"def", "per"});
    board.Then({Yes(), Yes()});
    Script script({2, 1, 1, 2});
    DefendAmoeba(2, 1);
    EXPECT_EQ(board.Questions[0].Text,
              "Player 2: would you like to pay 1BP for B1 to Defend itself against the attack?");
    EXPECT_EQ(board.Questions[1].Text,
              "Player 2: would you like to pay another BP for B1 to Defend itself against the attack?");
    EXPECT_EQ(board.Questions[1].Clan, 2) << "not the attacker";
    EXPECT_THAT(board.Boxes, ElementsAre("A1 has been beaten off by B1!"));
    EXPECT_EQ(game.CurPlayer, 1);
}

TEST_F(Attacked, InFastModeTheDefenceIsALineOfTheLog) {
    Give(2, "def");
    game.FastMode = true;
    Script script({1, 2});
    EXPECT_TRUE(DefendAmoeba(2, 1));
    EXPECT_THAT(board.Boxes, IsEmpty());
    EXPECT_TRUE(board.HasLogLine("A1 has been beaten off by B1!"));
}

TEST_F(Attacked, APersonWithoutBPIsAskedNothing) {
    Person(2);
    Give(2, {"def", "esc", "str"});
    game.BP[2] = 0;
    EXPECT_FALSE(DefendAmoeba(2, 1));
    EXPECT_FALSE(EscapeAmoeba(2, 1)) << "streamlined or not";
    EXPECT_THAT(board.Questions, IsEmpty());
}

TEST_F(Attacked, APersonIsAskedToEscapeForAPrice) {
    Person(2);
    Give(2, "esc");
    board.Then(Yes());
    Script script({2, Spot});
    EXPECT_TRUE(EscapeAmoeba(2, 1));
    EXPECT_EQ(board.Questions[0].Text, "Player 2: Would you like to pay 1BP for B1 to attempt to Escape the attack?");
    EXPECT_EQ(game.BP[2], 2);
    EXPECT_EQ(game.Amoeba[1][2].Square, 18);
    EXPECT_THAT(board.LogLines, ElementsAre("Amoeba 1 will move Down instead.", "Your amoeba B1 escapes to 18."));
}

TEST_F(Attacked, AStreamlinedPersonIsAskedToEscapeFree) {
    Person(2);
    Give(2, {"esc", "str"});
    board.Then(Yes());
    Script script({5});
    EXPECT_FALSE(EscapeAmoeba(2, 1));
    EXPECT_EQ(board.Questions[0].Text, "Player 2: Would B1 like to attempt to Escape the attack?");
    EXPECT_EQ(game.BP[2], 3);
    EXPECT_TRUE(board.HasLogLine("Your amoeba B1 failed to escape."));
}

TEST_F(Attacked, APersonMayStayAndFight) {
    Person(2);
    Give(2, "esc");
    board.Then(No());
    Script script({});
    EXPECT_FALSE(EscapeAmoeba(2, 1));
    EXPECT_EQ(game.BP[2], 3);
    EXPECT_THAT(board.LogLines, IsEmpty());
}

TEST_F(Attacked, AFailedEscapeIsPaidAllTheSame) {
    Person(2);
    Give(2, "esc");
    SetBoard(5, 5, "14:");
    board.Then(Yes());
    Script script({1});
    EXPECT_FALSE(EscapeAmoeba(2, 1));
    EXPECT_EQ(game.BP[2], 2);
}

TEST_F(Attacked, APersonWithMovement2ChoosesWhereToEscape) {
    Person(2);
    Give(2, {"esc", "mv2"});
    board.Then({Yes(), Square(8)});
    Script script({Spot});
    EXPECT_TRUE(EscapeAmoeba(2, 1));
    EXPECT_THAT(board.Questions[1].Offered, ElementsAre(8, 12, 14, 18));
    EXPECT_EQ(game.Amoeba[1][2].Square, 8);
}

TEST_F(Attacked, APersonWithMovement1ChoosesOneOfTwo) {
    Person(2);
    Give(2, {"esc", "mv1"});
    board.Then({Yes(), Square(12)});
    Script script({3, 4, Spot});
    EXPECT_TRUE(EscapeAmoeba(2, 1));
    EXPECT_THAT(board.Questions[1].Offered, ElementsAre(8, 12));
}

TEST_F(Attacked, AFirst6OfMovement1ChoosesAtOnceAndThrowsNoSecondDie) {
    Person(2);
    Give(2, {"esc", "mv1"});
    board.Then({Yes(), Square(18)});
    Script script({6, Spot});
    EXPECT_TRUE(EscapeAmoeba(2, 1));
    EXPECT_THAT(board.Questions[1].Offered, ElementsAre(8, 12, 14, 18));
    EXPECT_EQ(game.Amoeba[1][2].Square, 18);
    EXPECT_EQ(board.LogLines.size(), 1U) << "Movement 1 is told of no throw, only of the escape";
}

TEST_F(Attacked, AnEscapeHasNoSecondAttemptAndTakesNothingAlong) {
    Person(2);
    Give(2, {"esc", "spe", "ten"});
    Put(2, 2, 13);
    Put(3, 1, 13);
    Give(3, "hol");
    Feed(13, {1, 1, 1, 1});
    board.Then(Yes());
    Script script({5});
    EXPECT_FALSE(EscapeAmoeba(2, 1));
    EXPECT_EQ(board.Questions.size(), 1U);
    EXPECT_THAT(FoodOn(13), ElementsAre(1, 1, 1, 1));
}

TEST_F(Attacked, AnEscapeIsTracedAndNobodyRides) {
    MemoryFiles files;
    Give(2, {"esc", "ten"});
    Give(3, "hol");
    Put(3, 1, 13);
    Feed(18, {1, 1, 0, 1});
    Feed(13, {0, 0, 1, 0});
    Script script({2, Spot});
    EXPECT_TRUE(EscapeAmoeba(2, 1));
    EXPECT_EQ(files.Moves(), "Turn: 1   Amoeba 2, 1 moving to square 18\nmposition 9\n\n");
    EXPECT_EQ(game.Amoeba[1][3].Square, 13);
    EXPECT_THAT(FoodOn(13), ElementsAre(0, 0, 1, 0)) << "the tentacle carries nothing";
    EXPECT_THAT(board.LogLines, ElementsAre("B1 escaped to 18!"));
}

}  // namespace
}  // namespace plasmos::testing
