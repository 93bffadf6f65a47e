// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace plasmos {

class Question;

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

    virtual void OnRoll(int n, int face) = 0;
    /// Clan and amoeba are 0 where the step has none.
    virtual void OnBegin(Step step, int clan, int amoeba) = 0;
    virtual void OnEnd(Step step, int clan, int amoeba) = 0;
    /// A line that goes to the game log.
    virtual void OnSay(std::string_view line) = 0;
    virtual void OnBox(std::string_view text) = 0;
    virtual void OnAsk(const Question& question) = 0;
    /// What came back, as the one-line text of the answer; refused answers are told too.
    virtual void OnAnswer(const Question& question, std::string_view value, bool accepted) = 0;
    virtual void OnOver() = 0;
};

}  // namespace plasmos
