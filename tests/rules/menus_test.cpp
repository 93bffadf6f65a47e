// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/menus.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>

#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;

/// The menus that are legal for a clan, and some that look as if they were.
struct LegalRow {
    std::string_view Name;
    int Clans;
    std::vector<std::string_view> Genes;
    std::string_view Legal;  ///< the legal menus as they are shown
    std::vector<int> Yes;
    std::vector<int> No;
};

void PrintTo(const LegalRow& row, std::ostream* out) {
    *out << row.Name;
}

class LegalMenus : public GameRows<LegalRow> {};

TEST_P(LegalMenus, AreThese) {
    const LegalRow& row = GetParam();
    NewPosition(row.Clans);
    for (const auto code : row.Genes) {
        Give(3, code);
    }
    Give(1, {"sub", "fru"});
    game.CurPlayer = 3;
    for (const int menu : row.Yes) {
        EXPECT_TRUE(LegalEat(menu)) << menu;
    }
    for (const int menu : row.No) {
        EXPECT_FALSE(LegalEat(menu)) << menu;
    }
    EXPECT_EQ(game.LegalMenus.View(), row.Legal);
}

TEST_P(LegalMenus, AreListedAsTheyAreShown) {
    const LegalRow& row = GetParam();
    NewPosition(row.Clans);
    for (const auto code : row.Genes) {
        Give(3, code);
    }
    game.CurPlayer = 1;
    std::string shown;
    for (const int menu : LegalMenusOf(3)) {
        shown += Concat(" ", menu, ",");
    }
    EXPECT_EQ(shown, row.Legal);
}

// clang-format off
const LegalRow LegalRows[] = {
    {"three_clans_eat_21", 3, {}, " 21,", {21}, {0, 1, 2, 4, 11, 12, 31, 111, 211}},
    {"three_clans_with_substitution", 3, {"sub"}, " 21, 4, 31,", {21, 4, 31}, {3, 5, 1, 11, 22}},
    {"three_clans_with_frugality", 3, {"fru"}, " 21, 2, 3, 11,", {21, 2, 3, 11}, {1, 4, 31, 0}},
    {"three_clans_with_both", 3, {"sub", "fru"}, " 21, 4, 31, 2, 3, 11,", {21, 4, 31, 2, 3, 11}, {1, 22, 41, 5}},
    {"four_clans_eat_111", 4, {}, " 111,", {111}, {11, 1, 3, 21, 1111, 0}},
    {"four_clans_with_substitution", 4, {"sub"}, " 111, 22, 31,", {111, 22, 31}, {3, 11, 21, 2}},
    {"four_clans_with_frugality", 4, {"fru"}, " 111, 3, 11, 21,", {111, 3, 11, 21}, {22, 31, 2, 1}},
    {"four_clans_with_both", 4, {"sub", "fru"}, " 111, 22, 31, 3, 11, 21,", {111, 22, 31, 3, 11, 21}, {4, 211, 0}},
    {"five_clans_eat_1111", 5, {}, " 1111,", {1111}, {111, 11111, 211, 0}},
    {"five_clans_with_substitution", 5, {"sub"}, " 1111, 221, 311,", {1111, 221, 311}, {22, 31, 111, 211, 321}},
    {"five_clans_with_frugality", 5, {"fru"}, " 1111, 22, 31, 111, 21, 211,", {1111, 22, 31, 111, 21, 211},
     {221, 311, 11, 3, 2}},
    {"five_clans_with_both", 5, {"sub", "fru"}, " 1111, 221, 311, 22, 31, 111, 21, 211,",
     {1111, 221, 311, 22, 31, 111, 21, 211}, {11, 222, 11111}},
    {"six_clans_eat_like_five", 6, {}, " 1111,", {1111}, {11111, 111}},
    {"six_clans_with_substitution_like_five", 6, {"sub"}, " 1111, 221, 311,", {1111, 221, 311}, {22, 2111, 11111}},
    {"six_clans_with_frugality_like_five", 6, {"fru"}, " 1111, 22, 31, 111, 21, 211,", {22, 31, 111, 21, 211, 1111},
     {221, 11}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Legal, LegalMenus, ::testing::ValuesIn(LegalRows), RowName());

/// Amounts and colours before and after sorting; the lists end at the first 0.
struct SortRow {
    std::string_view Name;
    int Clans;
    std::vector<int> Amounts, Colours;
    std::vector<int> SortedAmounts, SortedColours;
    int Menu;
};

void PrintTo(const SortRow& row, std::ostream* out) {
    *out << row.Name;
}

class SortingMenus : public GameRows<SortRow> {};

TEST_P(SortingMenus, PutsTheLargestFirst) {
    const SortRow& row = GetParam();
    NewPosition(row.Clans);
    Table<int, 0, 7> amounts, colours;
    for (std::size_t i = 0; i < row.Amounts.size(); ++i) {
        amounts[static_cast<int>(i) + 1] = row.Amounts[i];
        colours[static_cast<int>(i) + 1] = row.Colours[i];
    }
    EXPECT_EQ(SortMenuDigits(amounts, colours), row.Menu);
    for (std::size_t i = 0; i < row.Amounts.size(); ++i) {
        EXPECT_EQ(amounts[static_cast<int>(i) + 1], row.SortedAmounts[i]) << i;
        EXPECT_EQ(colours[static_cast<int>(i) + 1], row.SortedColours[i]) << i;
    }
}

// clang-format off
const SortRow SortRows[] = {
    {"3_1_and_5_make_531", 4, {3, 1, 5}, {2, 3, 4}, {5, 3, 1}, {4, 2, 3}, 531},
    {"nothing_makes_0", 4, {}, {}, {}, {}, 0},
    {"one_colour", 4, {4}, {3}, {4}, {3}, 4},
    {"equal_amounts_keep_their_order", 5, {2, 2, 2, 1}, {1, 3, 4, 5}, {2, 2, 2, 1}, {1, 3, 4, 5}, 2221},
    {"a_swap_puts_the_first_behind_its_equal", 5, {1, 1, 2}, {1, 3, 4}, {2, 1, 1}, {4, 3, 1}, 211},
    {"five_colours_of_six_clans", 6, {1, 2, 3, 4, 5}, {2, 3, 4, 5, 6}, {5, 4, 3, 2, 1}, {6, 5, 4, 3, 2}, 54321},
    {"the_first_0_ends_the_list", 5, {1, 0, 3}, {1, 2, 3}, {1, 0, 3}, {1, 2, 3}, 1},
    {"two_colours_of_three_clans", 3, {1, 2}, {2, 3}, {2, 1}, {3, 2}, 21},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Sorted, SortingMenus, ::testing::ValuesIn(SortRows), RowName());

class Menus : public GameTest {};

TEST_F(Menus, TheEatersOwnColourIsNeverCounted) {
    NewPosition(3);
    Feed(8, {9, 2, 1});
    EXPECT_EQ(SuggestMenu(8, 1), 21);
    EXPECT_THAT(std::vector<int>(game.MenuColours.begin() + 1, game.MenuColours.begin() + 4), ElementsAre(2, 3, 0));
    EXPECT_EQ(SuggestMenu(8, 2), 21);
    EXPECT_THAT(std::vector<int>(game.MenuColours.begin() + 1, game.MenuColours.begin() + 4), ElementsAre(1, 3, 0));
    Feed(8, {9, 0, 1});
    EXPECT_EQ(SuggestMenu(8, 1), 0);
}

TEST_F(Menus, TenPiecesCountAsNine) {
    NewPosition(3);
    Feed(8, {0, 14, 1});
    EXPECT_EQ(SuggestMenu(8, 1), 21);
    EXPECT_EQ(game.MenuAmounts[1], 9);
    EXPECT_EQ(game.MenuAmounts[2], 1);
    Give(1, "sub");
    Feed(8, {0, 10, 0});
    EXPECT_EQ(SuggestMenu(8, 1), 4) << "ten of one colour are 9, not 10";
}

TEST_F(Menus, TheWorkListsAreClearedForEachSquare) {
    NewPosition(6);
    Feed(8, {1, 1, 1, 1, 1, 1});
    SuggestMenu(8, 1);
    Feed(9, {0, 3, 0, 0, 0, 0});
    SuggestMenu(9, 1);
    EXPECT_EQ(game.MenuAmounts[1], 3);
    for (int place = 2; place <= 7; ++place) {
        EXPECT_EQ(game.MenuAmounts[place], 0);
        EXPECT_EQ(game.MenuColours[place], 0);
    }
}

TEST_F(Menus, LookingAheadLeavesTheWorkListsAlone) {
    NewPosition(4);
    Feed(8, {0, 3, 2, 1});
    SuggestMenu(8, 1);
    CanEat(9, 1);
    EXPECT_EQ(game.MenuAmounts[1], 3);
    EXPECT_EQ(game.MenuColours[3], 4);
}

TEST_F(Menus, EqualAmountsAreOrderedByTheScoresOfTheirOwners) {
    NewPosition(5);
    game.Players[2].Score = 3;
    game.Players[3].Score = 9;
    game.Players[4].Score = 5;
    game.Players[5].Score = 20;
    Feed(8, {0, 2, 2, 2, 1});
    SuggestMenu(8, 1);
    OrderEqualAmounts();
    EXPECT_THAT(std::vector<int>(game.MenuColours.begin() + 1, game.MenuColours.begin() + 5), ElementsAre(3, 4, 2, 5));
    EXPECT_THAT(std::vector<int>(game.MenuAmounts.begin() + 1, game.MenuAmounts.begin() + 5), ElementsAre(2, 2, 2, 1));
}

}  // namespace
}  // namespace plasmos::testing
