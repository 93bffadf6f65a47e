// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "model/observer.h"
#include "model/presentation.h"
#include "model/switches.h"
#include "questions/answer.h"

namespace plasmos {

/// One thing that came from a person: an answer to the question that was open on top, or a switch.
struct Input {
    Answer Given;
    Switch Turned;
    bool IsSwitch = false;  ///< Turned counts, else Given
    /// A switch that was taken over before a step: the number of steps begun until then. -1: it came while a
    /// question waited, as every answer does.
    int StepsBegun = -1;

    /// One line: "square 7", "set victory on", "after 12 steps: set victory on".
    std::string Text() const;
    /// Reads what Text() writes; what comes back is what is wrong with the line, or an empty text.
    static std::string Parse(std::string_view line, Input& input);

    friend bool operator==(const Input&, const Input&) = default;
};

inline Input InputOf(const Answer& answer) {
    return {answer, {}, false, -1};
}
/// A switch while a question waits, or before a step.
inline Input InputOf(const Switch& turned, int stepsBegun = -1) {
    return {{}, turned, true, stepsBegun};
}

/// Everything that came from the persons of a game, in order. With the game's setup and its replay number it is the
/// whole game.
using InputList = std::vector<Input>;

/// Passes on what it hears.
class PassingObserver : public Observer {
public:
    explicit PassingObserver(Observer* next) : next_(next) {}

    bool WantsText() const override { return next_ != nullptr && next_->WantsText(); }
    bool WantsReasons() const override { return next_ != nullptr && next_->WantsReasons(); }
    void OnRoll(int n, int face) override { Pass(&Observer::OnRoll, n, face); }
    void OnBegin(Step step, int clan, int amoeba) override { Pass(&Observer::OnBegin, step, clan, amoeba); }
    void OnEnd(Step step, int clan, int amoeba) override { Pass(&Observer::OnEnd, step, clan, amoeba); }
    void OnHappening(const Happening& happening) override { Pass(&Observer::OnHappening, happening); }
    void OnReason(std::string_view sentence) override { Pass(&Observer::OnReason, sentence); }
    void OnSay(std::string_view line) override { Pass(&Observer::OnSay, line); }
    void OnBox(std::string_view text) override { Pass(&Observer::OnBox, text); }
    void OnAsk(const Question& question) override { Pass(&Observer::OnAsk, question); }
    void OnInput(const Question& question, const Answer& put) override { Pass(&Observer::OnInput, question, put); }
    void OnSwitch(const Switch& turned, TakenAt place) override { Pass(&Observer::OnSwitch, turned, place); }
    void OnAnswer(const Question& question, const Answer& answer, bool accepted) override {
        Pass(&Observer::OnAnswer, question, answer, accepted);
    }
    void OnOver() override { Pass(&Observer::OnOver); }

private:
    template <class... Parameters, class... Arguments>
    void Pass(void (Observer::*what)(Parameters...), const Arguments&... arguments) {
        if (next_ != nullptr) {
            (next_->*what)(arguments...);
        }
    }

    Observer* next_;
};

/// Writes a game's inputs down as they come.
class InputRecorder : public PassingObserver {
public:
    explicit InputRecorder(Observer* next = nullptr) : PassingObserver(next) {}

    void OnBegin(Step step, int clan, int amoeba) override;
    void OnInput(const Question& question, const Answer& answer) override;
    void OnSwitch(const Switch& turned, TakenAt place) override;

    InputList Inputs;

private:
    int steps_ = 0;
};

/// Plays a game again from its inputs: it is the window and the listener of that game while it lives. A question
/// that the inputs do not answer ends the game, as a person who leaves does.
class InputPlayer : public Presentation, public PassingObserver {
public:
    explicit InputPlayer(const InputList& inputs, Observer* next = nullptr);
    ~InputPlayer() override;

    /// What is asked may hang on whether words are wanted; the game was played before somebody who wanted them.
    bool WantsText() const override { return true; }
    /// Whether every input has been given.
    bool AtEnd() const { return next_ == inputs_.size(); }

    void Open(Question& question) override;
    void Close(Question& question) override;
    void Wait() override;
    void OnBegin(Step step, int clan, int amoeba) override;
    void OnEnd(Step step, int clan, int amoeba) override;

private:
    void TurnSwitchesBeforeStep();

    const InputList& inputs_;
    std::size_t next_ = 0;
    int steps_ = 0;
    Presentation* windowBefore_;
    Observer* listenerBefore_;
};

}  // namespace plasmos
