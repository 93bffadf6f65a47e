// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <functional>

#include "rules/aggression.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

constexpr int Spot = 9;

/// B1 of a computer clan escapes from square 13. Its clan can eat in squares that `Set` feeds.
struct EscapeRow {
    std::string_view Name;
    std::vector<std::string_view> Genes;
    int BP;
    std::function<void()> Set;
    std::vector<int> Rolls;
    int Lands;
    int Paid;
};

void PrintTo(const EscapeRow& row, std::ostream* out) {
    *out << row.Name;
}

class ComputerEscape : public GameRows<EscapeRow> {};

TEST_P(ComputerEscape, FleesByTheRules) {
    const EscapeRow& row = GetParam();
    NewPosition(4);
    Put(1, 1, 13);
    Put(2, 1, 13);
    Give(2, "esc");
    for (const auto code : row.Genes) {
        Give(2, code);
    }
    game.BP[2] = row.BP;
    row.Set();
    ScriptedBoard board;
    {
        Script script(row.Rolls);
        EXPECT_EQ(EscapeAmoeba(2, 1), row.Lands != 13);
    }
    EXPECT_EQ(game.Amoeba[1][2].Square, row.Lands);
    EXPECT_EQ(row.BP - game.BP[2], row.Paid);
    EXPECT_EQ(board.HasLogLine(Concat("B1 escaped to ", row.Lands, "!")), row.Lands != 13);
}

void Nothing() {}

/// Pieces of clan 2 stand in squares.
void Companions(std::initializer_list<int> squares) {
    int amoeba = 1;
    for (const int square : squares) {
        Put(2, ++amoeba, square);
    }
}

/// Clan 2 can eat in squares.
void Meals(std::initializer_list<int> squares) {
    for (const int square : squares) {
        Feed(square, {1, 0, 1, 1});
    }
}

// clang-format off
const EscapeRow EscapeRows[] = {
    {"a_die_decides", {}, 1, Nothing, {3, Spot}, 12, 1},
    {"a_5_fails_and_is_paid", {}, 1, Nothing, {5}, 13, 1},
    {"against_a_block_it_fails", {}, 1, [] { SetBoard(5, 5, "12:"); }, {3}, 13, 1},
    {"without_BP_it_cannot_escape", {}, 0, Nothing, {}, 13, 0},
    {"streamlining_without_BP_cannot_escape_either", {"str"}, 0, Nothing, {}, 13, 0},
    {"streamlining_escapes_free", {"str"}, 1, Nothing, {1, Spot}, 14, 0},
    {"at_its_limit_it_does_not_try", {}, 3, [] { game.Amoeba[1][2].Damage = 2; }, {}, 13, 0},
    {"a_longer_life_still_tries", {"lif"}, 3, [] { game.Amoeba[1][2].Damage = 2; }, {1, Spot}, 14, 1},
    {"a_6_takes_a_meal", {}, 1, [] { Meals({18}); }, {6, Spot}, 18, 1},
    {"a_6_without_a_meal_takes_the_first_on_the_list", {}, 1, Nothing, {6, Spot}, 12, 1},
    {"a_6_passes_over_its_own_clan", {}, 1, [] { Companions({12, 14}); }, {6, Spot}, 8, 1},
    {"a_meal_beside_its_own_clan_is_none", {}, 1, [] { Companions({18}); Meals({18}); }, {6, Spot}, 12, 1},
    {"with_its_clan_all_around_a_die_of_4_decides", {}, 1, [] { Companions({8, 12, 14, 18}); Meals({8}); },
     {6, 2, Spot}, 18, 1},
    {"movement_2_needs_no_die", {"mv2"}, 1, [] { Meals({14, 8}); }, {Spot}, 14, 1},
    {"movement_2_all_around", {"mv2"}, 1, [] { Companions({8, 12, 14, 18}); }, {4, Spot}, 8, 1},
    {"movement_1_takes_the_meal_of_two", {"mv1"}, 1, [] { Meals({8}); }, {2, 4, Spot}, 8, 1},
    {"movement_1_takes_the_first_where_both_are_alike", {"mv1"}, 1, Nothing, {2, 4, Spot}, 18, 1},
    {"movement_1_passes_over_its_own_clan", {"mv1"}, 1, [] { Companions({18}); }, {2, 4, Spot}, 8, 1},
    {"movement_1_passes_over_its_own_square", {"mv1"}, 1, [] { Meals({13}); }, {5, 4, Spot}, 8, 1},
    {"movement_1_with_two_bad_squares_takes_the_first", {"mv1"}, 1, [] { Companions({8, 18}); }, {4, 2, Spot}, 8, 1},
    {"movement_1_with_two_fives_fails", {"mv1"}, 1, Nothing, {5, 5}, 13, 1},
    {"movement_1_first_roll_6_has_no_second", {"mv1"}, 1, [] { Meals({18}); }, {6, Spot}, 18, 1},
    {"movement_1_second_roll_6_chooses_freely", {"mv1"}, 1, [] { Meals({8}); }, {1, 6, Spot}, 8, 1},
    {"movement_1_with_equal_rolls", {"mv1"}, 1, [] { Meals({8}); }, {1, 1, Spot}, 14, 1},
    {"speed_has_no_second_attempt", {"spe"}, 3, Nothing, {5}, 13, 1},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Escape, ComputerEscape, ::testing::ValuesIn(EscapeRows), RowName());

}  // namespace
}  // namespace plasmos::testing
