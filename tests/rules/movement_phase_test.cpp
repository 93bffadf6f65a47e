// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <algorithm>

#include "model/observer.h"
#include "model/services.h"
#include "questions/question.h"
#include "rules/movement.h"
#include "tests/support/game_fixture.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Hears the steps: "Move 2,1", "Feed 2,1".
class StepEar : public Observer {
public:
    StepEar() { services.Listener = this; }
    ~StepEar() override { services.Listener = nullptr; }
    void OnRoll(int, int) override {}
    void OnBegin(Step step, int clan, int amoeba) override {
        Steps.push_back(Concat(StepName(step), " ", clan, ",", amoeba));
    }
    void OnEnd(Step, int, int) override {}
    void OnSay(std::string_view) override {}
    void OnBox(std::string_view) override {}
    void OnAsk(const Question&) override {}
    void OnAnswer(const Question&, const Answer&, bool) override {}
    void OnOver() override {}

    std::vector<std::string> Steps;
};

/// Remembers whose turn is shown and which piece is outlined.
class OutlineBoard : public ScriptedBoard {
public:
    void ShowCurrentClan(int clan) override { Shown.push_back(Concat("clan ", clan)); }
    void OutlinePiece(int clan, int amoeba, bool on) override {
        Shown.push_back(Concat(clan, ",", amoeba, on ? " on" : " off"));
    }
    std::vector<std::string> Shown;
};

/// Three computer clans; nothing flows and nothing is eaten unless a test says so.
class MovementPhases : public GameTest {
protected:
    MovementPhases() {
        NewPosition(3);
        game.Drift = 0;
    }
};

TEST_F(MovementPhases, ClansActInTheReverseOfTheOrderOfPlay) {
    game.PlayOrder[1] = 2;
    game.PlayOrder[2] = 3;
    game.PlayOrder[3] = 1;
    for (int clan = 1; clan <= 3; ++clan) {
        Put(clan, 1, clan);
    }
    StepEar ear;
    MovementPhase();
    EXPECT_THAT(ear.Steps, ElementsAre("Move 1,1", "Feed 1,1", "Move 3,1", "Feed 3,1", "Move 2,1", "Feed 2,1"));
}

TEST_F(MovementPhases, EveryAmoebaOnTheBoardFeedsRightAfterItsMove) {
    Put(2, 7, 1);
    Put(2, 2, 2);
    StepEar ear;
    MovementPhase();
    EXPECT_THAT(ear.Steps, ElementsAre("Move 2,2", "Feed 2,2", "Move 2,7", "Feed 2,7"));
    EXPECT_EQ(game.Amoeba[2][2].Damage, 1) << "it starved";
    EXPECT_EQ(game.Amoeba[1][2].Damage, 0) << "it is not on the board";
}

TEST_F(MovementPhases, ItEatsWhereItStandsAfterTheMove) {
    game.Drift = 1;
    Put(1, 1, 13);
    Feed(13, {0, 0, 0});
    Feed(14, {0, 2, 1});
    Script script({9});
    MovementPhase();
    EXPECT_THAT(FoodOn(14), ElementsAre(2, 0, 0));
}

TEST_F(MovementPhases, WhoHasBeenEatenHasNoTurn) {
    Put(3, 1, 13);
    Put(1, 1, 13);
    Put(1, 2, 1);
    Give(3, "sfs");
    game.BP[3] = 2;
    Script script({1});
    StepEar ear;
    // Clan 3 has nowhere to hunt but its own square: it drifts in place, then eats A1.
    MovementPhase();
    EXPECT_THAT(ear.Steps, ElementsAre("Move 3,1", "Feed 3,1", "Move 1,2", "Feed 1,2"));
}

TEST_F(MovementPhases, ARiderStillHasItsOwnTurn) {
    game.Drift = 1;
    Put(3, 1, 13);
    Put(2, 1, 13);
    Give(2, "hol");
    Feed(14, {1, 0, 2});
    StepEar ear;
    Script script({9, 10});
    MovementPhase();
    EXPECT_THAT(ear.Steps, ElementsAre("Move 3,1", "Feed 3,1", "Move 2,1", "Feed 2,1"));
    EXPECT_EQ(game.Amoeba[1][2].Square, 14) << "it clings to the bottom in its turn";
    EXPECT_THAT(FoodOn(14), ElementsAre(0, 2, 0));
}

TEST_F(MovementPhases, ARiderThatHadItsTurnDoesNotFeedAgain) {
    Put(3, 1, 13);
    Give(3, "hol");
    Put(2, 1, 13);
    Feed(14, {2, 1, 1});
    game.BP[2] = 1;
    Give(2, "mv2");
    StepEar ear;
    // C1 starves in 13; then B1 moves into 14, the only square where it can eat, and C1 rides.
    Script script({1, 9, 10});
    MovementPhase();
    EXPECT_THAT(ear.Steps, ElementsAre("Move 3,1", "Feed 3,1", "Move 2,1", "Feed 2,1"));
    EXPECT_EQ(game.Amoeba[1][3].Square, 14);
    EXPECT_EQ(game.Amoeba[1][3].Damage, 1);
}

TEST_F(MovementPhases, APersonFeedsThroughTheDialog) {
    Person(2);
    Put(2, 1, 13);
    Feed(13, {2, 0, 1});
    OutlineBoard board;
    board.Then(EatSuggested());
    MovementPhase();
    EXPECT_TRUE(board.WasAsked(QuestionKind::Food));
    EXPECT_THAT(FoodOn(13), ElementsAre(0, 2, 0));
}

TEST_F(MovementPhases, WithAutomaticEatingAPersonIsNotAsked) {
    Person(2);
    Put(2, 1, 13);
    Feed(13, {2, 0, 1});
    game.AutoFlags[2][1] = true;
    OutlineBoard board;
    MovementPhase();
    EXPECT_THAT(board.Questions, IsEmpty());
    EXPECT_THAT(FoodOn(13), ElementsAre(0, 2, 0));
}

TEST_F(MovementPhases, AutomaticEatingIsEachClansOwn) {
    Person(2);
    Put(2, 1, 13);
    Feed(13, {2, 0, 1});
    game.AutoFlags[3][1] = true;
    OutlineBoard board;
    board.Then(EatSuggested());
    MovementPhase();
    EXPECT_TRUE(board.WasAsked(QuestionKind::Food));
}

TEST_F(MovementPhases, TheActingPieceIsOutlined) {
    Put(3, 1, 1);
    Put(2, 4, 2);
    OutlineBoard board;
    MovementPhase();
    EXPECT_THAT(board.Shown, ElementsAre("clan 3", "3,1 on", "3,1 off", "clan 3", "clan 2", "2,4 on", "2,4 off",
                                         "clan 2", "clan 1", "clan 1"));
}

TEST_F(MovementPhases, AMoveThatCannotBeTracedLeavesItsPieceAndThePhaseGoesOn) {
    MemoryFiles files;
    files.Refused = "Amoeba 3, 1 moving";
    game.Drift = 1;
    Put(3, 1, 1);
    Put(3, 2, 11);
    Script script({9});
    MovementPhase();
    EXPECT_EQ(game.Amoeba[1][3].Square, 1);
    EXPECT_EQ(game.Amoeba[1][3].Damage, 1) << "it feeds where it is";
    EXPECT_EQ(game.Amoeba[2][3].Square, 12);
    EXPECT_THAT(files.Errors(), HasSubstr("Player: 3 (Player 3)  Moeba: 1\n"));
    const auto errors = files.Errors();
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '#'), 1);
}

TEST_F(MovementPhases, AnErrorOutsideAMoveIsRecordedAndEndsTheProgram) {
    MemoryFiles files;
    Put(3, 5, 13);
    Give(3, {"spe", "str"});
    Script script({});
    EXPECT_THROW(MovementPhase(), ProgramEnd) << "the direction die has no number";
    EXPECT_THAT(files.Errors(), HasSubstr("Player: 3 (Player 3)  Moeba: 5\n"));
    EXPECT_THAT(files.Errors(), HasSubstr("Error #5: "));
}

}  // namespace
}  // namespace plasmos::testing
