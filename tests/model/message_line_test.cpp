// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/message_line.h"

#include <gmock/gmock.h>

#include <functional>

#include "model/narration.h"
#include "questions/ask.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What happens while a line stands, with the computer clan 1 acting and clan 3 a person's, and the
/// pauses that have been taken when the line is gone.
struct LineRow {
    std::string_view Name;
    std::function<void()> Happens;
    std::vector<int> Pauses;
};

void PrintTo(const LineRow& row, std::ostream* out) {
    *out << row.Name;
}

class MessageLine : public GameRows<LineRow> {
protected:
    MessageLine() {
        NewPosition(3);
        Person(3);
        board.AnswerBy([](Question&) { yesb_Click(); });
    }
    ScriptedBoard board;
};

TEST_P(MessageLine, IsLeftToBeRead) {
    GetParam().Happens();
    EXPECT_THAT(board.Pauses, ::testing::ElementsAreArray(GetParam().Pauses));
}

TEST_P(MessageLine, HasNoTimeOfItsOwnInFastMode) {
    game.FastMode = true;
    GetParam().Happens();
    EXPECT_THAT(board.Pauses, ::testing::Each(::testing::AnyOf(3, 5, 10)));
}

const LineRow LineRows[] = {
    {"a_line_after_a_line", [] { Say("First"), Say("Next"); }, {4}},
    {"a_line_after_nothing", [] { Say("Next"); }, {}},
    {"the_line_goes", [] { Say("First"), ClearMessage(); }, {4}},
    {"a_pause_of_the_rules_counts", [] { Say("First"), TakePause(3), Say("Next"); }, {3, 1}},
    {"a_long_pause_of_the_rules_is_enough", [] { Say("First"), TakePause(5), Say("Next"); }, {5}},
    {"a_persons_line", [] { ShowStatement("First", 3), Say("Next"); }, {10}},
    {"a_line_about_a_person", [] { Say("First"), Concern(3), Say("Next"); }, {10}},
    {"a_line_about_a_computer_clan", [] { Say("First"), Concern(2), Say("Next"); }, {4}},
    {"a_line_below_a_line_replaces_nothing", [] { Say("First"), SayMore("More"), Say("Next"); }, {4}},
    {"a_line_below_begins_the_time_anew", [] { Say("First"), TakePause(3), SayMore("More"), Say("Next"); }, {3, 4}},
    {"a_line_below_a_persons_line", [] { ShowStatement("First", 3), SayMore("More"), Say("Next"); }, {10}},
    {"a_question_comes", [] { Say("First"), AskYesNo(3, "Really?"), Say("Next"); }, {4}},
    {"a_question_below_leaves_it_in_sight", [] { Say("First"), AskYesNoBelow(3, "Really?"), Say("Next"); }, {}},
    {"an_answered_question_has_been_read", [] { AskYesNo(3, "Really?"), ClearMessage(); }, {}},
    {"a_box_comes", [] { Say("First"), ShowBox(3, "Look!"), Say("Next"); }, {4}},
    {"a_statement_to_a_person_has_its_own_pause", [] { TellPerson(3, "First"), Say("Next"); }, {10}},
    {"it_may_stay", [] { Say("First"), TakePause(10), SayMore("More"), ClearMessage(); }, {10, 4}},
};

INSTANTIATE_TEST_SUITE_P(Told, MessageLine, ::testing::ValuesIn(LineRows), RowName());

class Standing : public GameTest {
protected:
    Standing() {
        NewPosition(3);
        Person(3);
    }
    ScriptedBoard board;
};

TEST_F(Standing, ThePauseComesBeforeTheNextLineIsShown) {
    std::string shown;
    Say("First");
    board.OnPause = [&] { shown = game.Message.String(); };
    Say("Next");
    EXPECT_EQ(shown, "First");
    EXPECT_EQ(game.Message, "Next");
}

TEST_F(Standing, ThePauseComesBeforeABoxOpens) {
    Say("First");
    bool open = true;
    board.OnPause = [&] { open = TopQuestion() != nullptr; };
    ShowBox(3, "Look!");
    EXPECT_FALSE(open);
}

TEST_F(Standing, AQuestionBelowIsAskedInItsOwnWordsAndGoesAgain) {
    Say("First");
    std::string shown;
    board.Then(Do("look", [&](Question&) {
        shown = game.Message.String();
        yesb_Click();
    }));
    EXPECT_TRUE(AskYesNoBelow(3, "Really?"));
    EXPECT_EQ(board.Questions[0].Text, "Really?");
    EXPECT_EQ(shown, "First\nReally?");
    EXPECT_EQ(game.Message, "First");
}

TEST_F(Standing, BelowNothingTheQuestionIsAlone) {
    board.Then(No());
    EXPECT_FALSE(AskYesNoBelow(3, "Really?"));
    EXPECT_THAT(board.Messages, ElementsAre("Really?", ""));
}

TEST_F(Standing, AGameThatIsLeftInThePauseUnwinds) {
    Say("First");
    board.OnPause = [] { throw GameLeft{}; };
    EXPECT_THROW(Say("Next"), GameLeft);
    board.OnPause = {};
    EXPECT_EQ(game.Message, "First");
    board.Pauses.clear();
    NewPosition(3);
    Say("Another game");
    EXPECT_THAT(board.Pauses, IsEmpty()) << "the old one owes the new one nothing";
}

}  // namespace
}  // namespace plasmos::testing
