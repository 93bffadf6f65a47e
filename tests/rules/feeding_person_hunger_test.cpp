// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "questions/food_form.h"
#include "rules/feeding.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A person's amoeba A1 in square 13, with four clans.
class PersonsHunger : public GameTest {
protected:
    PersonsHunger() {
        NewPosition(4);
        Person(1);
        Put(1, 1, 13);
    }
    /// Another clan's piece beside it.
    static void Neighbour(int clan, int bp, std::string_view gene = "") {
        Put(clan, 1, 13);
        game.BP[clan] = bp;
        if (!gene.empty()) {
            Give(clan, gene);
        }
    }
    ScriptedBoard board;
};

// ---- parasites ----

/// Chooses another host; the alternative is chosen already.
Line AnotherHost() {
    return Do("AnotherHost", [](Question& question) { question.Put(Plain(Answer::Kind::Victim)); });
}

class PersonsParasite : public PersonsHunger {
protected:
    PersonsParasite() {
        Give(1, "par");
        Neighbour(2, 0);
        Neighbour(3, 1);
        Neighbour(4, 2);
    }
};

TEST_F(PersonsParasite, OneHostLendsAPieceFor1BP) {
    Feed(13, {0, 1, 1, 0});
    board.Then({Parasitize(), Pick({{4, 1}}), Eat({0, 1, 1, 0})});
    FeedAmoeba(13, 1);
    EXPECT_EQ(board.Questions[1].Text, "Choose your Parasite-victim:");
    EXPECT_EQ(board.Questions[1].Mode, "PARASITE");
    EXPECT_THAT(board.Questions[1].Offered, ElementsAre(31, 41)) << "clan 2 has no BP";
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 0, 0, 0));
    EXPECT_EQ(game.BP[4], 1);
    EXPECT_EQ(game.BP[3], 1);
    EXPECT_EQ(game.BP[1], 0);
    EXPECT_EQ(game.Amoeba[1][4].Damage, 0);
    EXPECT_THAT(board.LogLines, ElementsAre("A1 parasitizing off of clan Player 4", "A1 eats 111 in 13"));
}

TEST_F(PersonsParasite, TwoHostsLendTwo) {
    Feed(13, {0, 1, 0, 0});
    board.Then({Parasitize(), Pick({{4, 1}}), AnotherHost(), Pick({{3, 1}}), Eat({0, 1, 0, 0})});
    FeedAmoeba(13, 1);
    EXPECT_THAT(board.Questions[2].Offered, ElementsAre(31)) << "a host lends once";
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 0, 0, 0));
    EXPECT_EQ(game.BP[3], 0);
    EXPECT_EQ(game.BP[4], 1);
    EXPECT_THAT(board.LogLines,
                ElementsAre("A1 parasitizing off of clan Player 4 and clan Player 3", "A1 eats 111 in 13"));
}

TEST_F(PersonsParasite, IsToldWhenThereIsNoFurtherHost) {
    Feed(13, {0, 1, 0, 0});
    std::string told;
    const auto look = Do("look, then eat", [&](Question& question) {
        told = game.Message.String();
        question.Put(TypedInto(Answer::Kind::Field, 2, "1"));
        question.Put(WithAmounts(Answer::Kind::Eat, {}));
    });
    board.Then({Parasitize(), Pick({{4, 1}}), AnotherHost(), Pick({{3, 1}}), AnotherHost(), look});
    FeedAmoeba(13, 1);
    EXPECT_EQ(told, "There is no further host to pick; eat, or design another menu.");
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 0, 0, 0));
}

TEST_F(PersonsParasite, WhoTakesTheSuggestionSendsTheHostsAway) {
    Feed(13, {0, 1, 1, 1});
    board.Then({Parasitize(), Pick({{4, 1}}), EatSuggested()});
    FeedAmoeba(13, 1);
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 0, 0, 0));
    EXPECT_EQ(game.BP[4], 2);
    EXPECT_THAT(board.LogLines, ElementsAre("A1 eats 111 in 13"));
}

TEST_F(PersonsParasite, PicksNobodyAndStarves) {
    Feed(13, {0, 1, 1, 0});
    board.Then({Parasitize(), Pick({}), Eat({0, 0, 0, 0})});
    FeedAmoeba(13, 1);
    EXPECT_EQ(game.Amoeba[1][1].Damage, 1);
    EXPECT_EQ(game.BP[3] + game.BP[4], 3);
}

TEST_F(PersonsParasite, ClosingTheDialogStarvesWhoCannotEat) {
    Feed(13, {0, 1, 1, 0});
    board.Then(CloseIt());
    FeedAmoeba(13, 1);
    EXPECT_TRUE(board.HasLogLine("A1 starves in 13"));
    EXPECT_THAT(board.Boxes, IsEmpty());
}

// ---- the struggle for survival ----

class PersonsStruggle : public PersonsHunger {
protected:
    PersonsStruggle() {
        Give(1, "sfs");
        Neighbour(2, 0);
        Neighbour(3, 0, "arm");
        game.BP[1] = 2;
    }
};

TEST_F(PersonsStruggle, EatsTheVictimFor1BP) {
    Put(2, 2, 13);
    board.Then({Struggle(), Pick({{2, 2}})});
    FeedAmoeba(13, 1);
    EXPECT_EQ(board.Questions[1].Text, "Choose your Attack-victim:");
    EXPECT_EQ(board.Questions[1].Mode, "SFS");
    EXPECT_THAT(board.Questions[1].Offered, ElementsAre(21, 22)) << "neither its own nor the armoured";
    EXPECT_EQ(game.Amoeba[2][2].Square, 0);
    EXPECT_EQ(game.Amoeba[1][2].Square, 13);
    EXPECT_THAT(FoodOn(13), ElementsAre(1, 1, 1, 1)) << "it does not excrete";
    EXPECT_EQ(game.BP[1], 1);
    EXPECT_EQ(game.Amoeba[1][1].Damage, 0);
    EXPECT_THAT(board.LogLines, ElementsAre("B2 Eaten!"));
}

TEST_F(PersonsStruggle, CancelledCostsNothingAndLeadsBack) {
    board.Then({Struggle(), Pick({}), CloseIt()});
    FeedAmoeba(13, 1);
    EXPECT_EQ(game.BP[1], 2);
    EXPECT_EQ(game.Amoeba[1][1].Damage, 1);
    EXPECT_EQ(game.Amoeba[1][2].Square, 13);
}

TEST_F(PersonsStruggle, LostItStarves) {
    Give(2, "def");
    game.BP[2] = 1;
    board.Then({Struggle(), Pick({{2, 1}})});
    Script script({1, 2});
    FeedAmoeba(13, 1);
    EXPECT_EQ(game.BP[1], 1);
    EXPECT_EQ(game.Amoeba[1][1].Damage, 1);
    EXPECT_TRUE(board.HasLogLine("A1 starves in 13"));
}

}  // namespace
}  // namespace plasmos::testing
