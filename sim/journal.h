// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "model/observer.h"

namespace plasmos {

/// Writes the journal of one game: JSON Lines in the order things happen, one object a line.
class Journal : public Observer {
public:
    /// Empties the journal for a new game.
    void Start();

    /// The lines of the game so far, each with its line end.
    const std::string& Text() const { return text_; }

    void OnRoll(int n, int face) override;
    void OnBegin(Step step, int clan, int amoeba) override;
    void OnEnd(Step step, int clan, int amoeba) override;
    void OnReason(std::string_view sentence) override;
    void OnSay(std::string_view line) override;
    void OnBox(std::string_view text) override;
    void OnAsk(const Question& question) override;
    void OnAnswer(const Question& question, const Answer& answer, bool accepted) override;
    void OnOver() override;

private:
    void AppendText(std::string_view kind, std::string_view text);

    std::string text_;
};

/// The first line of a game's journal, from the current state.
std::string GameLine();

/// The whole state as one JSON object, complete enough to go on from.
void AppendState(std::string& text);

/// A text as a JSON string, quotes included.
void AppendJsonText(std::string& text, std::string_view value);

}  // namespace plasmos
