// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/scripted_board.h"

#include <gmock/gmock.h>

#include "questions/ask.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class Scripts : public GameTest {
protected:
    Scripts() {
        NewPosition(4);
        Person(3);
    }

    ScriptedBoard board;
};

TEST_F(Scripts, AnswerInTheirOrder) {
    board.Then({Yes(), No(), Square(7)});
    EXPECT_TRUE(AskYesNo(3, "Really?"));
    EXPECT_FALSE(AskYesNo(3, "Really now?"));
    EXPECT_EQ(AskSquare(3, "Where?", {8, 7}), 7);
    ASSERT_EQ(board.Questions.size(), 3U);
    EXPECT_EQ(board.Questions[1].Text, "Really now?");
    EXPECT_EQ(board.Questions[2].Clan, 3);
    EXPECT_THAT(board.Questions[2].Offered, ElementsAre(7, 8));
    EXPECT_TRUE(board.ScriptIsUsedUp());
}

TEST_F(Scripts, ARefusedAnswerIsFollowedByTheNext) {
    board.Then({Square(9), ClickAt(-1, -1), ClickAt(7000, 10), Square(8)});
    EXPECT_EQ(AskSquare(3, "Where?", {7, 8}), 8);
    EXPECT_EQ(board.Questions.size(), 1U) << "it is one question";
}

TEST_F(Scripts, APolicyAnswersWhatTheScriptDoesNot) {
    board.Then(No());
    board.AnswerBy([](Question&) { yesb_Click(); });
    EXPECT_FALSE(AskYesNo(3, "First?"));
    EXPECT_TRUE(AskYesNo(3, "Second?"));
    EXPECT_TRUE(AskYesNo(3, "Third?"));
}

TEST_F(Scripts, MessageBoxesAreRememberedAndDismissed) {
    ShowBox(3, "Please try again.");
    EXPECT_THAT(board.Boxes, ElementsAre("Please try again."));
    EXPECT_TRUE(board.Questions.empty());
    board.DismissBoxes(false);
    board.Then(Ok());
    ShowBox(3, "Invalid response!");
    EXPECT_TRUE(board.ScriptIsUsedUp());
}

TEST_F(Scripts, AnUnexpectedQuestionNamesItself) {
    try {
        AskYesNo(3, "Who are you?");
        FAIL();
    } catch (const ScriptError& error) {
        EXPECT_THAT(error.what(), HasSubstr("Who are you?"));
    }
    EXPECT_THAT(board.ForgiveFailure(), HasSubstr("Who are you?"));
    EXPECT_EQ(TopQuestion(), nullptr) << "the question is closed";
}

TEST_F(Scripts, AnAnswerOfTheWrongKindNamesBoth) {
    board.Then(Number(2));
    EXPECT_THROW(AskYesNo(3, "Really?"), ScriptError);
    const auto failure = board.ForgiveFailure();
    EXPECT_THAT(failure, HasSubstr("number 2"));
    EXPECT_THAT(failure, HasSubstr("Really?"));
}

TEST_F(Scripts, APersonCanLeaveInTheMiddle) {
    board.Then(EndTheProgram());
    EXPECT_THROW(AskYesNo(3, "Really?"), ProgramEnd);
}

TEST_F(Scripts, AQuestionInsideAQuestionIsAnsweredFirst) {
    board.Then({Do("asks back",
                   [](Question&) {
                       EXPECT_FALSE(AskYesNo(3, "Inner?"));
                       yesb_Click();
                   }),
                No()});
    EXPECT_TRUE(AskYesNo(3, "Outer?"));
    EXPECT_EQ(board.Questions[1].Text, "Inner?");
}

TEST_F(Scripts, TheMessageLineAndTheLogAreRemembered) {
    TellPerson(3, "You may not go there.");
    EXPECT_EQ(game.Message, "You may not go there.");
    EXPECT_TRUE(board.HasLogLine("You may not go there."));
    EXPECT_THAT(board.Pauses, ElementsAre(10));
    ClearMessage();
    EXPECT_EQ(game.Message, "");
    EXPECT_THAT(board.Messages, ElementsAre("You may not go there.", ""));
}

class AskingForASquare : public Scripts {};

TEST_F(AskingForASquare, WithOneOfferAnswersItself) {
    EXPECT_EQ(AskSquare(3, "Where?", {7, 7, 7}), 7);
    EXPECT_TRUE(board.Questions.empty());
}

TEST_F(AskingForASquare, WithoutAnyOfferIsAnError) {
    EXPECT_THROW(AskSquare(3, "Where?", {}), RuntimeError);
}

TEST_F(AskingForASquare, ReadsTheBoardInItsOwnUnits) {
    EXPECT_EQ(SquareAt(0, 0), 1);
    EXPECT_EQ(SquareAt(1199, 1199), 1);
    EXPECT_EQ(SquareAt(1200, 0), 2);
    EXPECT_EQ(SquareAt(0, 1200), 6);
    EXPECT_EQ(SquareAt(5999, 5999), 25);
    EXPECT_EQ(SquareAt(6000, 0), 0);
    EXPECT_EQ(SquareAt(0, 6000), 0);
    EXPECT_EQ(SquareAt(-1, 0), 0);
}

}  // namespace
}  // namespace plasmos::testing
