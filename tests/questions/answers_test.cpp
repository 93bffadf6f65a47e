// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "questions/victim_form.h"
#include "rules/feeding.h"
#include "rules/new_genes.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;

/// Answers in the dialogs reach the rules behind them.
class Answers : public GameTest {
protected:
    Answers() {
        NewPosition(4);
        Person(3);
        game.CurPlayer = 3;
        game.CurAmoeba = 1;
    }

    ScriptedBoard board;
};

TEST_F(Answers, GenesAreTickedAndDone) {
    game.BP[3] = 7;
    board.Then({Yes(), Genes({"mv1", "spo"})});
    NewGenesPhase();
    EXPECT_EQ(HeldGenes(3), "mv1 spo");
    EXPECT_EQ(game.BP[3], 1);
    EXPECT_EQ(board.Questions[1].Mode, "NEWGENES");
}

TEST_F(Answers, AGeneDialogIsClosed) {
    game.BP[3] = 7;
    board.Then({Yes(), CloseIt()});
    NewGenesPhase();
    EXPECT_EQ(HeldGenes(3), "");
}

TEST_F(Answers, AMealIsTypedAndEaten) {
    Put(3, 1, 7);
    Feed(7, {1, 1, 0, 2});
    board.Then(Eat({1, 1, 0, 1}));
    FeedAmoeba(7, 3);
    EXPECT_THAT(FoodOn(7), ElementsAre(0, 0, 2, 1));
    EXPECT_EQ(game.Amoeba[1][3].Damage, 0);
}

TEST_F(Answers, TheSuggestionIsEaten) {
    Put(3, 1, 7);
    Feed(7, {1, 1, 0, 2});
    board.Then(EatSuggested());
    FeedAmoeba(7, 3);
    EXPECT_THAT(FoodOn(7), ElementsAre(0, 0, 2, 1));
}

TEST_F(Answers, APieceIsChosenOrNobody) {
    Put(3, 1, 7);
    Put(3, 2, 7);
    for (const bool picked : {true, false}) {
        AmChoicefrm form(3, "Plasmos", "Which one?");
        form.Offer(1);
        form.Offer(2);
        board.Then(picked ? Amoeba(2) : Nobody());
        EXPECT_EQ(AskAmoeba(form), picked ? 2 : 0);
    }
    EXPECT_THAT(board.Questions[0].Offered, ElementsAre(1, 2));
}

TEST_F(Answers, AVictimIsMarkedOrTheWindowClosed) {
    Put(3, 1, 7);
    Put(1, 4, 7);
    for (const bool picked : {true, false}) {
        VictimForm form(3, "AGGRESS", "Plasmos", 7);
        form.Allow(1, 4);
        board.Then(picked ? Pick({{1, 4}}) : Pick({}));
        const auto victims = AskVictims(form);
        ASSERT_EQ(victims.size(), picked ? 1U : 0U);
        if (picked) {
            EXPECT_EQ(victims[0].Clan, 1);
            EXPECT_EQ(victims[0].Amoeba, 4);
        }
    }
    EXPECT_THAT(board.Questions[0].Offered, ElementsAre(14));
    EXPECT_EQ(board.Questions[0].Mode, "AGGRESS");
}

}  // namespace
}  // namespace plasmos::testing
