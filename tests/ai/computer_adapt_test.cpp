// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "rules/computer_clan.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

constexpr std::int32_t Eater = 303110;
constexpr std::int32_t Mover = 131370;
constexpr std::int32_t Divider = -32606;

/// Genes given up: the excess follows from the genes and the UV level.
struct AdaptRow {
    std::string_view Name;
    std::int32_t Personality;
    std::vector<std::string_view> Held;
    int BP;
    int UV;
    std::string_view After;
    int BPAfter;
    int Score = 10;
};
void PrintTo(const AdaptRow& row, std::ostream* out) {
    *out << row.Name;
}
class Adapts : public GameRows<AdaptRow> {};

TEST_P(Adapts, ByGivingUpGenes) {
    NewPosition(6);
    game.CurPlayer = 2;
    game.UVLevel = GetParam().UV;
    game.Players[2].Personality = GetParam().Personality;
    game.Players[2].Score = GetParam().Score;
    game.BP[2] = GetParam().BP;
    for (const auto code : GetParam().Held) {
        Give(2, code);
    }
    ComputerAdaptEnvironment();
    EXPECT_EQ(HeldGenes(2), GetParam().After);
    EXPECT_EQ(game.BP[2], GetParam().BPAfter);
}

const AdaptRow AdaptRows[] = {
    {"the_cheapest_goes_first", Eater, {"hol", "int", "lif"}, 0, 9, "hol lif", 0},
    {"equal_prices_go_in_gene_order", Eater, {"def", "esc", "sub"}, 0, 8, "esc sub", 0},
    {"favourites_stay_until_the_rest_is_gone", Eater, {"mv1", "def", "spo"}, 0, 5, "mv1 spo", 0},
    {"division_rate_stays_longer_than_the_rest", Mover, {"hol", "lif", "div"}, 0, 5, "div", 0},
    {"division_rate_goes_before_the_favourites", Mover, {"mv1", "div", "str"}, 0, 7, "mv1 str", 0},
    {"an_excess_below_6_is_paid_by_who_has_more_than_5_bp",
     Eater,
     {"int", "def", "lif", "hol"},
     6,
     8,
     "def hol lif",
     1},
    {"an_excess_of_6_is_not_paid", Eater, {"int", "def", "lif", "hol"}, 6, 7, "hol lif", 4},
    {"five_bp_are_not_paid", Eater, {"int", "def", "lif", "hol"}, 5, 10, "hol lif", 5},
    {"before_favourites_go_all_bp_are_paid_if_they_cover_it", Eater, {"mv1", "spo", "div"}, 3, 7, "mv1 spo div", 0},
    {"favourites_go_in_gene_order_until_bp_cover_it", Eater, {"mv1", "spo", "sfs"}, 2, 6, "spo sfs", 0},
    {"ray_protection_is_no_protected_favourite", Divider, {"mv1", "ray", "div"}, 0, 3, "mv1 div", 0},
    {"ray_protection_counts_4_and_the_level_stays_higher", Eater, {"ray", "lif", "hol"}, 0, 5, "hol lif", 0},
};
INSTANTIATE_TEST_SUITE_P(ComputerAdapt, Adapts, ::testing::ValuesIn(AdaptRows), RowName());

class ComputerAdaptTest : public GameTest {};

TEST_F(ComputerAdaptTest, AScoreAbove33EndsTheLoveOfRayProtection) {
    for (const int score : {33, 34}) {
        NewPosition(6);
        game.CurPlayer = 2;
        game.UVLevel = 2;
        game.Players[2].Personality = Divider | 128;
        game.Players[2].Score = score;
        Give(2, "int");
        ComputerAdaptEnvironment();
        EXPECT_EQ(game.Players[2].Personality, score == 33 ? (Divider | 128) : (Divider & 0xFFF7F));
    }
}

TEST_F(ComputerAdaptTest, LossesAreAnnouncedByBoxesAndInFastModeByTheLog) {
    for (const bool fast : {false, true}) {
        NewPosition(6);
        game.FastMode = fast;
        game.CurPlayer = 2;
        game.UVLevel = 2;
        game.Players[2].Personality = Eater;
        Give(2, {"int", "mv1", "spo"});
        ScriptedBoard board;
        ComputerAdaptEnvironment();
        const std::vector<std::string> lines{"Player 2 loses: Intelligence", "Player 2 discards: Movement 1",
                                             "Player 2 discards: Spores"};
        EXPECT_EQ(board.Boxes, fast ? std::vector<std::string>() : lines);
        EXPECT_EQ(board.LogLines, fast ? lines : std::vector<std::string>());
        game.FastMode = false;
    }
}

}  // namespace
}  // namespace plasmos::testing
