// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/computer_clan.h"

#include <gmock/gmock.h>

#include <functional>

#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The feeding of A1, a computer clan's, in square 13 with the pieces B1, C1 and D1 beside it; four
/// clans, and clan 1 has 3 BP. `Eaten` names the clan whose piece is eaten; 0: A1 starves.
struct FightRow {
    std::string_view Name;
    std::vector<std::string_view> Genes;
    std::function<void()> Set;
    std::vector<int> Rolls;
    int Eaten;
    int Paid;
};

void PrintTo(const FightRow& row, std::ostream* out) {
    *out << row.Name;
}

class HungryFighter : public GameRows<FightRow> {};

TEST_P(HungryFighter, ChoosesItsVictim) {
    const FightRow& row = GetParam();
    NewPosition(4);
    for (int clan = 1; clan <= 4; ++clan) {
        Put(clan, 1, 13);
    }
    for (const auto code : row.Genes) {
        Give(1, code);
    }
    game.BP[1] = 3;
    row.Set();
    const int before = game.BP[1];
    {
        Script script(row.Rolls);
        ComputerFeedAmoeba(1, 1, 13);
    }
    for (int clan = 2; clan <= 4; ++clan) {
        EXPECT_EQ(game.Amoeba[1][clan].Square == 0, clan == row.Eaten) << "clan " << clan;
    }
    EXPECT_EQ(game.Amoeba[1][1].Damage, row.Eaten == 0 ? 1 : 0);
    EXPECT_EQ(before - game.BP[1], row.Paid);
    const int food = row.Eaten == 0 ? 0 : 1;
    EXPECT_EQ(FoodOn(13), std::vector<int>(4, food)) << "1 piece of every colour, and nothing excreted";
}

void Easy() {
    game.Menu.normmen = false;
}

/// The order of play is 3, 4, 2, 1.
void Order3421() {
    game.PlayOrder[1] = 3;
    game.PlayOrder[2] = 4;
    game.PlayOrder[3] = 2;
    game.PlayOrder[4] = 1;
}

/// A clan's piece stands in another square.
void Away(int clan) {
    LiftPiece(clan, 1);
    PutPiece(clan, 1, 12, clan);
}

// clang-format off
const FightRow NobodyRows[] = {
    {"without_struggle_and_aggression_it_starves", {"mv1"}, [] {}, {}, 0, 0},
    {"with_0_BP_it_starves_without_attacking", {"sfs"}, [] { game.BP[1] = 0; }, {}, 0, 0},
    {"armour_everywhere_is_no_victim_for_struggle", {"sfs"}, [] { for (int c : {2, 3, 4}) Give(c, "arm"); }, {}, 0,
     0},
    {"armour_everywhere_is_searched_in_vain_by_aggression", {"agg"}, [] { for (int c : {2, 3, 4}) Give(c, "arm"); },
     {1}, 0, 0},
    {"the_poor_are_safe_from_parasites_that_fight", {"par", "agg"}, [] {}, {}, 0, 0},
    {"alone_it_starves", {"sfs"}, [] { for (int c : {2, 3, 4}) Away(c); }, {}, 0, 0},
};

const FightRow NormalRows[] = {
    {"normal_searches_in_the_order_of_play", {"sfs"}, Order3421, {2}, 3, 1},
    {"the_first_roll_is_rolled_and_changes_nothing", {"sfs"}, Order3421, {4}, 3, 1},
    {"aggression_fights_for_its_food_too", {"agg"}, Order3421, {1}, 3, 1},
    {"armour_is_passed_over", {"sfs"}, [] { Order3421(); Give(3, "arm"); }, {1}, 4, 1},
    {"normal_does_not_mind_defence", {"sfs"}, [] { Order3421(); Give(3, "def"); game.BP[3] = 1; }, {1, 6, 2}, 3, 1},
    {"normal_does_not_mind_escape", {"sfs"}, [] { Order3421(); Give(3, "esc"); game.BP[3] = 1; }, {1, 5}, 3, 1},
    {"beside_the_rich_the_poor_are_no_longer_safe_from_parasites", {"par", "sfs"}, []
     { Order3421(); game.BP[2] = 1; }, {1}, 3, 1},
    {"exactly_1_BP_is_enough", {"sfs"}, [] { game.BP[1] = 1; }, {1}, 2, 1},
};

const FightRow EasyRows[] = {
    {"easy_starts_at_a_clan_drawn_by_die", {"sfs"}, [] { Easy(); Order3421(); }, {4}, 4, 1},
    {"easy_wraps_round", {"sfs"}, [] { Easy(); Order3421(); Give(4, "arm"); }, {4}, 2, 1},
    {"easy_skips_its_own_clan", {"sfs"}, [] { Easy(); Order3421(); }, {1}, 2, 1},
    {"easy_passes_over_who_can_defend", {"sfs"}, [] { Easy(); Give(2, "def"); game.BP[2] = 1; }, {2}, 3, 1},
    {"defence_without_BP_is_none", {"sfs"}, [] { Easy(); Give(2, "def"); }, {2}, 2, 1},
    {"easy_passes_over_who_can_escape", {"sfs"}, [] { Easy(); Give(2, "esc"); game.BP[2] = 1; }, {2}, 3, 1},
    {"escape_without_BP_is_none", {"sfs"}, [] { Easy(); Give(2, "esc"); }, {2}, 2, 1},
    {"streamlining_can_escape_without_BP", {"sfs"}, [] { Easy(); Give(2, {"esc", "str"}); }, {2}, 3, 1},
    {"the_second_choice_takes_the_first_in_the_order_of_play", {"sfs"}, []
     { Easy(); Order3421(); for (int c : {2, 3, 4}) { Give(c, "def"); game.BP[c] = 1; } }, {4, 6, 1}, 3, 1},
    {"the_second_choice_passes_over_the_fleet", {"sfs"}, []
     { Easy(); Order3421(); Give(3, {"str", "esc", "mv1"}); Give(4, {"def"}); game.BP[4] = 1; Away(2); }, {1, 5, 3},
     4, 1},
    {"movement_2_is_fleet_too", {"sfs"}, []
     { Easy(); Give(2, {"str", "esc", "mv2"}); Give(3, "arm"); Give(4, "arm"); }, {3}, 0, 0},
    {"streamlining_and_escape_alone_are_not_fleet", {"sfs"}, []
     { Easy(); Give(2, {"str", "esc"}); Give(3, "arm"); Give(4, "arm"); }, {3}, 2, 1},
    {"the_second_choice_passes_over_armour", {"agg"}, []
     { Easy(); Give(2, "arm"); Give(3, "def"); game.BP[3] = 1; Give(4, "arm"); }, {2, 6, 1}, 3, 1},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Nobody, HungryFighter, ::testing::ValuesIn(NobodyRows), RowName());
INSTANTIATE_TEST_SUITE_P(Normal, HungryFighter, ::testing::ValuesIn(NormalRows), RowName());
INSTANTIATE_TEST_SUITE_P(Easy, HungryFighter, ::testing::ValuesIn(EasyRows), RowName());

class ComputerMeal : public GameTest {
protected:
    ComputerMeal() {
        NewPosition(4);
        Put(1, 1, 13);
    }
    ScriptedBoard board;
};

TEST_F(ComputerMeal, WhoCanEatDoesNotFight) {
    Give(1, {"sfs", "par"});
    game.BP[1] = game.BP[2] = 3;
    Put(2, 1, 13);
    Feed(13, {0, 2, 1, 1});
    Script script({});
    ComputerFeedAmoeba(1, 1, 13);
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 1, 0, 0));
    EXPECT_EQ(game.BP[1], 3);
    EXPECT_EQ(game.BP[2], 3);
    EXPECT_THAT(board.LogLines, ElementsAre("A1 eats 111 in 13"));
}

TEST_F(ComputerMeal, OfEqualAmountsTheHighestScoresAreEaten) {
    NewPosition(6);
    Put(1, 1, 13);
    game.Players[6].Score = 30;
    game.Players[2].Score = 0;
    Feed(13, {0, 1, 1, 1, 1, 1});
    ComputerFeedAmoeba(1, 1, 13);
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 1, 0, 0, 0, 0)) << "clan 2 has the lowest score";
}

TEST_F(ComputerMeal, StarvingIsANewLineAndOneDamage) {
    game.Amoeba[1][1].Damage = 1;
    game.Message = "A1 moves resignedly into 13";
    ComputerFeedAmoeba(1, 1, 13);
    EXPECT_EQ(game.Message, "A1 moves resignedly into 13\nA1 starves in 13");
    EXPECT_THAT(board.LogLines, ElementsAre("A1 starves in 13"));
    EXPECT_EQ(game.Amoeba[1][1].Damage, 2);
    EXPECT_EQ(game.Amoeba[1][1].Square, 13) << "it dies in the aggression step";
    EXPECT_THAT(board.Pauses, ElementsAre(10));
}

TEST_F(ComputerMeal, AVictimThatGetsAwayLeavesItHungry) {
    Give(1, "sfs");
    game.BP[1] = game.BP[2] = 1;
    Put(2, 1, 13);
    Give(2, "def");
    Script script({1, 1, 6});
    ComputerFeedAmoeba(1, 1, 13);
    EXPECT_EQ(game.Amoeba[1][1].Damage, 1);
    EXPECT_EQ(game.BP[1], 0) << "the attack is paid all the same";
    EXPECT_TRUE(board.HasLogLine("A1 starves in 13"));
}

TEST_F(ComputerMeal, APersonIsToldBeforeItsAmoebaIsAttacked) {
    Give(1, "sfs");
    game.BP[1] = 1;
    Person(2);
    Put(2, 1, 13);
    Script script({1});
    ComputerFeedAmoeba(1, 1, 13);
    EXPECT_THAT(board.Boxes, ElementsAre("Player 2: You are being attacked!"));
    EXPECT_TRUE(board.HasLogLine("B1 Eaten!"));
}

class ComputerParasite : public ComputerMeal {
protected:
    ComputerParasite() {
        Give(1, "par");
        for (int clan = 2; clan <= 4; ++clan) {
            Put(clan, 1, 13);
            game.BP[clan] = 1;
        }
        Feed(13, {0, 0, 1, 1});
    }
};

TEST_F(ComputerParasite, TakesTheFirstHostInClanOrder) {
    game.BP[2] = 0;
    ComputerFeedAmoeba(1, 1, 13);
    EXPECT_EQ(game.BP[3], 0);
    EXPECT_EQ(game.BP[4], 1);
    EXPECT_EQ(game.Amoeba[1][1].Damage, 0);
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 0, 0, 0));
    EXPECT_THAT(board.LogLines, ElementsAre("A1 parasitizing off of clan Player 3", "A1 eats 111 in 13"));
}

TEST_F(ComputerParasite, TakesTwoWhereOneIsNotEnough) {
    Feed(13, {0, 0, 0, 1});
    ComputerFeedAmoeba(1, 1, 13);
    EXPECT_EQ(game.BP[2], 0);
    EXPECT_EQ(game.BP[3], 0);
    EXPECT_EQ(game.BP[4], 1);
    EXPECT_THAT(board.LogLines,
                ElementsAre("A1 parasitizing off of clan Player 2 and clan Player 3", "A1 eats 111 in 13"));
}

TEST_F(ComputerParasite, TakesNoThird) {
    Feed(13, {0, 0, 0, 0});
    ComputerFeedAmoeba(1, 1, 13);
    EXPECT_EQ(game.BP[2] + game.BP[3] + game.BP[4], 3);
    EXPECT_EQ(game.Amoeba[1][1].Damage, 1);
    EXPECT_THAT(FoodOn(13), ElementsAre(0, 0, 0, 0)) << "nothing lent stays in the square";
}

TEST_F(ComputerParasite, WithoutHostsItStarves) {
    game.BP[2] = game.BP[3] = game.BP[4] = 0;
    ComputerFeedAmoeba(1, 1, 13);
    EXPECT_EQ(game.Amoeba[1][1].Damage, 1);
}

TEST_F(ComputerParasite, FightsFirstAndFeedsAsAParasiteWhenThatFails) {
    Give(1, "sfs");
    game.BP[1] = 1;
    Give(2, "def");
    Script script({1, 2, 3});
    ComputerFeedAmoeba(1, 1, 13);
    EXPECT_EQ(game.Amoeba[1][1].Damage, 0);
    EXPECT_EQ(game.BP[1], 0);
    EXPECT_EQ(game.BP[2], 0) << "spent on the defence";
    EXPECT_EQ(game.BP[3], 0) << "lent";
    EXPECT_THAT(board.LogLines, Contains("A1 parasitizing off of clan Player 3"));
}

TEST_F(ComputerParasite, WhoHasEatenAVictimDoesNotFeedAsAParasite) {
    Give(1, "sfs");
    game.BP[1] = 1;
    Script script({1});
    ComputerFeedAmoeba(1, 1, 13);
    EXPECT_EQ(game.Amoeba[1][2].Square, 0);
    EXPECT_THAT(FoodOn(13), ElementsAre(1, 1, 2, 2));
    EXPECT_EQ(game.BP[3] + game.BP[4], 2);
}

TEST_F(ComputerParasite, APersonsHostIsNotAsked) {
    Person(2);
    ComputerFeedAmoeba(1, 1, 13);
    EXPECT_THAT(board.Questions, IsEmpty());
    EXPECT_EQ(game.BP[2], 0);
}

}  // namespace
}  // namespace plasmos::testing
