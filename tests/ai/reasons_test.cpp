// SPDX-License-Identifier: GPL-3.0-or-later
// Why a computer clan's amoeba moves where it moves and eats what it eats.
#include "tests/support/reason_rows.h"

namespace plasmos::testing {
namespace {

/// The spot that every real move rolls in its new square.
constexpr int Spot = 9;

class MoveReasons : public Reasons {};

TEST_P(MoveReasons, AreTold) {
    Expect(GetParam(), Step::Move, [] { ComputerMoveAmoeba(1, 1); });
}

void Nothing() {}
void MealLeft() {
    Meals({12});
}
void MealsBothSides() {
    Meals({12, 14});
}
template <class More>
auto With(std::initializer_list<std::string_view> genes, More&& more) {
    return [genes = std::vector<std::string_view>(genes), more] {
        for (const auto code : genes) {
            Give(1, code);
        }
        more();
    };
}

// clang-format off
const ReasonRow DriftRows[] = {
    {"holding_a_meal", With({"hol"}, [] { Meals({13}); }), {},
     {"A1 can eat in square 13, and with Holding it stays there."}},
    {"fed_it_drifts", [] { Meals({12, 13}); }, {Spot},
     {"A1 can eat in square 13, so it pays for no move: it drifts into 14."}},
    {"fed_in_a_still_current", [] { Meals({13}); game.Drift = 0; }, {},
     {"A1 can eat in square 13, so it pays for no move: the current leaves it in 13."}},
    {"no_BP", [] { MealsBothSides(); game.BP[1] = 0; }, {Spot},
     {"A1 cannot eat in square 13, but its clan has no BP to move elsewhere: it drifts into 14."}},
    {"nothing_within_reach", Nothing, {Spot},
     {"A1 cannot eat in square 13; there is no meal for it in the squares 8, 12, 14 and 18, so it pays for no move: "
      "it drifts into 14."}},
    {"nothing_for_a_fighter_either", With({"sfs"}, Nothing), {Spot},
     {"A1 cannot eat in square 13; there is neither a meal nor prey for it in the squares 8, 12, 14 and 18, so it "
      "pays for no move: it drifts into 14."}},
    {"walled_in", [] { SetBoard(5, 5, "8:12:14:18:"); }, {},
     {"A1 cannot eat in square 13; there is no way out, so it pays for no move: the current leaves it in 13."}},
    {"one_square_without_the_genes_for_it", MealLeft, {Spot},
     {"A1 cannot eat in square 13; of the squares 8, 12, 14 and 18 it can eat in 12, but for that alone it pays only "
      "with Movement 1, Speed or Persistence: it drifts into 14."}},
    {"a_free_drift_takes_one_of_its_meals", [] { MealsBothSides(); game.Drift = WhereItWants; game.BP[1] = 0; },
     {2, Spot},
     {"A1 cannot eat in square 13, but its clan has no BP to move elsewhere: the current lets it choose where it can "
      "eat, and the die took 14 of the squares 12 and 14."}},
    {"a_free_drift_to_the_only_meal", [] { MealLeft(); game.Drift = WhereItWants; game.BP[1] = 0; }, {1, Spot},
     {"A1 cannot eat in square 13, but its clan has no BP to move elsewhere: the current lets it choose where it can "
      "eat, and 12 is the only one."}},
    {"a_free_drift_without_a_meal", [] { game.Drift = WhereItWants; game.BP[1] = 0; }, {},
     {"A1 cannot eat in square 13, but its clan has no BP to move elsewhere: the current lets it choose, and with no "
      "meal to drift to it stays there."}},
    {"a_free_drift_at_its_meal", [] { Meals({13}); game.Drift = WhereItWants; }, {},
     {"A1 can eat in square 13, so it pays for no move: the current lets it choose, and it stays there."}},
};

const ReasonRow DiceRows[] = {
    {"two_meals_are_worth_a_throw", MealsBothSides, {3, Spot},
     {"A1 cannot eat in square 13; of the squares 8, 12, 14 and 18 it can eat in 12 and 14, and for more than one it "
      "throws for a direction, for 1 BP.", "The die threw 3, left into 12."}},
    {"the_die_leads_astray", With({"str"}, MealsBothSides), {2, Spot},
     {"A1 cannot eat in square 13; of the squares 8, 12, 14 and 18 it can eat in 12 and 14, and for more than one it "
      "throws for a direction, free with Streamlining.", "The die threw 2, down into 18, where it did not want to go."}},
    {"a_6_chooses_by_die", MealsBothSides, {6, 2, Spot},
     {"A1 cannot eat in square 13; of the squares 8, 12, 14 and 18 it can eat in 12 and 14, and for more than one it "
      "throws for a direction, for 1 BP.", "The die threw 6, which lets it choose: the die took 14 of the squares 12 and 14."}},
    {"the_way_is_barred", [] { SetBoard(5, 5, "8:"); MealsBothSides(); }, {4},
     {"A1 cannot eat in square 13; of the squares 12, 14 and 18 it can eat in 12 and 14, and for more than one it "
      "throws for a direction, for 1 BP.", "The die threw 4, up, where the way is barred."}},
    {"prey_counts_for_fighters", With({"agg"}, [] { MealLeft(); Put(2, 1, 18); }), {2, Spot},
     {"A1 cannot eat in square 13; of the squares 8, 12, 14 and 18 it can eat in 12 and finds prey in 18, and for more "
      "than one it throws for a direction, for 1 BP.", "The die threw 2, down into 18."}},
    {"its_own_square_counts_twice_in_a_corner", With({"sfs"}, []
     { LiftPiece(1, 1); PutPiece(1, 1, 1, 1); Put(2, 1, 1); }), {6, 2},
     {"A1 cannot eat in square 1; of the squares 1, 2 and 6 it finds prey in 1 (twice), and for more than one it "
      "throws for a direction, for 1 BP.", "The die threw 6, which lets it choose: 1 is the only one."}},
    {"movement_1_asks_a_coin", With({"mv1"}, MealLeft), {1, Spot},
     {"A1 cannot eat in square 13; of the squares 8, 12, 14 and 18 it can eat in 12, and for that alone a coin "
      "decides: it threw 1, so it pays for no move: it drifts into 14."}},
    {"the_coin_agrees_and_a_second_die_hits", With({"mv1"}, MealLeft), {2, 1, 3, Spot},
     {"A1 cannot eat in square 13; of the squares 8, 12, 14 and 18 it can eat in 12, and for that alone a coin "
      "decides: it threw 2, so it throws for a direction, for 1 BP.",
      "The die threw 1, right into 14, and with Movement 1 it is thrown again.", "The die threw 3, left into 12."}},
    {"one_damage_needs_no_coin", With({"mv1"}, [] { MealLeft(); game.Amoeba[1][1].Damage = 1; }), {3, Spot},
     {"A1 cannot eat in square 13; of the squares 8, 12, 14 and 18 it can eat in 12, and with 1 damage and Movement 1 "
      "it throws for a direction, for 1 BP.", "The die threw 3, left into 12."}},
    {"streamlining_needs_no_coin", With({"mv1", "str"}, MealLeft), {6, 1, Spot},
     {"A1 cannot eat in square 13; of the squares 8, 12, 14 and 18 it can eat in 12, and with Movement 1 it throws for "
      "a direction, free with Streamlining.", "The die threw 6, which lets it choose: 12 is the only one."}},
    {"movement_2_needs_no_direction", With({"mv2"}, MealsBothSides), {2, Spot},
     {"A1 cannot eat in square 13; of the squares 8, 12, 14 and 18 it can eat in 12 and 14, and with Movement 2 it goes "
      "there without a direction die, for 1 BP.", "Where to go: the die took 14 of the squares 12 and 14."}},
    {"movement_2_with_speed_looks_further", With({"mv2", "spe"}, [] { Meals({15}); }), {Spot},
     {"A1 cannot eat in square 13; there is no meal for it in the squares 8, 12, 14 and 18.",
      "With Movement 2 and Speed it looks a square further, right, down, left, up: from 14 a meal is next door."}},
    {"and_sees_nothing", With({"mv2", "per"}, Nothing), {3, Spot},
     {"A1 cannot eat in square 13; there is no meal for it in the squares 8, 12, 14 and 18.",
      "With Movement 2 and Persistence it looks a square further and sees no meal there either: the die threw 3, left "
      "into 12."}},
};

const ReasonRow SecondTryRows[] = {
    {"speed_throws_always_and_again", With({"spe"}, Nothing), {2, Spot, 5},
     {"A1 cannot eat in square 13; there is no meal for it in the squares 8, 12, 14 and 18, and with Speed it always "
      "throws for a direction, for 1 BP.", "The die threw 2, down into 18.",
      "Speed lets A1 try once more, as it cannot eat in square 18; there is no meal for it in the squares 13, 17, 19 and "
      "23, and it throws for a direction again, free this time.",
      "With nothing to go for, a die of 5 decides: it threw 5, in place."}},
    {"persistence_found_something_new", With({"per"}, [] { Meals({23}); }), {2, Spot, 2, Spot},
     {"A1 cannot eat in square 13; there is no meal for it in the squares 8, 12, 14 and 18, and with Persistence it "
      "always throws for a direction, for 1 BP.", "The die threw 2, down into 18.",
      "Persistence lets A1 try once more, as it cannot eat in square 18; of the squares 13, 17, 19 and 23 it can eat in "
      "23, and it throws for a direction again, free this time.", "The die threw 2, down into 23."}},
    {"with_its_last_BP_spent_it_drifts", With({"spe"}, [] { game.BP[1] = 1; }), {6, 4, Spot, Spot},
     {"A1 cannot eat in square 13; there is no meal for it in the squares 8, 12, 14 and 18, and with Speed it always "
      "throws for a direction, for 1 BP.",
      "The die threw 6, and with nothing to go for, a die of 4 decides: it threw 4, up into 8.",
      "Speed lets A1 try once more, as it cannot eat in square 8, but its clan has no BP to move elsewhere: it drifts "
      "into 9."}},
    {"the_jump_from_24", With({"spe"}, [] { LiftPiece(1, 1); PutPiece(1, 1, 24, 1); Meals({19}); game.Food[19][3] = 0;
     game.BP[1] = 1; }), {6, Spot, Spot},
     {"A1 cannot eat in square 24; there is no meal for it in the squares 19, 23 and 25, and with Speed it always "
      "throws for a direction, for 1 BP.",
      "The die threw 6, and with nothing to go for, an amoeba in square 24 jumps to 19.",
      "Speed lets A1 try once more, as it cannot eat in square 19, but its clan has no BP to move elsewhere: it drifts "
      "into 20."}},
    {"a_tentacle_brings_the_meal", With({"ten"}, [] { Feed(13, {0, 1, 0, 0}); Feed(14, {0, 0, 1, 1}); game.BP[1] = 0; }),
     {Spot},
     {"A1 cannot eat in square 13, but its clan has no BP to move elsewhere: it drifts into 14.",
      "Its tentacle takes a piece of Player 2's food along, with which it can eat in 14."}},
    {"others_ride_along", [] { Put(2, 1, 13); Give(2, "hol"); Feed(14, {1, 0, 1, 1}); game.BP[1] = 0; }, {Spot, Spot + 1},
     {"A1 cannot eat in square 13, but its clan has no BP to move elsewhere: it drifts into 14.",
      "With Holding Player 2 rides along: it cannot eat in square 13, but can in 14."}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Drift, MoveReasons, ::testing::ValuesIn(DriftRows), RowName());
INSTANTIATE_TEST_SUITE_P(Dice, MoveReasons, ::testing::ValuesIn(DiceRows), RowName());
INSTANTIATE_TEST_SUITE_P(SecondTry, MoveReasons, ::testing::ValuesIn(SecondTryRows), RowName());

}  // namespace
}  // namespace plasmos::testing
