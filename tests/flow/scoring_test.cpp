// SPDX-License-Identifier: GPL-3.0-or-later
#include "flow/scoring.h"

#include <gmock/gmock.h>
#include <rapidcheck.h>

#include <set>

#include "flow/play_game.h"
#include "model/turn_points.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

struct PointsRow {
    std::string_view Name;
    int Clans;
    std::vector<int> PointsByAmoebas;  ///< for 0, 1, 2, ... amoebas
};

void PrintTo(const PointsRow& row, std::ostream* out) {
    *out << row.Name;
}

class AmoebaPoints : public GameRows<PointsRow> {};

TEST_P(AmoebaPoints, ByCount) {
    NewPosition(GetParam().Clans);
    FillScoreTables();
    for (int count = 0; count <= 7; ++count) {
        EXPECT_EQ(game.ScoreByAmoebaCount[count], GetParam().PointsByAmoebas[static_cast<std::size_t>(count)]) << count;
        constexpr int genes[] = {0, 0, 0, 1, 2, 3, 4, 4};
        EXPECT_EQ(game.ScoreByGenes[count], genes[count]) << count;
    }
}

const PointsRow PointsRows[] = {
    {"three_clans", 3, {0, 0, 0, 1, 2, 4, 5, 6}},
    {"four_clans", 4, {0, 0, 0, 1, 2, 4, 5, 6}},
    {"five_clans", 5, {0, 0, 1, 2, 4, 5, 6, 7}},
    {"six_clans", 6, {0, 0, 1, 2, 4, 5, 6, 7}},
};
INSTANTIATE_TEST_SUITE_P(Scoring, AmoebaPoints, ::testing::ValuesIn(PointsRows), RowName());

struct GeneCountRow {
    std::string_view Name;
    std::vector<std::string_view> Held;
    int Counted;
};

void PrintTo(const GeneCountRow& row, std::ostream* out) {
    *out << row.Name;
}

class GeneCounts : public GameRows<GeneCountRow> {};

TEST_P(GeneCounts, ForTheScore) {
    NewPosition(6);
    for (const auto code : GetParam().Held) {
        Give(2, code);
    }
    EXPECT_EQ(CountScoredGenes(2), GetParam().Counted);
}

const GeneCountRow GeneCountRows[] = {
    {"no_gene_counts_0", {}, 0},
    {"ray_protection_alone_counts_0", {"ray"}, 0},
    {"ray_protection_beside_others_counts_nothing", {"int", "ray", "mv1"}, 2},
    {"seven_genes_count_7", {"int", "mv1", "spo", "spe", "def", "esc", "sub"}, 7},
    {"nine_genes_count_7", {"int", "mv1", "spo", "spe", "def", "esc", "sub", "str", "ten"}, 7},
    {"nineteen_genes_count_7",
     {"int", "mv1", "spo", "spe", "def", "esc", "sub", "str", "ten", "hol", "lif", "fru", "sfs", "par", "div", "per",
      "mv2", "agg", "arm"},
     7},
};
INSTANTIATE_TEST_SUITE_P(Scoring, GeneCounts, ::testing::ValuesIn(GeneCountRows), RowName());

/// Scores before and after a scoring in which only clan 1 advances, by its amoebas (4 clans, 4 pieces: 2
/// steps; 3 pieces: 1 step; none: 0).
struct AdvanceRow {
    std::string_view Name;
    int Pieces;
    std::vector<int> Before;
    int After;
};

void PrintTo(const AdvanceRow& row, std::ostream* out) {
    *out << row.Name;
}

class Advances : public GameRows<AdvanceRow> {};

TEST_P(Advances, JumpOverTakenSpaces) {
    NewPosition(4);
    FillScoreTables();
    game.Turn = 1;
    for (int clan = 1; clan <= 4; ++clan) {
        game.Players[clan].Score = GetParam().Before[static_cast<std::size_t>(clan - 1)];
    }
    for (int piece = 1; piece <= GetParam().Pieces; ++piece) {
        Put(1, piece, piece);
    }
    ScorePhase();
    EXPECT_EQ(game.Players[1].Score, GetParam().After);
}

const AdvanceRow AdvanceRows[] = {
    {"one_step_to_a_free_space", 3, {5, 9, 11, 20}, 6},
    {"landing_on_a_taken_space_jumps_one_on", 3, {5, 6, 11, 20}, 7},
    {"jumps_over_two_taken_spaces_in_a_row", 3, {5, 6, 7, 20}, 8},
    {"jumps_over_three_whatever_the_clan_numbers", 3, {5, 8, 7, 6}, 9},
    {"every_single_step_jumps", 4, {5, 6, 8, 20}, 9},
    {"no_step_and_nobody_there_stays", 0, {5, 6, 7, 20}, 5},
    {"no_step_still_leaves_a_shared_space", 0, {5, 5, 9, 20}, 6},
    {"no_step_moves_one_for_every_clan_that_shares", 0, {5, 5, 6, 20}, 7},
};
INSTANTIATE_TEST_SUITE_P(Scoring, Advances, ::testing::ValuesIn(AdvanceRows), RowName());

class ScoringTest : public GameTest {};

TEST_F(ScoringTest, TheLeaderIsFirstInTheNextOrderOfPlay) {
    NewPosition(4);
    FillScoreTables();
    game.Turn = 3;
    game.Players[1].Score = 5;
    game.Players[2].Score = 17;
    game.Players[3].Score = 9;
    game.Players[4].Score = 11;
    ScorePhase();
    EXPECT_THAT(std::vector<int>(game.PlayOrder.begin() + 1, game.PlayOrder.begin() + 5),
                ::testing::ElementsAre(2, 4, 3, 1));
}

TEST_F(ScoringTest, ClansAreScoredInTheOrderOfPlay) {
    NewPosition(3);
    FillScoreTables();
    game.Turn = 1;
    game.PlayOrder[1] = 3;
    game.PlayOrder[2] = 1;
    game.PlayOrder[3] = 2;
    game.Players[1].Score = 10;
    game.Players[2].Score = 20;
    game.Players[3].Score = 9;
    for (const int clan : {1, 3}) {
        for (int piece = 1; piece <= 3; ++piece) {
            Put(clan, piece, piece);
        }
    }
    ScorePhase();
    EXPECT_EQ(game.Players[3].Score, 11) << "clan 3 goes first and jumps over clan 1 on 10";
    EXPECT_EQ(game.Players[1].Score, 12) << "clan 1 then jumps over clan 3 on 11";
}

struct VictoryRow {
    std::string_view Name;
    bool Victory;
    int Score;
    bool Over;
};

void PrintTo(const VictoryRow& row, std::ostream* out) {
    *out << row.Name;
}

class Victories : public GameRows<VictoryRow> {};

TEST_P(Victories, EndTheGame) {
    NewPosition(3);
    FillScoreTables();
    game.Turn = 3;
    game.Menu.victorymen = GetParam().Victory;
    game.Players[2].Score = GetParam().Score;
    Feed(4, {1, 2, 3});
    ScorePhase();
    EXPECT_EQ(game.GameOver, GetParam().Over);
    EXPECT_EQ(game.FoodHistory[4][2][3], 2) << "the food of the turn is recorded all the same";
    EXPECT_EQ(game.FoodHistory[4][2][2], 0);
}

const VictoryRow VictoryRows[] = {
    {"forty_two_points_end_it", true, 42, true},
    {"more_than_42_end_it", true, 55, true},
    {"forty_one_do_not", true, 41, false},
    {"without_the_limit_nothing_does", false, 60, false},
};
INSTANTIATE_TEST_SUITE_P(Scoring, Victories, ::testing::ValuesIn(VictoryRows), RowName());

TEST_F(ScoringTest, ScoresAlwaysDifferAndNeverFall) {
    EXPECT_TRUE(rc::check([] {
        const int clans = *rc::gen::inRange(3, 7);
        NewPosition(clans);
        FillScoreTables();
        game.Turn = *rc::gen::inRange(1, 11);
        std::vector<int> before(static_cast<std::size_t>(clans) + 1);
        for (int clan = 1; clan <= clans; ++clan) {
            game.Players[clan].Score = before[static_cast<std::size_t>(clan)] = 3 * clan + *rc::gen::inRange(0, 3);
            const int pieces = *rc::gen::inRange(0, game.MaxAmoeba + 1);
            for (int piece = 1; piece <= pieces; ++piece) {
                Put(clan, piece, *rc::gen::inRange(1, 26));
            }
        }
        ScorePhase();
        std::set<int> scores;
        for (int place = 1; place <= clans; ++place) {
            const int clan = game.PlayOrder[place];
            scores.insert(game.Players[clan].Score);
            RC_ASSERT(game.Players[clan].Score >= before[static_cast<std::size_t>(clan)]);
            RC_ASSERT(place == 1 || game.Players[game.PlayOrder[place - 1]].Score > game.Players[clan].Score);
        }
        RC_ASSERT(static_cast<int>(scores.size()) == clans);
    }));
}

TEST_F(ScoringTest, TheWinnerIsTheClanAtTheHeadOfTheOrder) {
    NewPosition(4);
    game.PlayOrder[1] = 4;
    game.PlayOrder[4] = 1;
    ScriptedBoard board;
    AnnounceWinner();
    EXPECT_THAT(board.Boxes, ::testing::ElementsAre("Clan Player 4 wins!"));
}

TEST_F(ScoringTest, InAnUnattendedGameTheWinnerIsALineOfTheLog) {
    NewPosition(3);
    ScriptedBoard board;
    game.AutoPlay = true;
    AnnounceWinner();
    EXPECT_THAT(board.Boxes, ::testing::IsEmpty());
    EXPECT_TRUE(board.HasLogLine("Clan Player 1 wins!"));
}

}  // namespace
}  // namespace plasmos::testing
