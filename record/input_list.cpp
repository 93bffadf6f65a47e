// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/input_list.h"

#include <charconv>

#include "files/runtime_error.h"
#include "files/text.h"
#include "model/services.h"
#include "questions/ask.h"

namespace plasmos {

namespace {

constexpr std::string_view Before = "after ";
constexpr std::string_view Steps = " steps: ";

/// Takes "after 12 steps: " off a line. False: it begins so and goes on otherwise.
bool TakeSteps(std::string_view& line, int& steps) {
    if (line.substr(0, Before.size()) != Before) {
        return true;
    }
    const auto rest = line.substr(Before.size());
    const auto sign = rest.find(Steps);
    const auto number = rest.substr(0, sign);
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), steps);
    if (sign == std::string_view::npos || error != std::errc() || end != number.data() + number.size() || steps < 0) {
        return false;
    }
    line = rest.substr(sign + Steps.size());
    return true;
}

bool IsSwitchText(std::string_view line) {
    return line.substr(0, 4) == "set " || line == Switch{}.Text();
}

}  // namespace

std::string Input::Text() const {
    const auto text = IsSwitch ? Turned.Text() : Given.Text();
    return StepsBegun < 0 ? text : Concat(Before, StepsBegun, Steps, text);
}

std::string Input::Parse(std::string_view line, Input& input) {
    input = {};
    if (!TakeSteps(line, input.StepsBegun)) {
        return Concat("\"", line, R"(" names no number of steps, as in "after 12 steps: set victory on")");
    }
    input.IsSwitch = IsSwitchText(line);
    if (input.IsSwitch) {
        return Switch::Parse(line, input.Turned);
    }
    if (input.StepsBegun >= 0) {
        return Concat("\"", line, "\" is no switch, and nothing else comes between two steps");
    }
    return Answer::Parse(line, input.Given);
}

void InputRecorder::OnBegin(Step step, int clan, int amoeba) {
    ++steps_;
    PassingObserver::OnBegin(step, clan, amoeba);
}

void InputRecorder::OnInput(const Question& question, const Answer& answer) {
    Inputs.push_back(InputOf(answer));
    PassingObserver::OnInput(question, answer);
}

void InputRecorder::OnSwitch(const Switch& turned, TakenAt place) {
    Inputs.push_back(InputOf(turned, place == TakenAt::Step ? steps_ : -1));
    PassingObserver::OnSwitch(turned, place);
}

InputPlayer::InputPlayer(const InputList& inputs, Observer* next)
    : PassingObserver(next), inputs_(inputs), windowBefore_(services.Window), listenerBefore_(services.Listener) {
    services.Window = this;
    services.Listener = this;
    TurnSwitchesBeforeStep();
}

InputPlayer::~InputPlayer() {
    services.Window = windowBefore_;
    services.Listener = listenerBefore_;
}

void InputPlayer::Open(Question& /*question*/) {}

void InputPlayer::Close(Question& /*question*/) {}

/// Answers until the rule has something to look at. A switch is taken over before the next answer.
void InputPlayer::Wait() {
    Question& question = *TopQuestion();
    while (!question.Answered()) {
        if (AtEnd() || inputs_[next_].StepsBegun >= 0) {
            throw GameLeft{};
        }
        const Input& input = inputs_[next_++];
        if (input.IsSwitch) {
            services.Switches.Add(input.Turned);
            return;
        }
        question.Put(input.Given);
    }
}

void InputPlayer::TurnSwitchesBeforeStep() {
    for (; !AtEnd() && inputs_[next_].StepsBegun == steps_; ++next_) {
        services.Switches.Add(inputs_[next_].Turned);
    }
}

void InputPlayer::OnBegin(Step step, int clan, int amoeba) {
    ++steps_;
    PassingObserver::OnBegin(step, clan, amoeba);
}

void InputPlayer::OnEnd(Step step, int clan, int amoeba) {
    PassingObserver::OnEnd(step, clan, amoeba);
    TurnSwitchesBeforeStep();
}

}  // namespace plasmos
