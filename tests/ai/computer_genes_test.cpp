// SPDX-License-Identifier: GPL-3.0-or-later
#include "ai/computer_genes.h"

#include <gmock/gmock.h>

#include "rules/computer_clan.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

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
INSTANTIATE_TEST_SUITE_P(ComputerGenes, Adapts, ::testing::ValuesIn(AdaptRows), RowName());

TEST_F(ComputerGenesTest, AScoreAbove33EndsTheLoveOfRayProtection) {
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

TEST_F(ComputerGenesTest, LossesAreAnnouncedByBoxesAndInFastModeByTheLog) {
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

/// How many amoebas a clan divides with a price of 6.
struct DivideRow {
    std::string_view Name;
    int Turn;
    int BP;
    int Pieces;
    std::vector<int> Coin;
    int Created;
    int BPAfter;
};
void PrintTo(const DivideRow& row, std::ostream* out) {
    *out << row.Name;
}
class Divides : public GameRows<DivideRow> {};

TEST_P(Divides, AsManyAsItMay) {
    NewPosition(4);
    game.CurPlayer = 2;
    game.Turn = GetParam().Turn;
    game.BP[2] = GetParam().BP;
    for (int piece = 1; piece <= GetParam().Pieces; ++piece) {
        Put(2, piece, 2 * piece - 1);
    }
    if (!GetParam().Coin.empty()) {
        game.Generator.Seed(1, 1);
    }
    const int before = game.AmoebaCount[2];
    if (GetParam().Created == 0) {
        const Script rolls(GetParam().Coin);
        ComputerDivide(6);
    } else {
        ComputerDivide(6);
    }
    EXPECT_EQ(game.AmoebaCount[2], before + GetParam().Created);
    EXPECT_EQ(game.BP[2], GetParam().BPAfter);
}

const DivideRow DivideRows[] = {
    {"turn_1_tails_divides_nothing_whatever_the_bp", 1, 60, 2, {2}, 0, 60},
    {"turns_2_to_4_make_one_less", 4, 18, 2, {}, 2, 6},
    {"one_is_not_lowered", 3, 6, 2, {}, 1, 0},
    {"turn_5_makes_all", 5, 18, 2, {}, 3, 0},
    {"free_places_limit_it", 5, 60, 6, {}, 1, 54},
    {"a_full_clan_divides_nothing", 5, 60, 7, {}, 0, 60},
    {"too_little_bp", 5, 5, 2, {}, 0, 5},
    {"the_first_is_free_for_a_clan_without_amoebas", 5, 12, 0, {}, 2, 6},
};
INSTANTIATE_TEST_SUITE_P(ComputerDivision, Divides, ::testing::ValuesIn(DivideRows), RowName());

TEST_F(ComputerGenesTest, HeadsInTurn1DividesOneWhateverTheBp) {
    NewPosition(4);
    game.CurPlayer = 2;
    game.Turn = 1;
    game.BP[2] = 60;
    Put(2, 1, 1);
    Feed(7, {3, 0, 3, 3});
    const Script rolls({1, 24, 7, 5});
    game.Food[24] = {};
    ComputerDivide(6);
    EXPECT_EQ(game.Amoeba[2][2].Square, 7) << "24 holds no food for it, 7 does";
    EXPECT_EQ(game.Amoeba[2][2].Slot, 5);
    EXPECT_EQ(game.BP[2], 54);
}

TEST_F(ComputerGenesTest, A23rdFailedDrawLeavesAnySquareWithoutItsOwn) {
    NewPosition(4, 3, 5, "2:");
    Put(2, 1, 1);
    std::vector<int> rolls(23, 9);
    rolls.insert(rolls.end(), {24, 2, 1, 9});
    const Script script(rolls);
    EXPECT_EQ(ComputerPlaceSquare(2), 9) << "24 is off the board, 2 a block, 1 its own";
}

TEST_F(ComputerGenesTest, ALargerBoardIsNeverEnteredBeyondSquare24) {
    NewPosition(4, 6, 6);
    Give(2, "spo");
    for (int square = 1; square <= 36; ++square) {
        Feed(square, {9, 9, 9, 9});
    }
    game.Generator.Seed(7, 7);
    for (int i = 0; i < 200; ++i) {
        EXPECT_LE(ComputerPlaceSquare(2), 24);
    }
}

TEST_F(ComputerGenesTest, BesideItsAmoebasItLooksForFoodAndThenTakesAny) {
    NewPosition(4);
    Put(2, 1, 1);
    Put(2, 2, 25);
    Feed(6, {1, 0, 1, 1});
    {
        const Script script({13, 2, 6});
        EXPECT_EQ(ComputerPlaceBeside(2), 6) << "13 is not beside, 2 holds no food";
    }
    std::vector<int> rolls(23, 2);
    rolls.push_back(3);
    const Script script(rolls);
    EXPECT_EQ(ComputerPlaceBeside(2), 20) << "the third of 2, 6, 20, 24";
}

}  // namespace
}  // namespace plasmos::testing
