// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <functional>

#include "questions/visit.h"
#include "rules/feeding.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A person's amoeba A1 in square 13, with four clans; B1 of clan 2 may stand beside it.
void PersonInSquare13(int clans = 4) {
    NewPosition(clans);
    Person(1);
    Put(1, 1, 13);
}

/// Whether the food dialog opens, and with which of its alternatives.
struct DialogRow {
    std::string_view Name;
    std::vector<std::string_view> Genes;
    int BP;
    std::function<void()> Set;
    bool Opens;
    bool Fights = false;      ///< the struggle for survival can be chosen
    bool Parasite = false;    ///< parasitism can be chosen
    std::string Hosts = "0";  ///< the host counter
    std::string Button = "Starve";
};

void PrintTo(const DialogRow& row, std::ostream* out) {
    *out << row.Name;
}

class FoodDialog : public GameRows<DialogRow> {};

TEST_P(FoodDialog, OpensWhereThereIsSomethingToDecide) {
    const DialogRow& row = GetParam();
    PersonInSquare13();
    for (const auto code : row.Genes) {
        Give(1, code);
    }
    game.BP[1] = row.BP;
    row.Set();
    ScriptedBoard board;
    board.AnswerBy([&](Question& question) {
        auto& form = *As<FoodForm>(&question);
        EXPECT_EQ(form.sfsoptEnabled, row.Fights);
        EXPECT_EQ(form.sfsoptVisible, row.Fights);
        EXPECT_EQ(form.paroptEnabled, row.Parasite);
        EXPECT_EQ(form.HostCount, row.Hosts);
        EXPECT_EQ(form.eatbCaption, row.Button);
        if (row.Button == "Eat") {
            form.suggest_Click();
        }
        form.eatb_Click();
    });
    FeedAmoeba(13, 1);
    EXPECT_EQ(board.WasAsked(QuestionKind::Food), row.Opens);
    const bool starves = row.Button == "Starve";
    EXPECT_EQ(game.Amoeba[1][1].Damage, starves ? 1 : 0);
    EXPECT_EQ(board.HasLogLine("A1 starves in 13"), starves);
    EXPECT_EQ(game.BP[1], row.BP);
}

/// Another clan's piece beside it.
void Neighbour(int clan, int bp, std::string_view gene = "") {
    Put(clan, 1, 13);
    game.BP[clan] = bp;
    if (!gene.empty()) {
        Give(clan, gene);
    }
}

// clang-format off
const DialogRow DialogRows[] = {
    {"nothing_to_eat_starves_without_a_dialog", {}, 3, [] {}, false},
    {"neighbours_alone_do_not_open_it", {}, 3, [] { Neighbour(2, 3); }, false},
    {"who_can_eat_is_always_shown_it", {}, 0, [] { Feed(13, {0, 1, 1, 1}); }, true, false, false, "0", "Eat"},
    {"struggle_with_a_victim", {"sfs"}, 1, [] { Neighbour(2, 0); }, true, true},
    {"aggression_with_a_victim", {"agg"}, 1, [] { Neighbour(2, 0); }, true, true},
    {"struggle_without_BP_starves_at_once", {"sfs"}, 0, [] { Neighbour(2, 3); }, false},
    {"struggle_without_a_victim_starves_at_once", {"sfs"}, 3, [] {}, false},
    {"struggle_among_its_own_clan_starves_at_once", {"sfs"}, 3, [] { Put(1, 2, 13); }, false},
    {"armour_protects_from_struggle", {"sfs"}, 3, [] { Neighbour(2, 3, "arm"); }, false},
    {"hosts_in_armour_alone_are_not_thought_of", {"sfs", "par"}, 3, [] { Neighbour(2, 3, "arm"); }, false},
    {"armour_does_not_protect_from_aggression", {"agg"}, 3, [] { Neighbour(2, 3, "arm"); }, true, true},
    {"one_without_armour_is_enough", {"sfs"}, 3, [] { Neighbour(2, 3, "arm"); Neighbour(3, 3); }, true, true},
    {"who_can_eat_may_not_struggle", {"sfs"}, 3, [] { Neighbour(2, 3); Feed(13, {0, 1, 1, 1}); }, true, false, false,
     "0", "Eat"},
    {"the_poor_are_safe_from_parasites_even_when_attacked", {"par", "sfs"}, 3, [] { Neighbour(2, 0); }, false},
    {"the_rich_are_not", {"par", "sfs"}, 3, [] { Neighbour(2, 1); }, true, true},
    {"a_parasite_with_a_host", {"par"}, 0, [] { Neighbour(4, 1); Feed(13, {0, 1, 1, 0}); }, true, false, true, "1"},
    {"a_parasite_needs_two_hosts_for_two_pieces", {"par"}, 0, [] { Neighbour(4, 1); Feed(13, {0, 1, 0, 0}); }, false},
    {"a_parasite_with_two_hosts", {"par"}, 0, [] { Neighbour(4, 1); Neighbour(2, 1); Feed(13, {0, 1, 0, 0}); }, true,
     false, true, "2"},
    {"two_hosts_lend_no_three_pieces", {"par"}, 0, [] { Neighbour(2, 1); Neighbour(3, 1); Neighbour(4, 1); }, false},
    {"the_counter_stops_at_two_hosts", {"par"}, 0, []
     { Neighbour(2, 1); Neighbour(3, 1); Neighbour(4, 1); Feed(13, {0, 1, 1, 0}); }, true, false, true, "2"},
    {"hosts_without_BP_do_not_count", {"par"}, 0, [] { Neighbour(2, 0); Neighbour(4, 1); Feed(13, {0, 1, 1, 0}); },
     true, false, true, "1"},
    {"who_can_eat_may_be_a_parasite_too", {"par"}, 0, [] { Neighbour(4, 1); Feed(13, {0, 1, 1, 1}); }, true, false,
     true, "1", "Eat"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Person, FoodDialog, ::testing::ValuesIn(DialogRows), RowName());

class PersonsMeal : public GameTest {
protected:
    PersonsMeal() { PersonInSquare13(); }
    ScriptedBoard board;
};

TEST_F(PersonsMeal, IsAskedForInTheseWords) {
    Feed(13, {4, 1, 2, 1});
    board.Then(Do("looks", [](Question& question) {
        auto& form = *As<FoodForm>(&question);
        EXPECT_EQ(form.Square, 13);
        EXPECT_FALSE(form.fdtxt[1].Enabled) << "its own colour";
        for (int colour = 2; colour <= 4; ++colour) {
            EXPECT_TRUE(form.fdtxt[colour].Enabled);
            EXPECT_EQ(form.fdtxt[colour].Text, "0");
        }
        EXPECT_EQ(form.fdtxt[3].InSquare, 2);
        form.fdtxt_Change(3, "2");
        form.fdtxt_Change(4, "1");
        EXPECT_EQ(game.MenuAmounts[1] * 10 + game.MenuAmounts[2], 21) << "what is typed is counted at once";
        EXPECT_EQ(game.MenuColours[1], 3);
        form.suggest_Click();
        form.eatb_Click();
    }));
    FeedAmoeba(13, 1);
    EXPECT_EQ(board.Questions[0].Text,
              "Your amoeba may eat the suggested menu in square 13, or using your amoebas' genes you may design your "
              "own.");
    EXPECT_THAT(FoodOn(13), ElementsAre(6, 0, 1, 0));
    EXPECT_THAT(board.LogLines, ElementsAre("A1 eats 111 in 13"));
    EXPECT_EQ(game.Amoeba[1][1].Damage, 0);
}

TEST_F(PersonsMeal, TakesExactlyTheColoursTyped) {
    Give(1, "sub");
    Feed(13, {0, 3, 3, 3});
    board.Then(Eat({0, 1, 3, 0}));
    FeedAmoeba(13, 1);
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 2, 0, 3));
    EXPECT_THAT(board.LogLines, ElementsAre("A1 eats 31 in 13"));
}

TEST_F(PersonsMeal, TheSuggestionIsNotEatenUnasked) {
    Give(1, "sub");
    Feed(13, {0, 3, 1, 1});
    board.Then(Eat({0, 3, 0, 1}));
    FeedAmoeba(13, 1);
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 0, 1, 0));
}

TEST_F(PersonsMeal, TakesNoMoreThanThereIs) {
    Feed(13, {0, 1, 1, 1});
    board.Then({Eat({0, 2, 1, 0}), EatSuggested()});
    FeedAmoeba(13, 1);
    EXPECT_THAT(board.Boxes, ElementsAre("You cannot eat more food than is in the square; please try again."));
    EXPECT_THAT(board.Messages, Contains("Please try again."));
}

TEST_F(PersonsMeal, MustBeLegal) {
    Give(1, "sub");
    Feed(13, {0, 2, 1, 1});
    board.Then({Eat({0, 2, 1, 0}), EatSuggested()});
    FeedAmoeba(13, 1);
    EXPECT_THAT(board.Boxes, ElementsAre("The menu you chose was not legal.\nPossible menus are:  111, 22, 31, "
                                         "(depending on the food and amounts in square!)"));
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 1, 0, 0)) << "the refused menu took nothing";
}

TEST_F(PersonsMeal, TheAmountsAreLookedAtBeforeTheMenu) {
    Feed(13, {0, 1, 1, 1});
    board.Then({Eat({0, 5, 0, 0}), EatSuggested()});
    FeedAmoeba(13, 1);
    EXPECT_THAT(board.Boxes, ElementsAre("You cannot eat more food than is in the square; please try again."));
}

TEST_F(PersonsMeal, AnEmptyEntryIsNotLegalForWhoCanEat) {
    Feed(13, {0, 1, 1, 1});
    board.Then({Eat({0, 0, 0, 0}), EatSuggested()});
    FeedAmoeba(13, 1);
    EXPECT_EQ(board.Boxes.size(), 1U);
    EXPECT_EQ(game.Amoeba[1][1].Damage, 0);
}

TEST_F(PersonsMeal, ClosingTheDialogIsRefusedForWhoCanEat) {
    Feed(13, {0, 1, 1, 1});
    board.Then({CloseIt(), EatSuggested()});
    FeedAmoeba(13, 1);
    EXPECT_THAT(board.Boxes, ElementsAre("The menu you chose was not legal.\nPossible menus are:  111, (depending on "
                                         "the food and amounts in square!)"));
}

TEST_F(PersonsMeal, MoreThanNineOfAColourAreNotLegal) {
    Give(1, "sub");
    Feed(13, {0, 31, 1, 1});
    board.Then({Eat({0, 31, 0, 0}), EatSuggested()});
    FeedAmoeba(13, 1);
    EXPECT_EQ(board.Boxes.size(), 1U) << "31 pieces of one colour are not the menu 31";
}

class FrugalMeal : public GameTest, public ::testing::WithParamInterface<bool> {};

TEST_P(FrugalMeal, PiecesOf1And2And1AreReadAs211) {
    PersonInSquare13(5);
    if (GetParam()) {
        Give(1, "fru");
    }
    Feed(13, {0, 1, 2, 1, 1});
    ScriptedBoard board;
    board.Then(Eat({0, 1, 2, 1, 0}));
    if (!GetParam()) {
        board.Then(EatSuggested());
    }
    FeedAmoeba(13, 1);
    EXPECT_EQ(board.Boxes.empty(), GetParam());
    EXPECT_EQ(FoodOn(13), GetParam() ? std::vector<int>({2, 0, 0, 0, 1}) : std::vector<int>({2, 0, 1, 0, 0}));
}

INSTANTIATE_TEST_SUITE_P(Frugality, FrugalMeal, ::testing::Bool(), [](const auto& row) {
    return std::string(row.param ? "legal_with_frugality" : "not_legal_without");
});

TEST_F(PersonsMeal, TheSuggestionTakesTheColoursOfTheHighestScoresFirst) {
    NewPosition(6);
    Person(1);
    Put(1, 1, 13);
    game.Players[6].Score = 30;
    Feed(13, {0, 1, 1, 1, 1, 1});
    board.Then(EatSuggested());
    FeedAmoeba(13, 1);
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 0, 0, 0, 1, 0)) << "clan 5 is the last";
}

}  // namespace
}  // namespace plasmos::testing
