// SPDX-License-Identifier: GPL-3.0-or-later
// Why a computer clan's amoeba eats what it eats, whom it fights, and how the attacked answers.
#include "rules/aggression.h"
#include "rules/fight.h"
#include "tests/support/reason_rows.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

/// The spot that every real move rolls in its new square.
constexpr int Spot = 9;

class FeedReasons : public Reasons {};

TEST_P(FeedReasons, AreTold) {
    Expect(GetParam(), Step::Feed, [] { ComputerFeedAmoeba(1, 1, 13); });
}

void Beside(std::initializer_list<int> clans) {
    for (const int clan : clans) {
        Put(clan, 1, 13);
    }
}
void Easy() {
    game.Menu.normmen = false;
}
constexpr std::string_view Defenceless = "B1 has neither Escape nor Defence.";

// clang-format off
const ReasonRow MealRows[] = {
    {"the_standard_meal", [] { Feed(13, {9, 3, 2, 1}); }, {},
     {"A1 finds 3, 2 and 1 pieces of other clans' food in square 13: its meal is 111."}},
    {"frugality_eats_less", [] { Give(1, "fru"); Feed(13, {0, 3, 2, 0}); }, {},
     {"A1 finds 3 and 2 pieces of other clans' food in square 13: with Frugality its meal is 11."}},
    {"substitution_and_equal_heaps", [] { Give(1, "sub"); Feed(13, {0, 3, 1, 1}); game.Food[13][4] = 3; }, {},
     {"A1 finds 3, 3 and 1 pieces of other clans' food in square 13: with Substitution its meal is 111."}},
    {"of_equal_heaps_the_leaders_go_first", [] { Give(1, {"sub", "fru"}); Feed(13, {0, 4, 4, 0}); }, {},
     {"A1 finds 4 and 4 pieces of other clans' food in square 13: with Substitution and Frugality its meal is 31.",
      "Of heaps of the same size those of the clans with the higher scores are eaten first."}},
    {"ten_count_as_nine", [] { Feed(13, {0, 30, 1, 1}); }, {},
     {"A1 finds 9 or more, 1 and 1 pieces of other clans' food in square 13: its meal is 111."}},
    {"no_meal_and_no_fighter", [] { Beside({2}); }, {}, {"A1 cannot eat in square 13, so it starves."}},
    {"a_fighter_without_BP", [] { Give(1, "sfs"); Beside({2}); game.BP[1] = 0; }, {},
     {"A1 cannot eat in square 13, its clan has no BP to fight for food, so it starves."}},
    {"a_fighter_alone", [] { Give(1, {"sfs", "par"}); }, {},
     {"A1 cannot eat in square 13, there is nobody it may fight, nobody lends what is missing, so it starves."}},
    {"one_host", [] { Give(1, "par"); Beside({2, 3}); game.BP[3] = 1; Feed(13, {0, 0, 1, 1}); }, {},
     {"A1 cannot eat in square 13, but with what Player 3 lends, the first clan there with a BP, the meal is 111."}},
    {"two_hosts", [] { Give(1, "par"); Beside({2, 3}); game.BP[2] = game.BP[3] = 1; Feed(13, {0, 0, 0, 1}); }, {},
     {"A1 cannot eat in square 13, but with what Player 2 and Player 3 lend, the first clans there with a BP, the meal "
      "is 111."}},
};

const ReasonRow StruggleRows[] = {
    {"normal_goes_by_the_order_of_play", [] { Give(1, "sfs"); Beside({2, 3}); }, {4},
     {"A1 cannot eat in square 13 and fights Player 2 for 1 BP, the first clan there without Armor in the order of play.",
      std::string(Defenceless)}},
    {"the_least_damaged_is_picked", [] { Give(1, "sfs"); Beside({2}); Put(2, 2, 13); game.Amoeba[1][2].Damage = 1; }, {4},
     {"A1 cannot eat in square 13 and fights Player 2 for 1 BP, the first clan there without Armor in the order of play.",
      "Of the 2 amoebas of Player 2 in square 13 it picks B2, the first with the least damage.",
      "B2 has neither Escape nor Defence."}},
    {"easy_counts_from_a_die", [] { Easy(); Give(1, "sfs"); Beside({2, 3}); Give(2, "def"); game.BP[2] = 1; }, {2},
     {"The die put Player 2 first among the clans to fight.",
      "A1 cannot eat in square 13 and fights Player 3 for 1 BP, the first clan there without Armor that can neither "
      "escape nor defend itself.", "C1 has neither Escape nor Defence."}},
    {"easy_has_a_second_choice", [] { Easy(); Give(1, "sfs"); Beside({2}); Give(2, "def"); game.BP[2] = 1; }, {2, 6, 1},
     {"A1 cannot eat in square 13 and finds nobody defenceless there: for 1 BP it fights Player 2, in the order of play "
      "the first without Armor that lacks Streamlining, Escape or a Movement gene.",
      "B1 pays 1 BP to defend itself, as its clan always does while it has one.",
      "Its dice threw 6 and 1: the first is not the lower one, so the defence fails."}},
    {"nobody_but_armour", [] { Give(1, "agg"); Beside({2}); Give(2, "arm"); }, {1},
     {"All clans it could fight there have Armor.", "A1 cannot eat in square 13, so it starves."}},
    {"nobody_but_the_quick", [] { Easy(); Give(1, "agg"); Beside({2}); Give(2, {"str", "esc", "mv1"}); }, {1},
     {"All clans it could fight there have Armor, or Streamlining with Escape and a Movement gene.",
      "A1 cannot eat in square 13, so it starves."}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Meals, FeedReasons, ::testing::ValuesIn(MealRows), RowName());
INSTANTIATE_TEST_SUITE_P(Struggles, FeedReasons, ::testing::ValuesIn(StruggleRows), RowName());

/// B1 is attacked in 13 while A1 acts, and its clan has 1 BP.
class AnswerReasons : public Reasons {};

TEST_P(AnswerReasons, AreTold) {
    Put(2, 1, 13);
    game.BP[2] = 1;
    Expect(GetParam(), Step::Feed, [] {
        bool hungry = true;
        AttackToEat(2, 13, 1, hungry, 1);
    });
}

constexpr const char* Tries = "B1 tries to escape, for 1 BP.";

// clang-format off
const ReasonRow AnswerRows[] = {
    {"neither", [] {}, {}, {std::string(Defenceless)}},
    {"no_BP_to_escape", [] { Give(2, "esc"); game.BP[2] = 0; }, {}, {"B1 cannot try to escape: its clan has no BP."}},
    {"no_BP_to_defend", [] { Give(2, "def"); game.BP[2] = 0; }, {}, {"B1 cannot defend itself: its clan has no BP."}},
    {"dying_anyway", [] { Give(2, {"esc", "def"}); game.Amoeba[1][2].Damage = 2; }, {},
     {"B1 does not try to escape: its damage, 2, is deadly anyway.",
      "B1 does not defend itself: its damage, 2, is deadly anyway."}},
    {"a_die_decides", [] { Give(2, "esc"); }, {3, Spot}, {Tries, "The die threw 3, left into 12."}},
    {"a_5_fails_and_the_last_BP_is_gone", [] { Give(2, {"esc", "def"}); }, {5},
     {Tries, "The die threw 5, in place.", "B1 cannot defend itself: its clan has no BP."}},
    {"a_6_takes_a_meal", [] { Give(2, {"esc", "str"}); Feed(18, {1, 0, 1, 1}); }, {6, Spot},
     {"B1 tries to escape, free with Streamlining.",
      "The die threw 6, so it chooses its way: 18, the first where it can eat and none of its clan is."}},
    {"movement_2_without_a_meal", [] { Give(2, {"esc", "mv2"}); }, {Spot},
     {Tries, "With Movement 2 it chooses its way: 12, the first where none of its clan is, as it could eat in none of "
             "those."}},
    {"its_clan_all_around", [] { Give(2, {"esc", "mv2"}); Put(2, 2, 8); Put(2, 3, 12); Put(2, 4, 14); Put(2, 5, 18); },
     {2, Spot}, {Tries, "With Movement 2 it chooses its way, but its clan is all around: the die threw 2, down into 18."}},
    {"movement_1_has_two_dice", [] { Give(2, {"esc", "mv1"}); Feed(8, {1, 0, 1, 1}); }, {2, 4, Spot},
     {Tries, "The die threw 2, down into 18, and Movement 1 throws a second.",
      "The second die threw 4, up into 8, and it takes 8, the first where it can eat and none of its clan is."}},
    {"two_bad_dice", [] { Give(2, {"esc", "mv1"}); Put(2, 2, 8); Put(2, 3, 18); }, {4, 2, Spot},
     {Tries, "The die threw 4, up into 8, and Movement 1 throws a second.",
      "The second die threw 2, down into 18, and with neither square free of its clan the first counts."}},
    {"a_defence_holds", [] { Give(2, "def"); }, {3, 3, 2, 5},
     {"B1 pays 1 BP to defend itself, as its clan always does while it has one.",
      "Its dice threw 2 and 5: the first is lower, which beats the attack off."}},
    {"persistence_defends_twice", [] { Give(2, {"def", "per"}); game.BP[2] = 2; }, {5, 2, 1, 2},
     {"B1 pays 1 BP to defend itself, as its clan always does while it has one.",
      "Its dice threw 5 and 2: the first is not the lower one, so the defence fails.",
      "B1, with Persistence, pays 1 BP to defend itself again, as its clan always does while it has one.",
      "Its dice threw 1 and 2: the first is lower, which beats the attack off."}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Answers, AnswerReasons, ::testing::ValuesIn(AnswerRows), RowName());

/// A clan with Aggression looks for somebody to attack; A2 stands in square 7.
class AttackReasons : public Reasons {};

TEST_P(AttackReasons, AreTold) {
    Give(1, "agg");
    Put(1, 2, 7);
    GetParam().Set();
    ReasonEar ear;
    Script script(GetParam().Rolls);
    AggressionPhase();
    EXPECT_EQ(ear.Told, GetParam().Told);
}

void Meet(int clan, int square, std::string_view gene, int damage = 0) {
    Put(clan, 1, square);
    game.Amoeba[1][clan].Damage = damage;
    Give(clan, gene);
}

constexpr const char* FirstIs3 = "The die put Player 3 first among the clans to attack.";

// clang-format off
const ReasonRow AttackRows[] = {
    {"nobody_there", [] {}, {2}, {"No attack: no amoeba of Player 1 shares a square with somebody it may attack."}},
    {"nobody_worth_it", [] { Meet(2, 13, "arm"); Meet(3, 7, "def"); }, {2},
     {"No attack: whoever Player 1 may attack where it stands is undamaged there and has Defence or Armor, or Escape with "
      "Streamlining or Movement 2."}},
    {"the_defenceless", [] { Put(2, 1, 13); }, {3},
     {FirstIs3, "A1 attacks Player 2 in square 13 for 1 BP: that clan has neither Escape nor Defence nor Armor.",
      "B1 has neither Escape nor Defence."}},
    {"the_damaged", [] { Meet(2, 13, "esc"); Meet(3, 7, "arm", 1); }, {3},
     {FirstIs3, "A2 attacks Player 3 in square 7 for 1 BP: all it could attack have Escape, Defence or Armor, but that "
                "clan has a damaged amoeba there.",
      "C1 has neither Escape nor Defence."}},
    {"who_escapes_badly", [] { Meet(2, 13, "esc"); }, {3},
     {FirstIs3, "A1 attacks Player 2 in square 13 for 1 BP: that clan has neither Defence nor Armor, and neither "
                "Streamlining nor Movement 2 to escape.",
      "B1 cannot try to escape: its clan has no BP."}},
    {"the_most_damaged_in_armour", [] { Meet(2, 13, "arm"); Put(2, 2, 13); game.Amoeba[2][2].Damage = 1; }, {3},
     {FirstIs3, "A1 attacks Player 2 in square 13 for 1 BP: all it could attack have Escape, Defence or Armor, but that "
                "clan has a damaged amoeba there.",
      "Of the 2 amoebas of Player 2 in square 13 it picks B2, the first with the most damage, as they have Armor.",
      "B2 has neither Escape nor Defence."}},
    {"persistence_attacks_again", [] { Give(1, "per"); Meet(2, 13, "esc"); Put(3, 1, 13); Give(3, "def"); game.BP[2] = 1; },
     {2, 3, Spot},
     {"The die put Player 2 first among the clans to attack.",
      "A1 attacks Player 2 in square 13 for 1 BP: that clan has neither Defence nor Armor, and neither Streamlining nor "
      "Movement 2 to escape.", "B1 tries to escape, for 1 BP.", "The die threw 3, left into 12.",
      "With Persistence A1 attacks once more, free: Player 3 is the first victim that is left there.",
      "C1 cannot defend itself: its clan has no BP."}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Attacks, AttackReasons, ::testing::ValuesIn(AttackRows), RowName());

using PersonsReasons = GameTest;

TEST_F(PersonsReasons, AreTheirOwn) {
    NewPosition(4);
    Person(2);
    Put(1, 1, 13);
    Put(2, 1, 13);
    Give(2, "def");
    game.BP[2] = 1;
    ReasonEar ear;
    ScriptedBoard board;
    board.Then(Yes());
    Script script({2, 5});
    RunStep(Step::Attack, 1, 1, [] { AttackAmoeba(2, 13, 0); });
    EXPECT_EQ(ear.Told, std::vector<std::string>());
}

}  // namespace
}  // namespace plasmos::testing
