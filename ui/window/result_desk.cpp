// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/result_desk.h"

#include <utility>

#include "files/settings_store.h"
#include "model/game_state.h"
#include "model/services.h"
#include "ui/look/palette.h"
#include "ui/strip/start_card.h"
#include "ui/window/game_results.h"

namespace plasmos {

ResultDesk::ResultDesk(StartCard& card, std::function<void(const QString& text)> tell)
    : card_(&card), tell_(std::move(tell)) {}

void ResultDesk::Show(bool played, bool waits) {
    if (!IsOver()) {
        ShowUnfinished(waits);
        return;
    }
    std::string story = TellResult(game);
    if (services.Settings != nullptr) {
        if (played && !NoteGame(*services.Settings, game)) {
            TellUnsaved();
        }
        const PersonRecord record = LoadRecord(*services.Settings, game.NumPlayers);
        if (record.Games > 0) {
            story += "\n" + TellRecord(record, game.NumPlayers);
        }
    }
    const int winner = ClanAtPlace(1);
    card_->ShowResult(QStringLiteral("%1 wins!").arg(ToQt(game.Players[winner].Name.View())), ToQt(story),
                      ToQt(TellPlaces(game) + "\n"), winner);
}

// The board still shows what was left.
void ResultDesk::ShowUnfinished(bool waits) {
    if (game.NumPlayers == 0) {
        card_->ShowWelcome();
        return;
    }
    const QString when = game.Turn == 0 ? QStringLiteral("before its first turn")
                                        : QStringLiteral("in turn %1 of %2").arg(game.Turn).arg(LastTurn);
    card_->ShowResult(
        QStringLiteral("This game was left"),
        (waits ? QStringLiteral("It waits %1. The board, the clans and the log show how it stands. Resume goes on with "
                                "it, Go begins a new game.")
               : QStringLiteral("It ended %1 without a winner. The board, the clans and the log show how it stood. "
                                "Go begins a new game."))
            .arg(when),
        QString(), 0);
}

void ResultDesk::Clear(bool waits) {
    if (services.Settings != nullptr && !ClearRecords(*services.Settings)) {
        TellUnsaved();
    }
    Show(false, waits);
}

void ResultDesk::TellUnsaved() const {
    tell_(QStringLiteral("The results could not be saved in\n%1").arg(ToQt(services.Settings->Where())));
}

}  // namespace plasmos
