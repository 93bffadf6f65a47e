// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/directions.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "rules/environment.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

constexpr int Right = 1, Left = -1, InPlace = 0;

/// One step on a board of 4 rows and 6 columns whose square 9 is blocked:
///  1  2  3  4  5  6
///  7  8 ## 10 11 12
/// 13 14 15 16 17 18
/// 19 20 21 22 23 24
struct StepRow {
    std::string_view Name;
    int From;
    int Direction;
    int To;
};

void PrintTo(const StepRow& row, std::ostream* out) {
    *out << row.Name;
}

class OneStep : public GameRows<StepRow> {};

TEST_P(OneStep, LeadsThere) {
    NewPosition(4, 4, 6, "9:");
    EXPECT_EQ(MoveDestination(GetParam().From, GetParam().Direction), GetParam().To);
}

const StepRow StepRows[] = {
    {"right_is_one_square_on", 14, Right, 15},
    {"left_is_one_square_back", 14, Left, 13},
    {"down_is_a_row_on", 14, 6, 20},
    {"up_is_a_row_back", 14, -6, 8},
    {"in_place_is_the_square_itself", 14, InPlace, 14},
    {"where_it_wants_is_no_step", 14, WhereItWants, 14},
    {"an_offset_that_is_no_direction_is_no_step", 14, 2, 14},
    {"a_step_back_of_another_length_is_no_step", 14, -5, 14},
    {"right_stops_at_the_last_column", 12, Right, 12},
    {"right_stops_in_the_last_corner", 24, Right, 24},
    {"left_stops_at_the_first_column", 13, Left, 13},
    {"left_stops_in_the_first_corner", 1, Left, 1},
    {"up_stops_at_the_first_row", 6, -6, 6},
    {"down_stops_at_the_last_row", 19, 6, 19},
    {"the_last_column_is_entered_from_the_left", 11, Right, 12},
    {"the_first_column_is_entered_from_the_right", 8, Left, 7},
    {"the_last_row_is_entered_from_above", 18, 6, 24},
    {"the_first_row_is_entered_from_below", 7, -6, 1},
    {"right_stops_at_a_block", 8, Right, 8},
    {"left_stops_at_a_block", 10, Left, 10},
    {"down_stops_at_a_block", 3, 6, 3},
    {"up_stops_at_a_block", 15, -6, 15},
};

INSTANTIATE_TEST_SUITE_P(Board, OneStep, ::testing::ValuesIn(StepRows), RowName());

/// The current takes an amoeba where no direction is given.
const StepRow CurrentRows[] = {
    {"to_the_right", 14, Right, 15},
    {"down", 14, 6, 20},
    {"against_the_edge", 24, 6, 24},
    {"in_place", 14, InPlace, 14},
    {"where_it_wants_is_nowhere_by_itself", 14, WhereItWants, 14},
};

class TheCurrent : public GameRows<StepRow> {};

TEST_P(TheCurrent, DriftsThere) {
    NewPosition(4, 4, 6, "9:");
    game.Drift = GetParam().Direction;
    EXPECT_EQ(MoveDestination(GetParam().From), GetParam().To);
}

INSTANTIATE_TEST_SUITE_P(Board, TheCurrent, ::testing::ValuesIn(CurrentRows), RowName());

/// The direction die on a board with 6 columns.
struct DieRow {
    std::string_view Name;
    int Roll;
    int Direction;
    std::string_view Words;
};

void PrintTo(const DieRow& row, std::ostream* out) {
    *out << row.Name;
}

class DirectionDie : public GameRows<DieRow> {};

TEST_P(DirectionDie, GivesADirection) {
    NewPosition(4, 4, 6);
    const int direction = DirectionFromDie(GetParam().Roll);
    EXPECT_EQ(direction, GetParam().Direction);
    EXPECT_EQ(DirectionText(direction), GetParam().Words);
    EXPECT_EQ(NeighbourByDie(14, GetParam().Roll), MoveDestination(14, direction));
}

const DieRow DieRows[] = {
    {"a_1_is_right", 1, 1, "Right"},       {"a_2_is_down", 2, 6, "Down"},
    {"a_3_is_left", 3, -1, "Left"},        {"a_4_is_up", 4, -6, "Up"},
    {"a_5_is_in_place", 5, 0, "in place"}, {"a_6_is_where_it_wants", 6, -666, "where it wants"},
};

INSTANTIATE_TEST_SUITE_P(Rolls, DirectionDie, ::testing::ValuesIn(DieRows), RowName());

class Directions : public GameTest {};

TEST_F(Directions, ADieHasNoOtherFaces) {
    NewPosition(4);
    for (const int roll : {0, 7, -1}) {
        try {
            DirectionFromDie(roll);
            FAIL() << "roll " << roll;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number, 5) << roll;
        }
    }
}

/// What an amoeba of clan 2 reaches, on a board of 5 by 5 with the blocks 8 and 17.
///  1  2  3  4  5
///  6  7 ##  9 10
/// 11 12 13 14 15
/// 16 ## 18 19 20
/// 21 22 23 24 25
struct ReachRow {
    std::string_view Name;
    int Square;
    bool Holding;
    std::vector<int> Squares;
};

void PrintTo(const ReachRow& row, std::ostream* out) {
    *out << row.Name;
}

class Reach : public GameRows<ReachRow> {};

TEST_P(Reach, IsListedInOrder) {
    NewPosition(4, 5, 5, "8:17:");
    if (GetParam().Holding) {
        Give(2, "hol");
    }
    Give(1, "hol");
    const SquareList list = Neighbours(GetParam().Square, 2);
    std::vector<int> squares;
    for (int place = 1; place <= list.Count(); ++place) {
        squares.push_back(list[place]);
    }
    EXPECT_EQ(squares, GetParam().Squares);
}

const ReachRow ReachRows[] = {
    {"left_right_up_down", 14, false, {13, 15, 9, 19}},
    {"holding_adds_the_own_square_at_the_end", 14, true, {13, 15, 9, 19, 14}},
    {"an_edge_gives_the_own_square_in_its_place", 15, false, {14, 15, 10, 20}},
    {"a_corner_gives_the_own_square_twice", 1, false, {1, 2, 1, 6}},
    {"the_last_corner_too", 25, false, {24, 25, 20, 25}},
    {"a_block_gives_the_own_square", 13, false, {12, 14, 13, 18}},
    {"an_edge_and_two_blocks_give_it_three_times", 16, false, {16, 16, 11, 21}},
    {"holding_adds_nothing_where_an_edge_gave_it", 15, true, {14, 15, 10, 20}},
    {"holding_adds_nothing_in_a_corner", 1, true, {1, 2, 1, 6}},
    {"holding_adds_nothing_beside_a_block", 13, true, {12, 14, 13, 18}},
};

INSTANTIATE_TEST_SUITE_P(Squares, Reach, ::testing::ValuesIn(ReachRows), RowName());

RC_GTEST_FIXTURE_PROP(Directions, EveryStepStaysOnValidSquares, ()) {
    const int cols = *rc::gen::inRange(3, 10);
    const int rows = *rc::gen::inRange(cols <= 4 ? 5 : 3, std::min(9, 36 / cols) + 1);
    NewPosition(4, rows, cols);
    const int block = *rc::gen::inRange(1, rows * cols + 1);
    NewPosition(4, rows, cols, Concat(block, ":"));
    const int square = *rc::gen::suchThat(rc::gen::inRange(1, rows * cols + 1), [](int s) { return IsValidSquare(s); });
    const int direction = *rc::gen::element(1, -1, cols, -cols, 0, WhereItWants, 2, -2, 37, -37);
    const int reached = MoveDestination(square, direction);
    RC_ASSERT(IsValidSquare(reached));
    const int columns = std::abs((reached - 1) % cols - (square - 1) % cols);
    const int lines = std::abs((reached - 1) / cols - (square - 1) / cols);
    RC_ASSERT(columns + lines <= 1);
}

}  // namespace
}  // namespace plasmos::testing
