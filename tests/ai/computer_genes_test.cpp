// SPDX-License-Identifier: GPL-3.0-or-later
#include "ai/computer_genes.h"

#include <gmock/gmock.h>

#include "rules/computer_clan.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

constexpr std::int32_t Eater = 303110;
constexpr std::int32_t Mover = 131370;
constexpr std::int32_t Divider = -32606;
constexpr std::int32_t Eccentric = 1616;
constexpr std::int32_t Miser = 20482;

class ComputerGenesTest : public GameTest {};

TEST_F(ComputerGenesTest, FavouritesFollowFromTheMasks) {
    NewPosition(6);
    const std::pair<std::int32_t, std::string> rows[] = {{Eater, "mv1 spo sfs div agg"},
                                                         {Mover, "mv1 spe esc str mv2"},
                                                         {Divider, "mv1 esc ray div per mv2 agg arm"},
                                                         {Eccentric, "def sub ten hol"},
                                                         {Miser, "mv1 fru par"}};
    for (const auto& [mask, favourites] : rows) {
        game.Players[1].Personality = mask;
        std::string codes;
        for (int gene = 1; gene <= GeneCount; ++gene) {
            if (IsFavourite(1, gene)) {
                codes += Concat(codes.empty() ? "" : " ", GeneCodes[gene]);
            }
        }
        EXPECT_EQ(codes, favourites);
    }
}

/// A computer clan's purchases: six clans, difficulty Easy unless said, six pieces on the board unless
/// said, UV values that sum to 100.
struct BuyRow {
    std::string_view Name;
    std::int32_t Personality;
    int Turn;
    int BP;
    std::vector<std::string_view> Held;
    std::vector<int> Rolls;
    std::string_view After;
    int BPAfter;
    bool Normal = false;
    int Pieces = 6;
};
void PrintTo(const BuyRow& row, std::ostream* out) {
    *out << row.Name;
}
class Buys : public GameRows<BuyRow> {};

TEST_P(Buys, ByPersonality) {
    const BuyRow& row = GetParam();
    NewPosition(6);
    game.CurPlayer = 2;
    game.Turn = row.Turn;
    game.Menu.normmen = row.Normal;
    game.Players[2].Personality = row.Personality;
    game.BP[2] = row.BP;
    for (int card = 1; card <= 10; ++card) {
        game.EnvDeck[card].UV = 10;
    }
    for (int piece = 1; piece <= row.Pieces; ++piece) {
        Put(2, piece, piece);
    }
    for (const auto code : row.Held) {
        Give(2, code);
    }
    const Script rolls(row.Rolls);
    ComputerBuyGenes();
    EXPECT_EQ(HeldGenes(2), row.After);
    EXPECT_EQ(game.BP[2], row.BPAfter);
}

const BuyRow BuyRows[] = {
    {"in_turn_1_the_first_purchase_ends_the_favourites", Eater, 1, 7, {}, {}, "mv1", 4},
    {"in_turn_1_a_purchase_skips_the_fallback", Mover, 1, 8, {"spe"}, {20, 20, 20, 20, 20}, "mv1 spe", 5},
    {"in_turn_2_every_affordable_favourite_is_bought", Eater, 2, 8, {}, {}, "mv1 spo", 2},
    {"a_favourite_that_waits_for_its_lower_gene_comes_after_it",
     Eater,
     6,
     11,
     {"mv1", "spo", "div"},
     {},
     "mv1 spo div agg",
     0},
    {"the_fallback_is_persistence_first", Miser, 2, 4, {"spe"}, {}, "mv1 spe", 1},
    {"a_clan_that_can_buy_no_favourite_falls_back", Miser, 2, 4, {"mv1", "spe"}, {}, "mv1 per", 0},
    {"the_fallback_takes_only_one_and_knows_no_cap", Miser, 1, 9, {"mv1", "spe", "sfs"}, {}, "mv1 sfs per", 5},
    {"movement_2_is_no_fallback_on_normal", Miser, 2, 5, {"mv1"}, {20, 20, 20, 20, 20}, "mv1", 5, true},
    {"movement_2_is_a_fallback_on_easy", Miser, 2, 5, {"mv1"}, {}, "mv2", 0},
    {"a_mover_with_all_of_its_genes_has_no_fallback",
     Mover,
     3,
     6,
     {"mv1", "spe", "esc", "str", "mv2"},
     {},
     "mv1 spe esc str mv2",
     6},
    {"draws_end_when_the_reserve_is_short",
     Eccentric,
     3,
     10,
     {"def", "sub", "ten", "hol"},
     {},
     "def sub ten hol",
     10,
     false,
     5},
    {"favourites_are_bought_in_gene_order", Divider, 2, 8, {"mv1"}, {}, "mv1 esc", 4},
    {"intelligence_from_turn_6", Miser, 6, 3, {"mv1", "fru", "par"}, {}, "int mv1 fru par", 1},
    {"no_intelligence_in_turn_5", Miser, 5, 3, {"mv1", "fru", "par"}, {}, "mv1 fru par", 3},
    {"no_intelligence_with_one_bp_over_the_reserve",
     Miser,
     6,
     7,
     {"mv1", "fru", "par"},
     {},
     "mv1 fru par",
     7,
     false,
     5},
    {"in_turn_10_the_clan_spends_what_it_has",
     Miser,
     10,
     6,
     {"mv1", "fru", "par"},
     {20, 20, 20, 20, 20},
     "int mv1 spo fru par",
     1},
    {"in_turn_10_the_last_spending_may_buy_ray_protection",
     Miser,
     10,
     7,
     {"int", "mv1", "spo", "spe", "def", "fru", "par"},
     {8, 8, 8, 8, 8},
     "int mv1 spo spe def esc fru par",
     3},
};
INSTANTIATE_TEST_SUITE_P(ComputerGenes, Buys, ::testing::ValuesIn(BuyRows), RowName());

struct CapRow {
    std::string_view Name;
    int Turn;
    bool Victory;
    int LeaderScore;
    int Cap;
};
void PrintTo(const CapRow& row, std::ostream* out) {
    *out << row.Name;
}
class Caps : public GameRows<CapRow> {};

TEST_P(Caps, Spending) {
    NewPosition(4);
    game.Turn = GetParam().Turn;
    game.Menu.victorymen = GetParam().Victory;
    game.PlayOrder[1] = 3;
    game.PlayOrder[3] = 1;
    game.Players[3].Score = GetParam().LeaderScore;
    for (int card = 0; card <= 10; ++card) {
        game.EnvDeck[card].UV = card == 0 ? 99 : 10;
    }
    EXPECT_EQ(SpendingCap(), GetParam().Cap);
}

const CapRow CapRows[] = {
    {"turn_1_is_the_mean_of_the_cards_to_come", 1, false, 5, 10},
    {"turn_4_is_the_sum_by_the_turns_left_rounded_down", 4, false, 5, 14},
    {"turn_9", 9, false, 5, 50},
    {"turn_10_is_50", 10, false, 5, 50},
    {"a_leader_close_to_victory_makes_it_50", 3, true, 38, 50},
    {"a_leader_at_37_does_not", 3, true, 37, 12},
    {"without_the_limit_no_leader_does", 3, false, 41, 12},
};
INSTANTIATE_TEST_SUITE_P(ComputerGenes, Caps, ::testing::ValuesIn(CapRows), RowName());

}  // namespace
}  // namespace plasmos::testing
