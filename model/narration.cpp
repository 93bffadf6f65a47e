// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/narration.h"

#include "model/observer.h"
#include "model/presentation.h"

namespace plasmos {

bool WordsAreWanted() {
    return (game.Listener != nullptr && game.Listener->WantsText()) ||
           (game.Window != nullptr && game.Window->WantsText());
}

void LogText(const std::string& line, int clan) {
    if (game.Listener != nullptr) {
        game.Listener->OnSay(line);
    }
    Board().Log(line, clan);
}

void SayText(const std::string& line) {
    Board().ShowMessage(line, game.CurPlayer);
    LogText(line);
}

void SayMoreText(const std::string& line) {
    const std::string before = Board().Message();
    Board().ShowMessage(before.empty() ? line : before + "\n" + line, game.CurPlayer);
    LogText(line);
}

void ReportText(const std::string& line) {
    if (game.FastMode) {
        LogText(line);
    } else {
        SayText(line);
    }
}

}  // namespace plasmos
