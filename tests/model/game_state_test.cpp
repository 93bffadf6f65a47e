// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/game_state.h"

#include <gmock/gmock.h>

#include <functional>

#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

/// A look at a table outside its bounds.
struct BoundsRow {
    std::string_view Name;
    std::function<void()> Look;
};

void PrintTo(const BoundsRow& row, std::ostream* out) {
    *out << row.Name;
}

class Bounds : public GameRows<BoundsRow> {};

TEST_P(Bounds, AreGuardedByASubscriptError) {
    NewPosition(6);
    try {
        GetParam().Look();
        FAIL() << "nothing was raised";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number, 9);
        EXPECT_STREQ(error.what(), "Subscript out of range");
    }
}

const BoundsRow BoundsRows[] = {
    {"clan_7", [] { game.Players[7].Score = 1; }},
    {"clan_below_0", [] { game.BP[-1] = 1; }},
    {"place_7", [] { ClanAtPlace(7); }},
    {"piece_8", [] { game.Amoeba[8][1].Square = 1; }},
    {"piece_of_clan_7", [] { game.Amoeba[1][7].Square = 1; }},
    {"square_37", [] { game.Food[37][1] = 1; }},
    {"square_below_0", [] { game.Food[-1][1] = 1; }},
    {"food_of_clan_7", [] { game.Food[1][7] = 1; }},
    {"a_gene_too_many", [] { game.Genes[GeneCount + 1][1] = true; }},
    {"gene_of_clan_7", [] { game.Genes[1][7] = true; }},
    {"a_gene_too_many_in_the_catalogue", [] { game.Catalogue[GeneCount + 1].Supply = 1; }},
    {"card_11", [] { game.EnvDeck[11].UV = 1; }},
    {"food_of_turn_11", [] { game.FoodHistory[1][1][11] = 1; }},
    {"flag_3", [] { game.AutoFlags[1][3] = true; }},
    {"score_of_8_amoebas", [] { game.ScoreByAmoebaCount[8] = 1; }},
    {"score_of_8_genes", [] { game.ScoreByGenes[8] = 1; }},
    {"a_very_large_index", [] { game.BP[2147483647] = 1; }},
    {"a_very_small_index", [] { game.BP[-2147483647 - 1] = 1; }},
};

INSTANTIATE_TEST_SUITE_P(Tables, Bounds, ::testing::ValuesIn(BoundsRows), RowName());

class State : public GameTest {};

TEST_F(State, TheOutermostEntriesAreThere) {
    game.Players[0].Score = game.Players[6].Score = 1;
    game.Amoeba[7][6].Square = 36;
    game.Food[36][6] = 1;
    game.Genes[GeneCount][6] = true;
    game.EnvDeck[10].UV = 1;
    game.FoodHistory[36][6][10] = 1;
    game.AutoFlags[6][2] = true;
    EXPECT_EQ(game.Food[36][6], 1);
}

TEST_F(State, ANewGameStartsFromEmptyTables) {
    NewPosition(6);
    Put(6, 6, 25);
    Feed(3, {1, 2, 3, 4, 5, 6});
    game.Turn = 9;
    game.GameOver = true;
    game.AutoFlags[3][1] = true;
    ResetTables();
    EXPECT_EQ(game.NumPlayers, 0);
    EXPECT_EQ(game.Turn, 0);
    EXPECT_FALSE(game.GameOver);
    EXPECT_EQ(game.Amoeba[6][6].Square, 0);
    EXPECT_EQ(game.Occupancy[25][6], 0);
    EXPECT_EQ(game.SpotsTaken[25], 0U);
    EXPECT_EQ(game.Food[3][6], 0);
    EXPECT_FALSE(game.AutoFlags[3][1]);
    EXPECT_TRUE(game.Players[6].Name.Empty());
}

TEST_F(State, ANewGameKeepsTheBoardAndTheSwitches) {
    SetBoard(4, 6, "3:8:");
    game.AutoPlay = game.FastMode = true;
    game.RequestedClans = 5;
    game.Menu.victorymen = true;
    ResetTables();
    EXPECT_EQ(game.NumRows, 4);
    EXPECT_EQ(game.NumCols, 6);
    EXPECT_EQ(game.NumSquares, 24);
    EXPECT_TRUE(game.Blocked[3]);
    EXPECT_TRUE(game.AutoPlay);
    EXPECT_TRUE(game.FastMode);
    EXPECT_EQ(game.RequestedClans, 5);
    EXPECT_TRUE(game.Menu.victorymen);
}

TEST_F(State, AtFirstTheBoardHasFiveRowsAndColumns) {
    EXPECT_EQ(game.NumRows, 5);
    EXPECT_EQ(game.NumCols, 5);
    EXPECT_EQ(game.NumSquares, 25);
    EXPECT_TRUE(game.Menu.normmen);
    EXPECT_FALSE(game.Menu.victorymen);
    EXPECT_FALSE(game.Menu.twoplayermen);
}

TEST_F(State, ABoardOutsideTheBoundsIsRefused) {
    for (const auto& [rows, cols] : {std::pair{2, 5}, {5, 2}, {10, 3}, {3, 10}, {7, 6}}) {
        EXPECT_THROW(SetBoard(rows, cols), RuntimeError) << rows << " x " << cols;
    }
    EXPECT_EQ(game.NumSquares, 25) << "the board stays as it was";
}

TEST_F(State, AValidSquareIsOnTheBoardAndNotBlocked) {
    SetBoard(4, 5, "7:20:");
    EXPECT_TRUE(IsValidSquare(1));
    EXPECT_TRUE(IsValidSquare(19));
    EXPECT_FALSE(IsValidSquare(0));
    EXPECT_FALSE(IsValidSquare(7));
    EXPECT_FALSE(IsValidSquare(20));
    EXPECT_FALSE(IsValidSquare(21));
    EXPECT_FALSE(IsValidSquare(-1));
}

TEST_F(State, TheSquareNextToAnEdgeOrABlockIsItself) {
    SetBoard(5, 5, "13:");
    using ::testing::ElementsAre;
    const auto next = [](int square) {
        const auto& row = game.NextTo[square];
        return std::vector<int>{row[1], row[2], row[3], row[4]};
    };
    EXPECT_THAT(next(7), ElementsAre(8, 12, 6, 2)) << "right, down, left, up";
    EXPECT_THAT(next(1), ElementsAre(2, 6, 1, 1));
    EXPECT_THAT(next(5), ElementsAre(5, 10, 4, 5));
    EXPECT_THAT(next(21), ElementsAre(22, 21, 21, 16));
    EXPECT_THAT(next(25), ElementsAre(25, 25, 24, 20));
    EXPECT_THAT(next(12), ElementsAre(12, 17, 11, 7)) << "the block is to the right";
    EXPECT_THAT(next(8), ElementsAre(9, 8, 7, 3)) << "the block is below";
}

TEST_F(State, APieceIsCountedWhereItStands) {
    NewPosition(4);
    PutPiece(2, 3, 17, 9);
    PutPiece(4, 1, 17, 0);
    EXPECT_EQ(game.Amoeba[3][2].Square, 17);
    EXPECT_EQ(game.Amoeba[3][2].Slot, 9);
    EXPECT_EQ(game.Occupancy[17][2], 1);
    EXPECT_EQ(game.Occupancy[17][0], 2);
    EXPECT_EQ(game.SpotsTaken[17], 1U << 9U);
    game.Amoeba[3][2].Damage = 1;
    LiftPiece(2, 3);
    EXPECT_EQ(game.Amoeba[3][2].Square, 0);
    EXPECT_EQ(game.Amoeba[3][2].Slot, 0);
    EXPECT_EQ(game.Amoeba[3][2].Damage, 1) << "its damage stays";
    EXPECT_EQ(game.Amoeba[3][2].Name.View(), "B3") << "its name stays";
    EXPECT_EQ(game.Occupancy[17][2], 0);
    EXPECT_EQ(game.Occupancy[17][0], 1);
    EXPECT_EQ(game.SpotsTaken[17], 0U);
}

TEST(FixedTexts, AreCutAtTheEndOfACharacter) {
    const FixedText<5> text("ab\xC3\xA4\xC3\xB6");
    EXPECT_EQ(text.View(), "ab\xC3\xA4");
    const FixedText<5> euro("abc\xE2\x82\xAC");
    EXPECT_EQ(euro.View(), "abc");
    const FixedText<5> whole("abcde");
    EXPECT_EQ(whole.View(), "abcde");
}

TEST(Texts, AreJoinedWithPlainNumbers) {
    EXPECT_EQ(Concat("Turn: ", 3, "   Amoeba ", -4, std::string(", "), 12345678901LL),
              "Turn: 3   Amoeba -4, 12345678901");
}

}  // namespace
}  // namespace plasmos::testing
