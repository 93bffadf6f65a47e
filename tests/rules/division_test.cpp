// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/division.h"

#include <gmock/gmock.h>

#include "questions/choice_forms.h"
#include "rules/movement.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;

class DivisionTest : public GameTest {
protected:
    /// Clan 1 is a person's and alone in its thoughts: the others have no room to divide.
    static void Begin(int clans, int bp, int pieces) {
        NewPosition(clans);
        Person(1);
        game.Turn = 5;
        game.BP[1] = bp - DivisionIncome();
        for (int piece = 1; piece <= pieces; ++piece) {
            Put(1, piece, 2 * piece);
        }
        for (int clan = 2; clan <= clans; ++clan) {
            for (int piece = 1; piece <= game.MaxAmoeba; ++piece) {
                Put(clan, piece, 25);
            }
        }
    }
};

struct IncomeRow {
    std::string_view Name;
    int Clans;
    int Income;
};
void PrintTo(const IncomeRow& row, std::ostream* out) {
    *out << row.Name;
}
class Incomes : public GameRows<IncomeRow> {};

TEST_P(Incomes, AreThoseOfTheNumberOfClans) {
    NewPosition(GetParam().Clans);
    game.Turn = 3;
    for (int piece = 1; piece <= game.MaxAmoeba; ++piece) {
        Put(2, piece, piece);
    }
    game.BP[2] = 3;
    DivisionPhase();
    EXPECT_EQ(game.BP[2], 3 + GetParam().Income);
}

const IncomeRow IncomeRows[] = {
    {"three_clans", 3, 10}, {"four_clans", 4, 10}, {"five_clans", 5, 11}, {"six_clans", 6, 11}};
INSTANTIATE_TEST_SUITE_P(Division, Incomes, ::testing::ValuesIn(IncomeRows), RowName());

/// A person's BP after the income, its pieces, genes, and what the number dialog offers.
struct OfferRow {
    std::string_view Name;
    int Clans;
    int BP;
    int Pieces;
    bool Cheap;
    std::vector<int> Offered;  ///< empty: the clan is not asked
};
void PrintTo(const OfferRow& row, std::ostream* out) {
    *out << row.Name;
}
class Offered : public DivisionTest, public ::testing::WithParamInterface<OfferRow> {};

TEST_P(Offered, AreTheNumbersItCanPay) {
    Begin(GetParam().Clans, GetParam().BP, GetParam().Pieces);
    if (GetParam().Cheap) {
        Give(1, "div");
    }
    ScriptedBoard board;
    if (!GetParam().Offered.empty()) {
        board.Then({Yes(), Number(0)});
    }
    DivisionPhase();
    if (GetParam().Offered.empty()) {
        EXPECT_TRUE(board.Questions.empty());
        return;
    }
    ASSERT_EQ(board.Questions.size(), 2U);
    EXPECT_EQ(board.Questions[0].Text, "Clan Player 1, would you like to Divide new Plasmos onto the board?");
    EXPECT_EQ(board.Questions[1].Text, "How many amoebas would you like to create?");
    EXPECT_EQ(board.Questions[1].Offered, GetParam().Offered);
    EXPECT_EQ(game.BP[1], GetParam().BP) << "0 is a legal answer and costs nothing";
}

const OfferRow OfferRows[] = {
    {"four_bp_and_division_rate_afford_one", 4, 10, 2, true, {0, 1, 2}},
    {"twelve_bp_afford_two", 4, 12, 2, false, {0, 1, 2}},
    {"eleven_bp_afford_one", 4, 11, 2, false, {0, 1}},
    {"a_full_clan_is_passed_over", 4, 40, 7, false, {}},
    {"only_free_places_are_offered", 4, 40, 6, false, {0, 1}},
    {"five_clans_have_no_seventh", 5, 60, 2, false, {0, 1, 2, 3, 4}},
    {"without_amoebas_the_first_is_free_and_one_more_is_offered", 4, 10, 0, false, {0, 1, 2}},
};
INSTANTIATE_TEST_SUITE_P(Division, Offered, ::testing::ValuesIn(OfferRows),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(DivisionTest, AClanWithoutAmoebasAndWithoutThePriceIsNotAsked) {
    Begin(4, 5, 0);
    ScriptedBoard board;
    DivisionPhase();
    EXPECT_TRUE(board.Questions.empty());
    EXPECT_EQ(game.BP[1], 5);
}

TEST_F(DivisionTest, OnlyTheAmoebaCreatedWhileThereIsNoneIsFree) {
    Begin(4, 6, 0);
    ScriptedBoard board;
    board.Then({Yes(), Number(2), Square(7), Square(8)});
    const Script rolls({1, 1});
    DivisionPhase();
    EXPECT_THAT(board.Boxes,
                ElementsAre("Your first amoeba will be free of cost; all further amoebas will cost you 6 BPs "
                            "as normal."));
    EXPECT_EQ(game.BP[1], 0);
    EXPECT_EQ(game.AmoebaCount[1], 2);
    EXPECT_EQ(game.Amoeba[1][1].Square, 7);
    EXPECT_EQ(game.Amoeba[2][1].Square, 8);
}

TEST_F(DivisionTest, ANumberThatIsNotOfferedIsRefused) {
    Begin(4, 12, 2);
    ScriptedBoard board;
    board.Then({Yes(), Do("seven", [](Question& question) { question.Put(Numbered(Answer::Kind::Number, 7)); }),
                Do("minus one", [](Question& question) { question.Put(Numbered(Answer::Kind::Number, -1)); }),
                Number(0)});
    DivisionPhase();
    EXPECT_EQ(game.AmoebaCount[1], 2);
}

TEST_F(DivisionTest, ClosingTheNumberDialogAnswers0) {
    Begin(4, 12, 2);
    ScriptedBoard board;
    board.Then({Yes(), CloseIt()});
    DivisionPhase();
    EXPECT_EQ(game.AmoebaCount[1], 2);
    EXPECT_EQ(game.BP[1], 12);
}

TEST_F(DivisionTest, ANewAmoebaTakesTheLowestFreeSlotAndKeepsNoDamage) {
    Begin(4, 12, 3);
    game.Amoeba[2][1].Damage = 1;
    LiftPiece(1, 2);
    game.AmoebaCount[1] = 2;
    Give(1, "spo");
    ScriptedBoard board;
    board.Then({Yes(), Number(1), Square(13)});
    const Script rolls({9});
    DivisionPhase();
    EXPECT_EQ(game.Amoeba[2][1].Square, 13);
    EXPECT_EQ(game.Amoeba[2][1].Damage, 0);
    EXPECT_EQ(game.Amoeba[2][1].Slot, 9);
    EXPECT_EQ(game.BP[1], 6);
}

struct PlacingRow {
    std::string_view Name;
    bool InPlay;
    std::vector<int> Own;
    std::vector<int> Others;
    bool Spores;
    std::vector<int> Squares;
};
void PrintTo(const PlacingRow& row, std::ostream* out) {
    *out << row.Name;
}
class Placing : public GameRows<PlacingRow> {};

/// A board of 4 x 4 whose square 6 is a block.
TEST_P(Placing, Squares) {
    NewPosition(4, 4, 4, "6:");
    for (std::size_t i = 0; i < GetParam().Own.size(); ++i) {
        Put(1, static_cast<int>(i) + 1, GetParam().Own[i]);
    }
    for (std::size_t i = 0; i < GetParam().Others.size(); ++i) {
        Put(2, static_cast<int>(i) + 1, GetParam().Others[i]);
    }
    if (GetParam().Spores) {
        Give(1, "spo");
    }
    EXPECT_EQ(PlacingSquares(1, GetParam().InPlay).List(), GetParam().Squares);
}

const PlacingRow PlacingRows[] = {
    {"in_the_setup_every_empty_square", false, {1}, {2, 3}, false, {4, 5, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}},
    {"without_amoebas_every_empty_square", true, {}, {2, 3}, false, {1, 4, 5, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}},
    {"with_one_amoeba_every_square_without_its_own",
     true,
     {1},
     {2, 3},
     false,
     {2, 3, 4, 5, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}},
    {"with_spores_every_square_without_its_own",
     true,
     {1, 16},
     {2},
     true,
     {2, 3, 4, 5, 7, 8, 9, 10, 11, 12, 13, 14, 15}},
    {"with_two_amoebas_the_squares_beside_them", true, {1, 16}, {2}, false, {2, 5, 12, 15}},
    {"a_block_beside_is_not_offered", true, {5, 16}, {}, false, {1, 9, 12, 15}},
    {"beside_each_other_their_own_squares_are_offered_once", true, {1, 2}, {}, false, {1, 2, 3, 5}},
};
INSTANTIATE_TEST_SUITE_P(Division, Placing, ::testing::ValuesIn(PlacingRows), RowName());

TEST_F(DivisionTest, WhereTheRuleOffersNothingEverySquareWithoutItsOwnIsOffered) {
    NewPosition(4, 3, 5, "2:6:8:");
    Put(1, 1, 1);
    Put(1, 2, 1);
    const auto squares = PlacingSquares(1, true).List();
    EXPECT_THAT(squares, ElementsAre(3, 4, 5, 7, 9, 10, 11, 12, 13, 14, 15)) << "square 1 is walled in by blocks";
}

TEST_F(DivisionTest, ASquareThatIsNotOfferedIsRefusedAndTheWaitGoesOn) {
    Begin(4, 12, 2);
    ScriptedBoard board;
    board.Then({Yes(), Number(1), Square(20), ClickAt(-10, 5), ClickAt(900000, 0), Square(3)});
    const Script rolls({4});
    DivisionPhase();
    EXPECT_EQ(game.Amoeba[3][1].Square, 3);
    EXPECT_THAT(board.Messages, ::testing::Contains("Choose a square in which to place your amoeba:"));
}

TEST_F(DivisionTest, AComputerClanStartsOnADrawnEmptySquare) {
    NewPosition(4, 4, 4, "6:");
    game.Turn = 0;
    Put(2, 1, 9);
    const Script rolls({6, 9, 14, 30});
    CreateAmoeba(1);
    EXPECT_EQ(game.Amoeba[1][1].Square, 14) << "6 is a block, 9 is taken";
    EXPECT_EQ(game.Amoeba[1][1].Slot, 30);
}

}  // namespace
}  // namespace plasmos::testing
