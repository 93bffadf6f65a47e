// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <functional>

#include "rules/computer_clan.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

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

}  // namespace
}  // namespace plasmos::testing
