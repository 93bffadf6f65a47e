// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/narration.h"

#include "model/message_line.h"
#include "model/observer.h"
#include "model/presentation.h"
#include "model/services.h"

namespace plasmos {

bool WordsAreWanted() {
    return (services.Listener != nullptr && services.Listener->WantsText()) ||
           (services.Window != nullptr && services.Window->WantsText());
}

void LogText(const std::string& line, int clan) {
    if (services.Listener != nullptr) {
        services.Listener->OnSay(line);
    }
    Board().Log(line, clan);
}

void SayText(const std::string& line) {
    ShowStatement(line, game.CurPlayer);
    LogText(line);
}

void SayMoreText(const std::string& line) {
    AddStatement(line, game.CurPlayer);
    LogText(line);
}

void ReportText(const std::string& line) {
    if (game.FastMode) {
        LogText(line);
    } else {
        SayText(line);
    }
}

void TellPerson(int clan, const std::string& text) {
    ShowStatement(text, clan);
    if (SomebodyListens()) {
        LogText(text, clan);
    }
    TakePause(StatementPause);
}

}  // namespace plasmos
