// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/input_list.h"

#include <gmock/gmock.h>

#include "files/runtime_error.h"
#include "flow/play_game.h"
#include "model/services.h"
#include "sim/journal.h"
#include "tests/record/restless_robot.h"
#include "tests/support/game_fixture.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

using ::testing::HasSubstr;
using Kind = Answer::Kind;

// ---- one line and back ----

struct LineRow {
    std::string_view Name;
    Input Value;
    std::string Text;
};

void PrintTo(const LineRow& row, std::ostream* out) {
    *out << row.Name;
}

class InputLine : public GameRows<LineRow> {};

TEST_P(InputLine, IsReadAsItIsWritten) {
    EXPECT_EQ(GetParam().Value.Text(), GetParam().Text);
    Input read;
    EXPECT_EQ(Input::Parse(GetParam().Text, read), "");
    EXPECT_EQ(read, GetParam().Value);
}

const LineRow LineRows[] = {
    {"yes", InputOf(YesAnswer()), "yes"},
    {"no", InputOf(NoAnswer()), "no"},
    {"a_square", InputOf(Numbered(Kind::Square, 7)), "square 7"},
    {"off_the_board", InputOf(Numbered(Kind::Square, 0)), "square 0"},
    {"a_number_nobody_offered", InputOf(Numbered(Kind::Number, -1)), "number -1"},
    {"a_piece", InputOf(Numbered(Kind::Amoeba, 2)), "amoeba 2"},
    {"no_piece", InputOf(Plain(Kind::Nobody)), "nobody"},
    {"a_field", InputOf(TypedInto(Kind::Field, 2, "3")), "field 2 = 3"},
    {"a_field_emptied", InputOf(TypedInto(Kind::Field, 2, "")), "field 2 = "},
    {"a_field_with_anything", InputOf(TypedInto(Kind::Field, 2, " = \\n\n\r")), "field 2 =  = \\\\n\\n\\r"},
    {"leaving_a_field", InputOf(Numbered(Kind::LeaveField, 6)), "leave 6"},
    {"the_suggestion", InputOf(Plain(Kind::Suggestion)), "suggestion"},
    {"eating_what_is_typed", InputOf(WithAmounts(Kind::Eat, {})), "eat"},
    {"eating", InputOf(WithAmounts(Kind::Eat, {0, 2, 1})), "eat 0,2,1"},
    {"starving", InputOf(Plain(Kind::Starve)), "starve"},
    {"carrying", InputOf(WithAmounts(Kind::Carry, {1, 0, 1})), "carry 1,0,1"},
    {"carrying_nothing", InputOf(Plain(Kind::CarryNothing)), "carry nothing"},
    {"fighting", InputOf(WithPieces(Kind::Fight, {{3, 1}})), "fight 3,1"},
    {"a_figure", InputOf(Numbered(Kind::Mark, 4)), "mark 4"},
    {"looking_away", InputOf(Plain(Kind::LookAway)), "look away"},
    {"picking", InputOf(WithPieces(Kind::Pick, {{3, 1}, {3, 2}})), "pick 3,1 3,2"},
    {"picking_nothing", InputOf(WithPieces(Kind::Pick, {})), "pick"},
    {"a_box", InputOf(Numbered(Kind::Tick, 20)), "tick 20"},
    {"a_box_emptied", InputOf(Numbered(Kind::Untick, 1)), "untick 1"},
    {"paying", InputOf(TypedInto(Kind::Pay, 0, "+3.5")), "pay +3.5"},
    {"beginning_afresh", InputOf(Plain(Kind::Reset)), "reset"},
    {"done", InputOf(Plain(Kind::Done)), "done"},
    {"a_box_that_is_read", InputOf(Plain(Kind::Acknowledge)), "ok"},
    {"closing", InputOf(Plain(Kind::Close)), "close"},
    {"easy", InputOf(Switch{Switch::Kind::Normal, 0, false}), "set normal off"},
    {"victory_between_two_steps", InputOf(Switch{Switch::Kind::Victory, 0, true}, 12),
     "after 12 steps: set victory on"},
    {"fast_before_the_first_step", InputOf(Switch{Switch::Kind::FastMode, 0, true}, 0), "after 0 steps: set fast on"},
    {"eating_by_itself", InputOf(Switch{Switch::Kind::Eating, 3, true}), "set eating 3 on"},
    {"tentacles_by_hand", InputOf(Switch{Switch::Kind::Tentacle, 2, false}), "set tentacle 2 off"},
    {"leaving", InputOf(Switch{Switch::Kind::Leave, 0, true}), "leave game"},
};
INSTANTIATE_TEST_SUITE_P(Inputs, InputLine, ::testing::ValuesIn(LineRows), RowName());

struct FaultRow {
    std::string_view Name;
    std::string Text;
    std::string Fault;
};

void PrintTo(const FaultRow& row, std::ostream* out) {
    *out << row.Name;
}

class FaultyLine : public GameRows<FaultRow> {};

TEST_P(FaultyLine, SaysWhatIsWrong) {
    Input read;
    EXPECT_THAT(Input::Parse(GetParam().Text, read), HasSubstr(GetParam().Fault));
}

const FaultRow FaultRows[] = {
    {"nothing", "", "\"\" is no answer"},
    {"an_unknown_word", "jump 7", "\"jump 7\" is no answer; an answer begins with a word such as yes"},
    {"a_word_with_more", "yes please", "\"yes\" is followed by nothing, not by \"please\""},
    {"a_square_without_number", "square", "\"square\" is followed by a whole number, not by \"\""},
    {"a_square_in_letters", "square seven", "not by \"seven\""},
    {"a_number_beyond_all", "number 99999999999", "not by \"99999999999\""},
    {"a_field_without_text", "field 2", "a field and what is typed into it"},
    {"an_unknown_escape", "pay \\t", "what is typed, not by \"\\t\""},
    {"an_open_escape", "pay 3\\", "what is typed"},
    {"amounts_in_letters", "eat 1,x", "amounts, as in \"0,2,1\""},
    {"a_piece_without_slot", "pick 3", "pieces by clan and slot"},
    {"an_unknown_switch", "set colour on", "is no switch; these are \"leave game\""},
    {"a_switch_halfway", "set normal maybe", "\"set normal\" is followed by \"on\" or \"off\""},
    {"an_automatic_of_nobody", "set eating on", "a clan's number and \"on\" or \"off\""},
    {"clan_7", "set tentacle 7 on", "a clan's number"},
    {"steps_in_letters", "after many steps: set normal on", "names no number of steps"},
    {"steps_below_0", "after -1 steps: set normal on", "names no number of steps"},
    {"an_answer_between_steps", "after 3 steps: yes", "nothing else comes between two steps"},
};
INSTANTIATE_TEST_SUITE_P(Inputs, FaultyLine, ::testing::ValuesIn(FaultRows), RowName());

// ---- a game is its setup, its replay number and its inputs ----

class PlayedAgain : public GameTest {
protected:
    InputList Play(int number, std::string& journal) {
        SetUpRestlessGame(number);
        Journal written;
        written.Start();
        RestlessRobot robot(static_cast<std::uint64_t>(number), &written);
        InputRecorder recorder(&robot);
        services.Window = &robot;
        services.Listener = &recorder;
        PlayOrLeave();
        services.Window = nullptr;
        services.Listener = nullptr;
        journal = written.Text();
        return recorder.Inputs;
    }

    std::string PlayAgain(int number, const InputList& inputs) {
        SetUpRestlessGame(number);
        Journal written;
        written.Start();
        InputPlayer player(inputs, &written);
        PlayOrLeave();
        EXPECT_TRUE(player.AtEnd());
        return written.Text();
    }
};

TEST_F(PlayedAgain, AThousandGamesAreWhatTheirInputsMakeThem) {
    int left = 0;
    int between = 0;
    for (int number = 1; number <= Scaled(1000); ++number) {
        SCOPED_TRACE(number);
        std::string journal;
        const InputList inputs = Play(number, journal);
        const auto signature = game.Signature;
        ASSERT_EQ(FirstDifference(PlayAgain(number, ThroughText(inputs)), journal), "");
        ASSERT_EQ(game.Signature, signature);
        left += inputs.empty() || inputs.back().Text().find("leave game") == std::string::npos ? 0 : 1;
        for (const Input& input : inputs) {
            between += input.StepsBegun >= 0 ? 1 : 0;
        }
    }
    EXPECT_GT(left, 0) << "some games are left";
    EXPECT_GT(between, Scaled(1000)) << "switches are turned between steps, too";
}

TEST_F(PlayedAgain, WithoutItsLastInputsAGameEndsThere) {
    std::string journal;
    InputList inputs = Play(4, journal);
    ASSERT_GT(inputs.size(), 20U);
    inputs.resize(inputs.size() / 2);
    const auto begun = PlayAgain(4, inputs);
    EXPECT_EQ(journal.substr(0, begun.size()), begun);
    EXPECT_LT(begun.size(), journal.size());
}

}  // namespace
}  // namespace plasmos::testing
