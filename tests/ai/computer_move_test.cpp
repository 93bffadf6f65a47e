// SPDX-License-Identifier: GPL-3.0-or-later
#include "ai/computer_move.h"
#include "rules/computer_clan.h"

#include <gmock/gmock.h>

#include <functional>

#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;

/// The spot that every real move rolls in its new square.
constexpr int Spot = 9;

/// A1, a computer clan's, in square 13 of a board of 5 by 5, with three clans and a current to the
/// right, into 14. The last line is the one of the last pass.
struct MoveRow {
    std::string_view Name;
    std::vector<std::string_view> Genes;
    int BP;
    std::function<void()> Set;
    std::vector<int> Rolls;
    int Lands;
    int Paid;
    std::vector<std::string> Lines;
};

void PrintTo(const MoveRow& row, std::ostream* out) {
    *out << row.Name;
}

class ComputerMove : public GameRows<MoveRow> {};

TEST_P(ComputerMove, GoesByTheRules) {
    const MoveRow& row = GetParam();
    NewPosition(3);
    game.Drift = 1;
    Put(1, 1, 13);
    for (const auto code : row.Genes) {
        Give(1, code);
    }
    game.BP[1] = row.BP;
    ScriptedBoard board;
    row.Set();
    {
        Script script(row.Rolls);
        ComputerMoveAmoeba(1, 1);
    }
    EXPECT_EQ(game.Amoeba[1][1].Square, row.Lands);
    EXPECT_EQ(row.BP - game.BP[1], row.Paid);
    EXPECT_EQ(board.LogLines, row.Lines);
    EXPECT_EQ(game.Message, row.Lines.back());
}

/// Clan 1 can eat in these squares.
void Meals(std::initializer_list<int> squares) {
    for (const int square : squares) {
        Feed(square, {0, 2, 1});
    }
}

/// A piece of clan 2 or 3 stands in a square.
void Prey(int clan, int amoeba, int square) {
    Put(clan, amoeba, square);
}

void Nothing() {}
void MealLeft() {
    Meals({12});
}
void MealsBothSides() {
    Meals({12, 14});
}
void Starved(int times) {
    game.Amoeba[1][1].Damage = times;
}
void MealLeftAndStarvedOnce() {
    MealLeft();
    Starved(1);
}

// clang-format off
const MoveRow RestRows[] = {
    {"holding_clings_to_its_meal", {"hol"}, 3, [] { Meals({13}); }, {}, 13, 0, {"A1 clings to the bottom in 13"}},
    {"holding_without_a_meal_drifts_like_others", {"hol"}, 0, Nothing, {Spot}, 14, 0,
     {"A1 moves resignedly into 14"}},
    {"hungry_without_BP_it_drifts_resignedly", {}, 0, MealsBothSides, {Spot}, 14, 0, {"A1 moves resignedly into 14"}},
    {"fed_it_drifts_happily_whatever_it_could_pay", {"mv2", "str"}, 3, [] { Meals({12, 13}); }, {Spot}, 14, 0,
     {"A1 moves happily into 14"}},
    {"fed_in_a_still_current_it_remains_contentedly", {}, 0, [] { Meals({13}); game.Drift = 0; }, {}, 13, 0,
     {"A1 remains contentedly in 13"}},
    {"hungry_in_a_still_current_it_remains_dejectedly", {}, 0, [] { game.Drift = 0; }, {}, 13, 0,
     {"A1 remains dejectedly in 13"}},
    {"a_current_against_a_block_leaves_it_there", {}, 0, [] { SetBoard(5, 5, "14:"); }, {}, 13, 0,
     {"A1 remains dejectedly in 13"}},
};

const MoveRow CandidateRows[] = {
    {"with_BP_but_without_a_candidate_it_drifts_disconsolately_unpaid", {}, 3, Nothing, {Spot}, 14, 0,
     {"A1 moves disconsolately into 14"}},
    {"one_candidate_is_not_enough_without_movement", {}, 3, MealLeft, {Spot}, 14, 0,
     {"A1 moves disconsolately into 14"}},
    {"two_candidates_are_steered_for", {}, 3, MealsBothSides, {3, Spot}, 12, 1, {"A1 moves joyously into 12"}},
    {"exactly_1_BP_is_enough", {}, 1, MealsBothSides, {3, Spot}, 12, 1, {"A1 moves joyously into 12"}},
    {"streamlining_without_BP_is_active", {"str"}, 0, MealsBothSides, {1, Spot}, 14, 0,
     {"A1 moves joyously into 14"}},
    {"streamlining_pays_nothing", {"str"}, 2, MealsBothSides, {1, Spot}, 14, 0, {"A1 moves joyously into 14"}},
    {"struggle_looks_for_prey", {"sfs"}, 1, [] { Prey(2, 1, 12); Prey(3, 1, 18); }, {2, Spot}, 18, 1,
     {"A1 moves joyously into 18"}},
    {"aggression_looks_for_prey", {"agg"}, 1, [] { Prey(2, 1, 12); Prey(3, 1, 18); }, {2, Spot}, 18, 1,
     {"A1 moves joyously into 18"}},
    {"others_do_not", {"par", "mv1"}, 1, [] { Prey(2, 1, 12); Prey(3, 1, 18); }, {Spot}, 14, 0,
     {"A1 moves disconsolately into 14"}},
    {"armour_is_no_prey", {"sfs"}, 1, [] { Prey(2, 1, 12); Prey(3, 1, 18); Give(3, "arm"); }, {Spot}, 14, 0,
     {"A1 moves disconsolately into 14"}},
    {"its_own_clan_is_no_prey", {"sfs"}, 1, [] { Put(1, 2, 12); Put(1, 3, 18); }, {Spot}, 14, 0,
     {"A1 moves disconsolately into 14"}},
    {"prey_beside_armour_is_prey", {"sfs"}, 1, [] { Prey(2, 1, 12); Prey(3, 1, 12); Give(3, "arm"); Prey(2, 2, 18); },
     {3, Spot}, 12, 1, {"A1 moves joyously into 12"}},
    {"prey_on_its_own_square_counts_with_holding", {"sfs", "hol"}, 1, [] { Prey(2, 1, 12); Prey(3, 1, 13); }, {6, 2},
     13, 1, {"A1 remains contentedly in 13"}},
    {"in_a_corner_the_own_square_counts_twice", {"sfs"}, 1, []
     { LiftPiece(1, 1); PutPiece(1, 1, 1, 1); Prey(2, 1, 1); }, {6, 2}, 1, 1, {"A1 remains contentedly in 1"}},
};

const MoveRow SteeringRows[] = {
    {"a_square_that_is_no_candidate_is_entered_reluctantly", {}, 1, MealsBothSides, {2, Spot}, 18, 1,
     {"A1 moves reluctantly into 18"}},
    {"a_5_leaves_it_dejected", {}, 1, MealsBothSides, {5}, 13, 1, {"A1 remains dejectedly in 13"}},
    {"a_6_takes_any_candidate", {}, 1, MealsBothSides, {6, 2, Spot}, 14, 1, {"A1 moves triumphantly into square 14"}},
    {"candidates_are_counted_left_right_up_down", {}, 1, [] { Meals({8, 12, 14, 18}); }, {6, 3, Spot}, 8, 1,
     {"A1 moves triumphantly into square 8"}},
    {"movement_1_tosses_a_coin_for_one_candidate", {"mv1"}, 2, MealLeft, {1, Spot}, 14, 0,
     {"A1 moves disconsolately into 14"}},
    {"a_coin_of_2_lets_it_steer", {"mv1"}, 2, MealLeft, {2, 3, Spot}, 12, 1, {"A1 moves joyously into 12"}},
    {"who_has_starved_once_tosses_no_coin", {"mv1"}, 2, MealLeftAndStarvedOnce, {3, Spot}, 12, 1,
     {"A1 moves joyously into 12"}},
    {"who_has_starved_twice_tosses_it_again", {"mv1", "lif"}, 2, [] { MealLeft(); Starved(2); }, {1, Spot}, 14, 0,
     {"A1 moves disconsolately into 14"}},
    {"streamlining_tosses_no_coin", {"mv1", "str"}, 2, MealLeft, {3, Spot}, 12, 0, {"A1 moves joyously into 12"}},
    {"movement_1_without_a_candidate_drifts", {"mv1"}, 2, [] { Starved(1); }, {Spot}, 14, 0,
     {"A1 moves disconsolately into 14"}},
    {"movement_1_rolls_again_for_its_candidate", {"mv1"}, 2, MealLeftAndStarvedOnce, {2, 3, Spot}, 12, 1,
     {"Amoeba 1 relievedly moves to 12"}},
    {"the_second_roll_may_lead_astray", {"mv1"}, 2, MealLeftAndStarvedOnce, {2, 4, Spot}, 8, 1,
     {"A1 sadly moves into 8"}},
    {"the_second_roll_may_leave_it_there", {"mv1"}, 2, MealLeftAndStarvedOnce, {2, 5}, 13, 1,
     {"A1 remains dejectedly in 13"}},
    {"a_second_roll_of_6_takes_the_candidate", {"mv1"}, 2, MealLeftAndStarvedOnce, {2, 6, 1, Spot}, 12, 1,
     {"A1 sashays nonchalantly into square 12."}},
    {"a_first_roll_of_6_needs_no_second", {"mv1"}, 2, MealLeftAndStarvedOnce, {6, 1, Spot}, 12, 1,
     {"A1 moves triumphantly into square 12"}},
};

const MoveRow Movement2Rows[] = {
    {"movement_2_takes_a_candidate_for_1_BP", {"mv2"}, 1, MealsBothSides, {2, Spot}, 14, 1,
     {"A1 smugly moves into 14"}},
    {"a_single_candidate_is_rolled_for_too", {"mv2"}, 3, MealLeft, {1, Spot}, 12, 1, {"A1 smugly moves into 12"}},
    {"with_streamlining_it_is_free", {"mv2", "str"}, 3, MealLeft, {1, Spot}, 12, 0, {"A1 smugly moves into 12"}},
    {"movement_2_without_a_candidate_drifts_unpaid", {"mv2"}, 3, Nothing, {Spot}, 14, 0,
     {"A1 moves disconsolately into 14"}},
    {"movement_2_with_speed_looks_two_squares_ahead", {"mv2", "spe"}, 1, [] { Meals({15}); }, {Spot}, 14, 0,
     {"A1 moves pensively into 14"}},
    {"and_with_persistence", {"mv2", "per"}, 1, [] { Meals({3}); }, {Spot}, 8, 0, {"A1 moves pensively into 8"}},
    {"down_is_looked_at_before_left", {"mv2", "spe"}, 1, [] { Meals({11, 23}); }, {Spot}, 18, 0,
     {"A1 moves pensively into 18"}},
    {"where_it_sees_nothing_a_die_of_4_decides", {"mv2", "spe"}, 1, Nothing, {3, Spot}, 12, 0,
     {"A1 moves pensively into 12"}},
    {"against_a_block_it_remains_dejectedly", {"mv2", "spe"}, 1, [] { SetBoard(5, 5, "12:"); }, {3}, 13, 0,
     {"A1 remains dejectedly in 13"}},
};

const MoveRow SecondPassRows[] = {
    {"speed_steers_without_a_candidate_and_then_does_not_care", {"spe"}, 2, Nothing, {2, Spot, 1, Spot}, 19, 1,
     {"A1 moves reluctantly into 18", "A1 just doesn't care anymore."}},
    {"a_5_lets_it_stay_where_it_is", {"spe"}, 2, Nothing, {2, Spot, 5}, 18, 1,
     {"A1 moves reluctantly into 18", "A1 remains dejectedly in 18"}},
    {"persistence_does_the_same", {"per"}, 2, Nothing, {2, Spot, 3, Spot}, 17, 1,
     {"A1 moves reluctantly into 18", "A1 just doesn't care anymore."}},
    {"having_spent_its_last_BP_it_drifts_once_more", {"spe"}, 1, Nothing, {2, Spot, Spot}, 19, 1,
     {"A1 moves reluctantly into 18", "A1 moves resignedly into 19"}},
    {"with_streamlining_both_passes_are_free", {"spe", "str"}, 0, Nothing, {2, Spot, 4, Spot}, 13, 0,
     {"A1 moves reluctantly into 18", "A1 just doesn't care anymore."}},
    {"who_has_found_a_meal_is_content_with_one_pass", {"spe"}, 2, MealLeft, {3, Spot}, 12, 1,
     {"A1 moves joyously into 12"}},
    {"the_second_pass_steers_free_for_a_new_candidate", {"spe"}, 2, [] { Meals({23}); }, {2, Spot, 2, Spot}, 23, 1,
     {"A1 moves reluctantly into 18", "A1 moves joyously into 23"}},
    {"there_is_no_third_pass", {"spe"}, 2, [] { Meals({23}); }, {2, Spot, 1, Spot}, 19, 1,
     {"A1 moves reluctantly into 18", "A1 moves reluctantly into 19"}},
    {"who_only_drifts_has_no_second_pass", {"spe"}, 0, Nothing, {Spot}, 14, 0, {"A1 moves resignedly into 14"}},
    {"movement_1_rolls_twice_in_each_pass", {"spe", "mv1"}, 2, [] { Meals({23}); }, {2, 2, Spot, 3, 2, Spot}, 23, 1,
     {"A1 sadly moves into 18", "Amoeba 1 relievedly moves to 23"}},
    {"a_6_without_a_candidate_is_a_die_of_4", {"spe"}, 1, Nothing, {6, 4, Spot, Spot}, 9, 1,
     {"A1 moves triumphantly into square 8", "A1 moves resignedly into 9"}},
    {"without_speed_there_is_one_pass", {"mv1"}, 3, MealLeftAndStarvedOnce, {2, 2, Spot}, 18, 1,
     {"A1 sadly moves into 18"}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Rest, ComputerMove, ::testing::ValuesIn(RestRows), RowName());
INSTANTIATE_TEST_SUITE_P(Candidates, ComputerMove, ::testing::ValuesIn(CandidateRows), RowName());
INSTANTIATE_TEST_SUITE_P(Steering, ComputerMove, ::testing::ValuesIn(SteeringRows), RowName());
INSTANTIATE_TEST_SUITE_P(Movement2, ComputerMove, ::testing::ValuesIn(Movement2Rows), RowName());
INSTANTIATE_TEST_SUITE_P(SecondPass, ComputerMove, ::testing::ValuesIn(SecondPassRows), RowName());

/// A board of 4 rows and 9 columns; 24 lies in the middle of the third row, which begins with 19.
void Square24(std::string_view blocks = {}) {
    SetBoard(4, 9, blocks);
    LiftPiece(1, 1);
    PutPiece(1, 1, 24, 1);
    Meals({19});
}

// clang-format off
const MoveRow JumpRows[] = {
    {"an_amoeba_in_square_24_jumps_to_19", {"spe"}, 1, [] { Square24(); }, {6, Spot}, 19, 1,
     {"A1 moves triumphantly into square 19"}},
    {"with_a_second_roll_of_6_too", {"spe", "mv1"}, 1, [] { Square24(); }, {1, 6, Spot}, 19, 1,
     {"A1 sashays nonchalantly into square 19."}},
    {"with_a_candidate_it_does_not_jump", {"spe"}, 1, [] { Square24(); Meals({33}); }, {6, 1, Spot}, 33, 1,
     {"A1 moves triumphantly into square 33"}},
    {"a_block_on_19_stops_the_jump", {"spe"}, 1, [] { Square24("19:"); }, {6, 4, Spot, Spot}, 16, 1,
     {"A1 moves triumphantly into square 15", "A1 moves resignedly into 16"}},
    {"no_other_roll_jumps", {"spe"}, 1, [] { Square24(); }, {1, Spot, Spot}, 26, 1,
     {"A1 moves reluctantly into 25", "A1 moves resignedly into 26"}},
    {"no_other_square_jumps", {"spe"}, 1, [] { Square24(); LiftPiece(1, 1); PutPiece(1, 1, 23, 1); },
     {6, 1, Spot, Spot}, 25, 1, {"A1 moves triumphantly into square 24", "A1 moves resignedly into 25"}},
};

const MoveRow FreeDriftRows[] = {
    {"where_it_wants_is_a_square_where_it_can_eat", {}, 0, [] { game.Drift = WhereItWants; MealsBothSides(); },
     {2, Spot}, 14, 0, {"A1 moves resignedly into 14"}},
    {"a_single_one_is_rolled_for", {}, 0, [] { game.Drift = WhereItWants; MealLeft(); }, {1, Spot}, 12, 0,
     {"A1 moves resignedly into 12"}},
    {"its_own_where_it_can_eat", {}, 0, [] { game.Drift = WhereItWants; Meals({12, 13}); }, {}, 13, 0,
     {"A1 remains contentedly in 13"}},
    {"its_own_where_it_can_eat_nowhere", {}, 0, [] { game.Drift = WhereItWants; }, {}, 13, 0,
     {"A1 remains dejectedly in 13"}},
    {"it_is_rolled_for_before_an_active_move_too", {"mv2"}, 1, [] { game.Drift = WhereItWants; MealsBothSides(); },
     {2, 1, Spot}, 12, 1, {"A1 smugly moves into 12"}},
    {"who_may_not_steer_drifts_to_its_one_candidate", {}, 1, [] { game.Drift = WhereItWants; MealLeft(); }, {1, Spot},
     12, 0, {"A1 moves disconsolately into 12"}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Jump, ComputerMove, ::testing::ValuesIn(JumpRows), RowName());
INSTANTIATE_TEST_SUITE_P(WhereItWants, ComputerMove, ::testing::ValuesIn(FreeDriftRows), RowName());

}  // namespace
}  // namespace plasmos::testing
