// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/input_list.h"

#include <algorithm>
#include <charconv>

#include "files/runtime_error.h"
#include "files/text.h"
#include "model/game_state.h"
#include "model/services.h"
#include "questions/ask.h"

namespace plasmos {

namespace {

constexpr std::string_view Before = "after ";
constexpr std::string_view Steps = " steps: ";

/// Takes "after 12 steps: " off a line. False: it begins so and goes on otherwise.
bool TakeSteps(std::string_view& line, int& steps) {
    return !TakeWord(line, Before) || (TakeNumber(line, steps) && steps >= 0 && TakeWord(line, Steps));
}

constexpr std::size_t CheckDigits = 4;

std::string CheckText(int check) {
    std::string text = "0000 ";
    for (std::size_t digit = CheckDigits; digit-- > 0; check /= 16) {
        text[digit] = "0123456789abcdef"[check % 16];
    }
    return text;
}

/// No answer and no switch is a word of four such digits.
void TakeCheck(std::string_view& line, int& check) {
    int number = 0;
    const auto digits = line.substr(0, CheckDigits);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
    const bool whole = error == std::errc() && end == digits.data() + CheckDigits && digits.front() != '-';
    if (whole && line.substr(CheckDigits, 1) == " ") {
        check = number;
        line.remove_prefix(CheckDigits + 1);
    }
}

/// What is put in, without when and how the game stood then.
std::string WordsOf(const Input& input) {
    if (input.IsLostLine()) {
        return input.Lost.Text();
    }
    return input.IsSwitch ? input.Turned.Text() : input.Given.Text();
}

std::string AllowedText(const Question& question) {
    constexpr std::size_t most = 8;
    const auto allowed = question.Allowed();
    std::string text;
    for (std::size_t i = 0; i < std::min(allowed.size(), most); ++i) {
        text += (i == 0 ? "" : ", ") + allowed[i].Text();
    }
    return text + (allowed.size() > most ? " and more" : "");
}

std::string OtherwiseText(const Input& input) {
    return Concat("the game stands otherwise here than when \"", WordsOf(input),
                  "\" was put in: something above was changed");
}

bool IsSwitchText(std::string_view line) {
    return line.substr(0, 4) == "set " || line == Switch{}.Text();
}

}  // namespace

std::string Input::Text() const {
    const auto check = Check < 0 ? std::string() : CheckText(Check);
    const auto text = WordsOf(*this);
    return StepsBegun < 0 ? check + text : Concat(check, Before, StepsBegun, Steps, text);
}

std::string Input::Parse(std::string_view line, Input& input) {
    input = {};
    TakeCheck(line, input.Check);
    if (auto whole = line; !TakeSteps(line, input.StepsBegun)) {
        return Concat("\"", whole, R"(" names no number of steps, as in "after 12 steps: set victory on")");
    }
    input.IsSwitch = IsSwitchText(line);
    if (input.IsSwitch) {
        return Switch::Parse(line, input.Turned);
    }
    if (input.StepsBegun >= 0) {
        return Concat("\"", line, "\" is no switch, and nothing else comes between two steps");
    }
    if (line.substr(0, 5) == "lost ") {
        return LostLine::Parse(line, input.Lost);
    }
    return Answer::Parse(line, input.Given);
}

void InputRecorder::OnBegin(Step step, int clan, int amoeba) {
    ++steps_;
    PassingObserver::OnBegin(step, clan, amoeba);
}

void InputRecorder::OnInput(const Question& question, const Answer& answer) {
    Add(InputOf(answer));
    PassingObserver::OnInput(question, answer);
}

void InputRecorder::OnSwitch(const Switch& turned, TakenAt place) {
    Add(InputOf(turned, place == TakenAt::Step ? steps_ : -1));
    PassingObserver::OnSwitch(turned, place);
}

void InputRecorder::OnLost(const LostLine& lost) {
    Add(InputOf(lost));
    PassingObserver::OnLost(lost);
}

void InputRecorder::Add(const Input& input) {
    if (!IsLeft()) {
        Inputs.push_back(input);
        Inputs.back().Check = CheckOfNow();
    }
}

// A switch may have been turned since.
void InputRecorder::OnAnswer(const Question& question, const Answer& answer, bool accepted) {
    if (Input* given = LatestAnswer(); !accepted && given != nullptr) {
        given->Refused = true;
    }
    PassingObserver::OnAnswer(question, answer, accepted);
}

Input* InputRecorder::LatestAnswer() {
    const auto given =
        std::find_if(Inputs.rbegin(), Inputs.rend(), [](const Input& input) { return input.IsAnswer(); });
    return given != Inputs.rend() ? &*given : nullptr;
}

int CheckOfNow() {
    std::uint64_t folded = game.Signature;
    folded ^= folded >> 32U;
    folded ^= folded >> 16U;
    return static_cast<int>(folded & 0xFFFFU);
}

InputPlayer::InputPlayer(const InputList& inputs, Observer* next, std::size_t givenBefore)
    : PassingObserver(next),
      inputs_(inputs),
      next_(givenBefore),
      end_(inputs.size()),
      windowBefore_(services.Window),
      listenerBefore_(services.Listener) {
    services.Window = this;
    services.Listener = this;
    TurnSwitchesBeforeStep();
}

InputPlayer::~InputPlayer() {
    HandBack();
}

void InputPlayer::HandBack() {
    services.Window = windowBefore_;
    services.Listener = listenerBefore_;
    services.ToLose = nullptr;
}

void InputPlayer::Open(Question& /*question*/) {}

void InputPlayer::Close(Question& /*question*/) {}

void InputPlayer::Exhausted(Question& /*question*/) {
    throw GameLeft{};
}

void InputPlayer::Mismatch(const InputFault& fault) {
    throw InputFault(fault);
}

void InputPlayer::Refuse(const InputFault& fault) {
    Mismatch(fault);
    end_ = next_;
    services.ToLose = nullptr;
}

/// Whether the next input is one for the open question.
bool InputPlayer::NextFits(const Question& question) {
    const Input& input = inputs_[next_];
    if (input.StepsBegun >= 0 || input.IsLostLine()) {
        Refuse({next_, Concat("a question is open here, and \"", WordsOf(input),
                              "\" answers none; allowed: ", AllowedText(question))});
    } else if (input.Check >= 0 && input.Check != CheckOfNow()) {
        Refuse({next_, OtherwiseText(input)});
    }
    return !AtEnd();
}

/// Answers until the rule has something to look at. A switch is taken over before the next answer.
void InputPlayer::Wait() {
    Question& question = *TopQuestion();
    while (!question.Answered()) {
        if (AtEnd() || !NextFits(question)) {
            Exhausted(question);
            return;
        }
        const Input& input = inputs_[next_];
        Advance();
        if (input.IsSwitch) {
            services.Switches.Add(input.Turned);
            return;
        }
        answer_ = next_ - 1;
        question.Put(input.Given);
    }
}

// Whether the last one of all was refused may not have been written down any more.
void InputPlayer::OnAnswer(const Question& question, const Answer& answer, bool accepted) {
    if (services.Window != this) {
        PassingObserver::OnAnswer(question, answer, accepted);
        return;
    }
    const Input& given = inputs_.at(answer_);
    if (accepted == given.Refused && !(AtEnd() && answer_ + 1 == inputs_.size() && !accepted)) {
        Refuse({answer_, Concat("\"", WordsOf(given),
                                accepted ? "\" is taken here, and was refused" : "\" is refused here; allowed: ",
                                accepted ? std::string() : AllowedText(question))});
    }
    PassingObserver::OnAnswer(question, answer, accepted);
}

void InputPlayer::TurnSwitchesBeforeStep() {
    while (!AtEnd() && inputs_[next_].StepsBegun == steps_) {
        services.Switches.Add(inputs_[next_].Turned);
        Advance();
    }
    LookForLostLine();
}

void InputPlayer::Advance() {
    ++next_;
    LookForLostLine();
}

/// The rules lose the line by themselves as soon as they come to it.
void InputPlayer::LookForLostLine() {
    if (services.Window == this) {
        services.ToLose = !AtEnd() && inputs_[next_].IsLostLine() ? &inputs_[next_].Lost : nullptr;
    }
}

void InputPlayer::OnLost(const LostLine& lost) {
    if (services.Window == this) {
        if (!IsLostAgain()) {
            Refuse({next_, Concat("a line is lost here that was not lost before: ", std::string_view(lost.Why))});
        } else if (inputs_[next_].Check >= 0 && inputs_[next_].Check != CheckOfNow()) {
            Refuse({next_, OtherwiseText(inputs_[next_])});
        } else {
            Advance();
        }
    }
    PassingObserver::OnLost(lost);
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
