// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "model/lost_line.h"
#include "model/observer.h"
#include "model/presentation.h"
#include "model/switches.h"
#include "questions/answer.h"

namespace plasmos {

/// One thing that came from outside: a person's answer to the question that was open on top, a person's switch, or a
/// line that the disk did not take.
struct Input {
    Answer Given;
    Switch Turned;
    LostLine Lost;
    bool IsSwitch = false;  ///< Turned counts
    /// A switch that was taken over before a step: the number of steps begun until then. -1: it came while a
    /// question waited, as every answer does.
    int StepsBegun = -1;
    /// How the game stood when it was given, 0 to 65535, so that a game that has gone another way is found out. -1: it
    /// is not known.
    int Check = -1;
    /// An answer that came to nothing. Its text does not tell.
    bool Refused = false;

    /// Lost counts.
    bool IsLostLine() const { return Lost.Line > 0; }
    /// Given counts.
    bool IsAnswer() const { return !IsSwitch && !IsLostLine(); }

    /// One line: "square 7", "set victory on", "after 12 steps: set victory on", "lost 57: 61 Disk full", with its
    /// check before it as four hexadecimal digits: "03fa square 7".
    std::string Text() const;
    /// Reads what Text() writes; what comes back is what is wrong with the line, or an empty text.
    static std::string Parse(std::string_view line, Input& input);

    friend bool operator==(const Input&, const Input&) = default;
};

inline Input InputOf(const Answer& answer) {
    Input input;
    input.Given = answer;
    return input;
}
/// Whether it is that the person left.
inline bool LeavesGame(const Input& input) {
    return input.IsSwitch && input.Turned.What == Switch::Kind::Leave;
}
/// A switch while a question waits, or before a step.
inline Input InputOf(const Switch& turned, int stepsBegun = -1) {
    Input input;
    input.Turned = turned;
    input.IsSwitch = true;
    input.StepsBegun = stepsBegun;
    return input;
}
inline Input InputOf(const LostLine& lost) {
    Input input;
    input.Lost = lost;
    return input;
}

/// Everything that came to a game from outside, in order. With the game's setup and its replay number it is the
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
    void OnReason(std::string_view sentence) override {
        if (next_ != nullptr && next_->WantsReasons()) {
            next_->OnReason(sentence);
        }
    }
    void OnSay(std::string_view line) override { Pass(&Observer::OnSay, line); }
    void OnBox(std::string_view text) override { Pass(&Observer::OnBox, text); }
    void OnAsk(const Question& question) override { Pass(&Observer::OnAsk, question); }
    void OnInput(const Question& question, const Answer& put) override { Pass(&Observer::OnInput, question, put); }
    void OnSwitch(const Switch& turned, TakenAt place) override { Pass(&Observer::OnSwitch, turned, place); }
    void OnLost(const LostLine& lost) override { Pass(&Observer::OnLost, lost); }
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

/// Writes a game's inputs down as they come. When it has been left nothing more is one, such as what a control gives
/// that is put away.
class InputRecorder : public PassingObserver {
public:
    explicit InputRecorder(Observer* next = nullptr) : PassingObserver(next) {}

    void OnBegin(Step step, int clan, int amoeba) override;
    void OnInput(const Question& question, const Answer& answer) override;
    void OnSwitch(const Switch& turned, TakenAt place) override;
    void OnLost(const LostLine& lost) override;
    void OnAnswer(const Question& question, const Answer& answer, bool accepted) override;

    InputList Inputs;

protected:
    /// The latest that is no switch; none: nullptr.
    Input* LatestAnswer();

private:
    void Add(const Input& input);
    bool IsLeft() const { return !Inputs.empty() && LeavesGame(Inputs.back()); }

    int steps_ = 0;
};

/// The inputs of a game do not fit it.
struct InputFault {
    std::size_t Input = 0;  ///< the first that does not, from 0
    std::string Text;       ///< what is wrong with it
};

/// The check of an input that is given now.
int CheckOfNow();

/// Plays a game again from its inputs: it is the window and the listener of that game while it lives. Raises
/// InputFault where they do not fit. A question that the inputs do not answer ends the game, as a person who leaves
/// does.
class InputPlayer : public Presentation, public PassingObserver {
public:
    /// The first inputs may be given by somebody else, who plays before it does.
    explicit InputPlayer(const InputList& inputs, Observer* next = nullptr, std::size_t givenBefore = 0);
    ~InputPlayer() override;

    /// What is asked may hang on whether words are wanted; the game was played before somebody who wanted them.
    bool WantsText() const override { return true; }
    /// Whether every input has been given.
    bool AtEnd() const { return next_ == end_; }
    /// How many have been given.
    std::size_t Given() const { return next_; }

    void Open(Question& question) override;
    void Close(Question& question) override;
    void Wait() override;
    void OnBegin(Step step, int clan, int amoeba) override;
    void OnEnd(Step step, int clan, int amoeba) override;
    void OnLost(const LostLine& lost) override;
    void OnAnswer(const Question& question, const Answer& answer, bool accepted) override;

protected:
    /// A question is open, and every input has been given.
    virtual void Exhausted(Question& question);
    /// An input does not fit. Nothing of what comes behind it is given if this returns.
    virtual void Mismatch(const InputFault& fault);
    /// Whoever was window and listener before is it again.
    void HandBack();

private:
    bool NextFits(const Question& question);
    void Refuse(const InputFault& fault);
    void TurnSwitchesBeforeStep();
    void Advance();
    void LookForLostLine();

    const InputList& inputs_;
    std::size_t next_ = 0;
    std::size_t end_ = 0;
    std::size_t answer_ = 0;  ///< the latest that is an answer
    int steps_ = 0;
    Presentation* windowBefore_;
    Observer* listenerBefore_;
};

}  // namespace plasmos
