// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "rules/computer_clan.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

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

class ComputerDivisionTest : public GameTest {};

TEST_F(ComputerDivisionTest, HeadsInTurn1DividesOneWhateverTheBp) {
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

TEST_F(ComputerDivisionTest, A23rdFailedDrawLeavesAnySquareWithoutItsOwn) {
    NewPosition(4, 3, 5, "2:");
    Put(2, 1, 1);
    std::vector<int> rolls(23, 9);
    rolls.insert(rolls.end(), {24, 2, 1, 9});
    const Script script(rolls);
    EXPECT_EQ(ComputerPlaceSquare(2), 9) << "24 is off the board, 2 a block, 1 its own";
}

TEST_F(ComputerDivisionTest, ALargerBoardIsNeverEnteredBeyondSquare24) {
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

TEST_F(ComputerDivisionTest, BesideItsAmoebasItLooksForFoodAndThenTakesAny) {
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
