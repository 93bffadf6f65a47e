// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <functional>

#include "rules/movement.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

constexpr int Right = 1;

/// Amoeba A1 of clan 1, a person's, stands in square 13 of a board of 5 by 5; the current flows to the
/// right, into 14. The last roll of every real move is its spot in the new square.
struct AttemptRow {
    std::string_view Name;
    std::vector<std::string_view> Genes;
    int BP;
    std::vector<Line> Answers;
    std::vector<int> Rolls;
    int Lands;
    int Paid;
    std::vector<std::string> Asked;  ///< the texts of all questions
    std::vector<std::string> Told;   ///< the log
    std::function<void()> Also = [] {};
};

void PrintTo(const AttemptRow& row, std::ostream* out) {
    *out << row.Name;
}

class PersonsMove : public GameRows<AttemptRow> {};

TEST_P(PersonsMove, GoesByTheRules) {
    const AttemptRow& row = GetParam();
    NewPosition(3);
    Person(1);
    Put(1, 1, 13);
    game.Drift = Right;
    game.BP[1] = row.BP;
    for (const auto code : row.Genes) {
        Give(1, code);
    }
    row.Also();
    ScriptedBoard board;
    for (const Line& answer : row.Answers) {
        board.Then(answer);
    }
    {
        Script script(row.Rolls);
        MovePersonsAmoeba(1, 1);
    }
    EXPECT_EQ(game.Amoeba[1][1].Square, row.Lands);
    EXPECT_EQ(row.BP - game.BP[1], row.Paid);
    std::vector<std::string> asked;
    for (const auto& question : board.Questions) {
        asked.push_back(question.Text);
        EXPECT_EQ(question.Clan, 1);
    }
    EXPECT_EQ(asked, row.Asked);
    EXPECT_EQ(board.LogLines, row.Told);
    EXPECT_EQ(game.Message, "") << "nothing is left in the message line";
}

const std::string Drifting = "A1 will drift into 14.\n";
const std::string PayOffer = "Would A1 like to pay 1BP to attempt to move elsewhere?";
const std::string FreeOffer = "Would A1 like to attempt to move elsewhere?";
const std::string Choose = "\nChoose a square for A1 to Move into:";

using Texts = std::vector<std::string>;

const Texts PaidOffer = {Drifting + PayOffer};
const Texts PaidOfferAndChoice = {Drifting + PayOffer, Drifting + PayOffer + Choose};
const Texts PaidOfferAndTwoChoices = {Drifting + PayOffer, Drifting + PayOffer + Choose, Drifting + PayOffer + Choose};
const Texts TwoOffers = {Drifting + PayOffer, FreeOffer};
const Texts StreamlinedOffer = {Drifting + FreeOffer};

/// What the person is told of the dice.
Texts Moves(std::string_view direction, std::string_view word = "instead") {
    return {Concat("Amoeba 1 will move ", direction, " ", word, ".")};
}
Texts MovesTwice(std::string_view first, std::string_view second) {
    return {Moves(first)[0], Moves(second)[0]};
}
const Texts ThenWhereItWants = {Drifting + PayOffer, Moves("where it wants")[0] + Choose};

void FreeCurrent() {
    game.Drift = WhereItWants;
}
template <int Square>
void BlockAt() {
    SetBoard(5, 5, Concat(Square, ":"));
}

// clang-format off
const AttemptRow DriftRows[] = {
    {"no_to_the_offer_lets_it_drift", {}, 2, {No()}, {9}, 14, 0, PaidOffer, {}},
    {"without_BP_nobody_is_asked", {}, 0, {}, {9}, 14, 0, {}, {"A1 will drift into 14."}},
    {"exactly_1_BP_is_enough_for_an_offer", {}, 1, {No()}, {9}, 14, 0, PaidOffer, {}},
    {"a_current_against_the_edge_leaves_it_there", {}, 2, {No()}, {}, 13, 0, {"A1 will remain in 13.\n" + PayOffer},
     {}, BlockAt<14>},
    {"a_current_in_place_leaves_it_there_unasked", {}, 0, {}, {}, 13, 0, {}, {"A1 will remain in 13."}, []
     { game.Drift = 0; }},
    {"streamlining_asks_without_a_price", {"str"}, 2, {No()}, {9}, 14, 0, StreamlinedOffer, {}},
    {"streamlining_is_asked_without_BP_too", {"str"}, 0, {No()}, {9}, 14, 0, StreamlinedOffer, {}},
    {"speed_pays_for_the_first_attempt", {"spe"}, 0, {}, {9}, 14, 0, {}, {"A1 will drift into 14."}},
    {"no_at_the_first_attempt_is_no_second_attempt_for_speed", {"spe"}, 2, {No()}, {9}, 14, 0, PaidOffer, {}},
};
// clang-format on

/// The square that the window marks while the offer is open.
struct SpokenRow {
    std::string_view Name;
    int Drift;
    int Block;  ///< a blocked square; 0: none
    std::vector<Line> Answers;
    std::vector<int> Rolls;
    int About;
};

const SpokenRow SpokenRows[] = {
    {"the_square_the_current_leads_to", Right, 0, {No()}, {9}, 14},
    {"its_own_against_a_block", Right, 14, {No()}, {}, 13},
    {"its_own_in_still_water", 0, 0, {No()}, {}, 13},
    {"none_where_the_current_lets_it_choose", WhereItWants, 0, {No(), Square(13)}, {}, 0},
};

void PrintTo(const SpokenRow& row, std::ostream* out) {
    *out << row.Name;
}

class OfferSpeaksOf : public GameRows<SpokenRow> {};

TEST_P(OfferSpeaksOf, TheSquareOfTheDrift) {
    const SpokenRow& row = GetParam();
    NewPosition(3);
    Person(1);
    Put(1, 1, 13);
    game.BP[1] = 1;
    game.Drift = row.Drift;
    if (row.Block > 0) {
        SetBoard(5, 5, Concat(row.Block, ":"));
    }
    ScriptedBoard board;
    for (const Line& answer : row.Answers) {
        board.Then(answer);
    }
    Script script(row.Rolls);
    MovePersonsAmoeba(1, 1);
    ASSERT_FALSE(board.Questions.empty());
    EXPECT_EQ(board.Questions[0].About, row.About);
}

INSTANTIATE_TEST_SUITE_P(Offer, OfferSpeaksOf, ::testing::ValuesIn(SpokenRows), RowName());

INSTANTIATE_TEST_SUITE_P(Drift, PersonsMove, ::testing::ValuesIn(DriftRows), RowName());

// clang-format off
const AttemptRow DieRows[] = {
    {"yes_pays_1_BP_and_throws_a_die", {}, 2, {Yes()}, {2, 9}, 18, 1, PaidOffer, Moves("Down")},
    {"left", {}, 1, {Yes()}, {3, 9}, 12, 1, PaidOffer, Moves("Left")},
    {"up", {}, 1, {Yes()}, {4, 9}, 8, 1, PaidOffer, Moves("Up")},
    {"the_direction_of_the_current_is_moved_anyway", {}, 2, {Yes()}, {1, 9}, 14, 1, PaidOffer,
     Moves("Right", "anyway")},
    {"a_5_leaves_it_in_place", {}, 2, {Yes()}, {5}, 13, 1, PaidOffer, Moves("in place")},
    {"a_6_lets_it_choose", {}, 2, {Yes(), Square(8)}, {6, 9}, 8, 1, ThenWhereItWants, Moves("where it wants")},
    {"a_die_against_a_block_leaves_it_there_paid", {}, 2, {Yes()}, {3}, 13, 1, PaidOffer, Moves("Left"), BlockAt<12>},
    {"streamlining_throws_free_of_charge", {"str"}, 2, {Yes()}, {2, 9}, 18, 0, StreamlinedOffer, Moves("Down")},
    {"a_click_on_a_square_it_does_not_reach_is_ignored", {}, 2, {Yes(), Square(7), Square(13), Square(8)}, {6, 9}, 8,
     1, ThenWhereItWants, Moves("where it wants")},
    {"holding_may_choose_to_stay", {"hol"}, 2, {Yes(), Square(13)}, {6}, 13, 1, ThenWhereItWants,
     Moves("where it wants")},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Die, PersonsMove, ::testing::ValuesIn(DieRows), RowName());

// clang-format off
const AttemptRow TwoDiceRows[] = {
    {"two_throws_with_movement_1_and_a_choice_of_two", {"mv1"}, 2, {Yes(), Square(18)}, {3, 2, 9}, 18, 1,
     PaidOfferAndChoice, {}},
    {"only_the_two_squares_are_offered", {"mv1"}, 2, {Yes(), Square(14), Square(8), Square(12)}, {3, 2, 9}, 12, 1,
     PaidOfferAndChoice, {}},
    {"a_5_offers_its_own_square", {"mv1"}, 2, {Yes(), Square(13)}, {5, 2}, 13, 1, PaidOfferAndChoice, {}},
    {"equal_throws_move_it_without_a_choice", {"mv1"}, 2, {Yes()}, {4, 4, 9}, 8, 1, PaidOffer,
     {"A1 will move to 8 instead"}},
    {"equal_throws_in_place_let_it_stay", {"mv1"}, 2, {Yes()}, {5, 5}, 13, 1, PaidOffer,
     {"A1 will stay in 13 instead"}},
    {"two_throws_that_both_fail_are_equal", {"mv1"}, 2, {Yes()}, {5, 3}, 13, 1, PaidOffer,
     {"A1 will stay in 13 instead"}, BlockAt<12>},
    {"a_6_on_the_second_throw_lets_it_choose", {"mv1"}, 2, {Yes(), Square(14)}, {2, 6, 9}, 14, 1, PaidOfferAndChoice,
     {}},
    {"a_6_on_the_first_throw_lets_it_choose_and_throw_again", {"mv1"}, 2, {Yes(), Square(12), Square(18)}, {6, 2, 9},
     18, 1, PaidOfferAndTwoChoices, {}},
    {"its_choice_is_one_of_the_two_squares_then", {"mv1"}, 2, {Yes(), Square(12), Square(8), Square(12)}, {6, 2, 9}, 12,
     1, PaidOfferAndTwoChoices, {}},
    {"a_second_throw_to_the_chosen_square_asks_no_more", {"mv1"}, 2, {Yes(), Square(18)}, {6, 2, 9}, 18, 1,
     PaidOfferAndChoice, {"A1 will move to 18 instead"}},
    {"two_sixes_let_it_choose_twice", {"mv1"}, 2, {Yes(), Square(12), Square(8)}, {6, 6, 9}, 8, 1,
     PaidOfferAndTwoChoices, {}},
    {"movement_2_chooses_without_a_die", {"mv2"}, 2, {Yes(), Square(8)}, {9}, 8, 1, PaidOfferAndChoice, {}},
    {"movement_2_with_streamlining_costs_nothing", {"mv2", "str"}, 0, {Yes(), Square(12)}, {9}, 12, 0,
     {Drifting + FreeOffer, Drifting + FreeOffer + Choose}, {}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Genes, PersonsMove, ::testing::ValuesIn(TwoDiceRows), RowName());

// clang-format off
const AttemptRow SecondRows[] = {
    {"speed_makes_a_second_attempt_free", {"spe"}, 1, {Yes(), Yes()}, {2, 9, 1, 9}, 19, 1, TwoOffers,
     MovesTwice("Down", "Right")},
    {"persistence_does_the_same", {"per"}, 1, {Yes(), Yes()}, {2, 9, 3, 9}, 17, 1, TwoOffers,
     MovesTwice("Down", "Left")},
    {"no_at_the_second_attempt_stays_where_the_first_led", {"spe"}, 2, {Yes(), No()}, {2, 9}, 18, 1, TwoOffers,
     Moves("Down")},
    {"there_is_no_third_attempt", {"per"}, 5, {Yes(), Yes()}, {5, 5}, 13, 1, TwoOffers,
     MovesTwice("in place", "in place")},
    {"without_speed_there_is_one_attempt", {"str"}, 5, {Yes()}, {5}, 13, 0, StreamlinedOffer, Moves("in place")},
    {"speed_with_streamlining_pays_nothing_at_all", {"spe", "str"}, 0, {Yes(), Yes()}, {2, 9, 2, 9}, 23, 0,
     {Drifting + FreeOffer, FreeOffer}, MovesTwice("Down", "Down")},
    {"movement_2_chooses_twice", {"spe", "mv2"}, 1, {Yes(), Square(8), Yes(), Square(3)}, {9, 9}, 3, 1,
     {Drifting + PayOffer, Drifting + PayOffer + Choose, FreeOffer, FreeOffer + Choose}, {}},
    {"a_second_attempt_is_offered_after_a_first_that_failed", {"spe"}, 1, {Yes(), Yes()}, {5, 4, 9}, 8, 1, TwoOffers,
     MovesTwice("in place", "Up")},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(SecondAttempt, PersonsMove, ::testing::ValuesIn(SecondRows), RowName());

// clang-format off
const AttemptRow FreeDriftRows[] = {
    {"a_current_where_it_wants_offers_without_a_drift_message", {}, 1, {Yes()}, {2, 9}, 18, 1, {PayOffer},
     Moves("Down"), FreeCurrent},
    {"no_lets_it_choose_where_to_drift_free", {}, 1, {No(), Square(8)}, {9}, 8, 0, {PayOffer, PayOffer + Choose}, {},
     FreeCurrent},
    {"its_own_square_is_one_of_them", {}, 1, {No(), Square(13)}, {}, 13, 0, {PayOffer, PayOffer + Choose}, {},
     FreeCurrent},
    {"without_BP_it_chooses_at_once", {}, 0, {Square(12)}, {9}, 12, 0, {Choose}, {}, FreeCurrent},
    {"a_6_is_then_the_direction_of_the_current", {}, 1, {Yes(), Square(8)}, {6, 9}, 8, 1,
     {PayOffer, "Amoeba 1 will move where it wants anyway." + Choose}, Moves("where it wants", "anyway"),
     FreeCurrent},
    {"hemmed_in_it_stays_without_a_choice", {}, 0, {}, {}, 13, 0, {}, {}, []
     { FreeCurrent(); SetBoard(5, 5, "8:12:14:18:"); }},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(WhereItWants, PersonsMove, ::testing::ValuesIn(FreeDriftRows), RowName());

}  // namespace
}  // namespace plasmos::testing
