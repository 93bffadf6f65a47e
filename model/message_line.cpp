// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/message_line.h"

#include <algorithm>
#include <utility>

#include "model/presentation.h"
#include "model/services.h"

namespace plasmos {

namespace {

int UnitsFor(int clan) {
    const bool person = clan >= 1 && clan <= game.NumPlayers && !game.Players[clan].IsComputer;
    return person ? StatementPause : TellingPause;
}

void StartTime(int units) {
    game.PauseOwed = game.MessageUnits = units;
}

/// Where nobody reads there is no text either.
void Put(std::string_view text, int clan) {
    if (Board().WantsText()) {
        game.Message = text;
    }
    Board().ShowMessage(text, clan);
}

bool LeavesMessage(std::string_view text) {
    const std::string_view before = game.Message;
    return text.size() > before.size() && text[before.size()] == '\n' && text.substr(0, before.size()) == before;
}

void Replace(std::string_view text, int clan, int units) {
    LetMessageBeRead();
    Put(text, clan);
    StartTime(units);
}

}  // namespace

void ShowStatement(std::string_view text, int clan) {
    Replace(text, clan, UnitsFor(clan));
}

void AddStatement(std::string_view text, int clan) {
    Put(BelowMessage(text), clan);
    StartTime(std::max(game.MessageUnits, UnitsFor(clan)));
}

void Concern(int clan) {
    if (UnitsFor(clan) > game.MessageUnits) {
        StartTime(UnitsFor(clan));
    }
}

void ShowQuestionText(std::string_view text, int clan) {
    if (LeavesMessage(text)) {
        Put(text.substr(text.front() == '\n' ? 1 : 0), clan);
    } else {
        Replace(text, clan, 0);
    }
}

void PutBackMessage(const std::string& before, int clan) {
    if (game.Message != before) {
        Replace(before, clan, 0);
    }
}

void ClearMessage() {
    Replace({}, 0, 0);
}

std::string BelowMessage(std::string_view text) {
    return game.Message.Empty() ? std::string(text) : Concat(game.Message, "\n", text);
}

void LetMessageBeRead() {
    const int owed = std::exchange(game.PauseOwed, 0);
    if (owed > 0 && !game.FastMode) {
        Show(&Presentation::Pause, owed);
    }
}

void TakePause(int units) {
    if (services.Window != nullptr) {
        services.Window->Pause(units);
        game.PauseOwed = std::max(0, game.PauseOwed - units);
    }
}

}  // namespace plasmos
