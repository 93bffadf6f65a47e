// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace plasmos {

class Question;
struct Answer;
struct Happening;
struct LostLine;
struct Switch;
enum class TakenAt;

/// The steps a game is told in, in the order of play.
enum class Step { NewGame, Move, Feed, Environment, Adapt, BuyGenes, Divide, Deaths, Attack, Score };

/// The name a step has in a journal.
std::string_view StepName(Step step);

/// Hears what happens in a game: every roll, step, line, question and answer, in order.
/// It reads the state and changes nothing.
class Observer {
public:
    virtual ~Observer() = default;

    /// Whether lines are to be put into words for this observer.
    virtual bool WantsText() const { return true; }
    /// Whether this observer reads why a computer clan does what it does. It is asked as each step begins.
    virtual bool WantsReasons() const { return false; }

    virtual void OnRoll(int n, int face) = 0;
    /// Clan and amoeba are 0 where the step has none.
    virtual void OnBegin(Step step, int clan, int amoeba) = 0;
    virtual void OnEnd(Step step, int clan, int amoeba) = 0;
    /// Something has happened, and the state has it; what is said and shown of it comes after.
    virtual void OnHappening(const Happening& /*happening*/) {}
    /// A sentence of the reason for what follows in this step; see model/reasons.h. An action may have several.
    virtual void OnReason(std::string_view /*sentence*/) {}
    /// A line that goes to the game log.
    virtual void OnSay(std::string_view line) = 0;
    virtual void OnBox(std::string_view text) = 0;
    virtual void OnAsk(const Question& question) = 0;
    /// What a person has put in, before anything comes of it.
    virtual void OnInput(const Question& /*question*/, const Answer& /*answer*/) {}
    /// A switch is taken over: before a step begins, or while a question waits.
    virtual void OnSwitch(const Switch& /*turned*/, TakenAt /*place*/) {}
    /// A line of a move could not be written, and the piece stays where it is.
    virtual void OnLost(const LostLine& /*lost*/) {}
    /// What came back; refused answers are told too.
    virtual void OnAnswer(const Question& question, const Answer& answer, bool accepted) = 0;
    virtual void OnOver() = 0;
};

}  // namespace plasmos
