// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "files/text.h"
#include "model/game_state.h"
#include "model/services.h"

namespace plasmos {

/// Whether the presentation or the observer there is wants words; use SomebodyListens.
bool WordsAreWanted();

/// Whether anybody reads the words of this game. Nothing is put into words when nobody does.
inline bool SomebodyListens() {
    return (services.Listener != nullptr || services.Window != nullptr) && WordsAreWanted();
}

/// Use Say, SayMore, Report and LogLine.
void SayText(const std::string& line);
void SayMoreText(const std::string& line);
void ReportText(const std::string& line);
void LogText(const std::string& line, int clan = game.CurPlayer);

/// A statement to a person between two questions: the message line shows it, the log keeps it, and
/// there is a pause to read it in.
void TellPerson(int clan, const std::string& text);

/// One line of narration: it replaces the text of the message line and goes to the log.
template <class... Pieces>
void Say(const Pieces&... pieces) {
    if (SomebodyListens()) {
        SayText(Concat(pieces...));
    }
}

/// A new line of narration below what the message line shows; it goes to the log too.
template <class... Pieces>
void SayMore(const Pieces&... pieces) {
    if (SomebodyListens()) {
        SayMoreText(Concat(pieces...));
    }
}

/// A line for the log alone.
template <class... Pieces>
void LogLine(const Pieces&... pieces) {
    if (SomebodyListens()) {
        LogText(Concat(pieces...));
    }
}

/// A computer clan's report: shown like Say, in fast mode for the log alone.
template <class... Pieces>
void Report(const Pieces&... pieces) {
    if (SomebodyListens()) {
        ReportText(Concat(pieces...));
    }
}

}  // namespace plasmos
