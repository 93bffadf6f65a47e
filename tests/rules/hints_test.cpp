// SPDX-License-Identifier: GPL-3.0-or-later
//
// What stands beside a question: the price of its answers, what they bring, and which question it is.

#include "rules/hints.h"

#include <gmock/gmock.h>

#include "flow/new_game.h"
#include "rules/environment.h"
#include "rules/feeding.h"
#include "rules/fight.h"
#include "rules/move_amoeba.h"
#include "rules/movement.h"
#include "rules/new_genes.h"
#include "tests/rules/hint_rows.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;

TEST_P(Hints, StandBesideTheQuestions) {
    ScriptedBoard board;
    Play(board);
    std::vector<std::string> hints;
    for (const auto& question : board.Questions) {
        hints.push_back(question.Hint);
    }
    EXPECT_EQ(hints, GetParam().Hints);
}

TEST_P(Hints, AreNotMadeWhereNobodyReadsThem) {
    ScriptedBoard board;
    board.Hints = false;
    Play(board);
    for (const auto& question : board.Questions) {
        EXPECT_EQ(question.Hint, "");
    }
    EXPECT_FALSE(board.Questions.empty());
}

void Move() {
    MovePersonsAmoeba(1, 1);
}

/// A computer clan's amoeba beside A1 attacks it.
void Attacked(Assault assault) {
    Put(2, 1, 11);
    game.CurPlayer = 2;
    bool hungry = true;
    if (assault == Assault::ToEat) {
        AttackToEat(1, 11, 2, hungry, 1);
    } else {
        AttackAmoeba(1, 11, 1);
    }
}

const std::string Die = "1 right, 2 down, 3 left (stays), 4 up, 5 stays, 6 you choose";
const std::string Drifts = ". No: it drifts, and finds no menu there.";
const std::string Stays = ". No: it stays, and finds no menu there.";

const HintRow HintRows[] = {
    {"the_offer_to_move",
     {},
     {5},
     Move,
     {Yes()},
     {"Yes: 1 BP, wherever it leads. Die: " + Die + Drifts + " Better with Movement 1, Speed, Streamlining."}},
    {"the_offer_where_the_drift_finds_a_meal",
     {"str"},
     {5, 5},
     [] {
         Feed(12, {0, 2, 1});
         Move();
     },
     {No()},
     {"Yes: free (Streamlining). Die: " + Die + ". No: it drifts. Better with Movement 1, Speed."}},
    {"the_offer_with_all_its_genes",
     {"mv2", "per", "str"},
     {1, 1},
     Move,
     {Yes(), Square(6), No()},
     {"Yes: free (Streamlining). You choose the square (Movement 2). No: it drifts, and finds no menu there.",
      "Movement 2: no die.",
      "Yes: free (Streamlining). You choose the square (Movement 2). No: it stays, and finds no menu there."}},
    {"the_second_attempt",
     {"spe"},
     {5},
     Move,
     {Yes(), No()},
     {"Yes: 1 BP, wherever it leads. Die: " + Die + Drifts + " Better with Movement 1, Streamlining.",
      "Yes: free, the second attempt (Speed). Die: " + Die + Stays}},
    {"a_six",
     {},
     {6, 1},
     Move,
     {Yes(), Square(6)},
     {"Yes: 1 BP, wherever it leads. Die: " + Die + Drifts + " Better with Movement 1, Speed, Streamlining.",
      "The die shows 6: you choose."}},
    {"both_throws",
     {"mv1"},
     {1, 2, 1},
     Move,
     {Yes(), Square(16)},
     {"Yes: 1 BP, wherever it leads. Two throws, you choose between them (Movement 1): " + Die + Drifts +
          " Better with Movement 2, Speed, Streamlining.",
      "First throw: Right, square 12. Second throw: Down, square 16. Take one of them."}},
    {"a_six_in_the_second_throw",
     {"mv1", "spe", "str"},
     {4, 6, 1},
     Move,
     {Yes(), Square(12), No()},
     {"Yes: free (Streamlining). Two throws, you choose between them (Movement 1): " + Die + Drifts +
          " Better with Movement 2.",
      "Second throw: 6, you choose. The first was Up, square 6.",
      "Yes: free (Streamlining). Two throws, you choose between them (Movement 1): 1 right, 2 down, 3 left, 4 up, 5 "
      "stays, 6 you choose. No: it stays, and finds no menu there."}},
    {"a_six_in_the_first_throw",
     {"mv1"},
     {6, 2, 1},
     Move,
     {Yes(), Square(12), Square(16)},
     {"Yes: 1 BP, wherever it leads. Two throws, you choose between them (Movement 1): " + Die + Drifts +
          " Better with Movement 2, Speed, Streamlining.",
      "First throw: 6, you choose. If another throw follows, you choose between the two.",
      "First throw: your choice, square 12. Second throw: Down, square 16. Take one of them."}},
    // The coins of the computer clans fall so that they divide nothing.
    {"division_and_placing",
     {},
     {1, 1, 2, 2},
     DivisionPhase,
     {Yes(), Number(2), Square(1), Square(2)},
     {"6 BP each, you have 19: 3 at most. 1 of 7 are on the board.",
      "6 BP each, you have 19: 3 at most. 1 of 7 are on the board.",
      "Amoeba 1 of 2. Every square without one of yours is offered.",
      "Amoeba 2 of 2. Squares next to yours are offered."}},
    {"division_of_a_clan_without_an_amoeba",
     {"div"},
     {1, 2, 2},
     [] {
         RemoveAmoeba(1, 1, 0);
         DivisionPhase();
     },
     {Yes(), Number(1), Square(1)},
     {"4 BP (Division Rate) each, you have 19: 5 at most, the first of them free. 0 of 7 are on the board.",
      "4 BP (Division Rate) each, you have 19: 5 at most, the first of them free. 0 of 7 are on the board.",
      "Amoeba 1 of 1. Empty squares are offered."}},
    {"defence_against_being_eaten",
     {"def", "per"},
     {6, 1, 6, 1},
     [] { Attacked(Assault::ToEat); },
     {Yes(), Yes()},
     {"B1 (1) of Player 2 attacks to eat it. 1 BP of 9: one chance in two to beat it off; else once more for 1 BP "
      "(Persistence), or it is eaten.",
      "B1 (1) of Player 2 attacks to eat it. 1 BP of 8: one chance in two to beat it off; else it is eaten."}},
    {"escape_from_aggression",
     {"esc", "def"},
     {5},
     [] { Attacked(Assault::Aggression); },
     {Yes(), No()},
     {"B1 (1) of Player 2 attacks it. 1 BP. Die: " + Die +
          ". In another square it is safe; else it may defend itself, or it is torn to pieces.",
      "B1 (1) of Player 2 attacks it. 1 BP of 8: one chance in two to beat it off; else it is torn to pieces."}},
    {"escape_in_armour",
     {"esc", "arm", "str"},
     {5},
     [] { Attacked(Assault::Aggression); },
     {No()},
     {"B1 (1) of Player 2 attacks it. Free (Streamlining). Die: " + Die +
      ". In another square it is safe; else it takes 1 damage (Armor)."}},
    {"a_meal",
     {},
     {},
     [] {
         Feed(11, {0, 2, 1});
         FeedAmoeba(11, 1);
     },
     {EatSuggested()},
     {"A meal leaves 2 pieces of your own colour here."}},
    {"the_struggle",
     {"sfs"},
     {},
     [] {
         Put(2, 1, 11);
         FeedAmoeba(11, 1);
     },
     {Struggle(), Pick({{2, 1}})},
     {"There is nothing to eat here. Starve: 1 damage; it has 0 and dies of 2. Struggle: 1 BP for a fight; won, it has "
      "eaten, lost, it starves.",
      "1 BP of your 9, paid with the pick. Won: it has eaten and 1 piece of every colour lies here. If the victim "
      "escapes or defends itself yours starves: damage 1 of 2."}},
    {"the_parasite",
     {"par"},
     {},
     [] {
         Put(2, 1, 11);
         game.BP[2] = 1;
         Feed(11, {0, 2, 0});
         FeedAmoeba(11, 1);
     },
     {Parasitize(), Pick({{2, 1}}), Eat({0, 2, 0})},
     {"There is nothing to eat here. Starve: 1 damage; it has 0 and dies of 2. Parasitism: each host lends 1 piece and "
      "pays 1 BP; you pay nothing.",
      "The host's clan lends 1 piece and pays 1 BP when you eat; you pay nothing and the host takes no damage. At most "
      "2 hosts."}},
    {"the_tentacle",
     {"ten"},
     {1},
     [] {
         Put(1, 2, 11);
         Feed(11, {0, 1, 0});
         MoveAmoeba(1, 1, 12);
     },
     {Eat({0, 1, 0}), No()},
     {"Free of charge (Tentacle). It goes along to square 12, where no meal lies yet.",
      "1 BP of your 9, for one amoeba that goes along to square 12. It keeps a turn that is still to come."}},
    {"riders",
     {"hol"},
     {1},
     [] {
         Put(2, 1, 11);
         MoveAmoeba(2, 1, 12);
     },
     {Yes(), CloseIt()},
     {"Free of charge (Holding). Any number of yours go along to square 12; who has not had its turn keeps it.",
      "Free of charge (Holding). Any number of yours go along to square 12; who has not had its turn keeps it."}},
    {"aggression",
     {"agg"},
     {},
     [] {
         Put(2, 1, 11);
         Put(1, 2, 11);
         AggressionPhase();
     },
     {Yes(), Amoeba(1), Pick({{2, 1}})},
     {"1 BP, paid when the victim is picked. It is torn to pieces (in Armor: 1 damage) unless it escapes or defends "
      "itself.",
      "Nothing is paid before the victim is picked; None ends the step.",
      "1 BP of your 9, paid with the pick. Torn to pieces it leaves 2 of every colour; in Armor it takes 1 damage."}},
    {"the_number_of_clans",
     {},
     {},
     AskPlayerCount,
     {Number(4)},
     {"You play one of them. With 3 or 4 a clan has up to 7 amoebas and 10 BP a turn, with 5 or 6 up to 6 and 11 BP."}},
    {"genes_to_buy",
     {},
     {},
     NewGenesPhase,
     {Yes(), CloseIt()},
     {"To look costs nothing: a gene is paid when it is ticked.",
      "A tick buys at once; what was bought here goes back for its price, without the gene that it replaced."}},
    {"genes_to_give_up",
     {"def"},
     {},
     EnvironmentPhase,
     {Genes({}, "2")},
     {"Mutation level 4, UV level 2. 1 BP makes up 1 point, a gene its points (Ray Protection 4); there is no refund "
      "for it."}},
};

INSTANTIATE_TEST_SUITE_P(Questions, Hints, ::testing::ValuesIn(HintRows), RowName());

}  // namespace
}  // namespace plasmos::testing
