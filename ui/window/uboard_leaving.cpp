// SPDX-License-Identifier: GPL-3.0-or-later
//
// Leaving a game, closing the window, and the end of the program.

#include <QCloseEvent>

#include "ui/board/ttip.h"
#include "ui/strip/side_strip.h"
#include "ui/window/history_desk.h"
#include "ui/window/leave_guard.h"
#include "ui/window/lent_labels.h"
#include "ui/window/question_desk.h"
#include "ui/window/result_desk.h"
#include "ui/window/uboard.h"
#include "ui/window/window_place.h"

namespace plasmos {

// The guided game deals the same cards again, and a game that is kept can be gone on with.
bool UBoard::AsksBeforeLeaving() const {
    return !guided_ && !history_->IsKept() && LeaveGuard::IsNeeded();
}

void UBoard::LeaveGame() {
    const auto leave = [this] {
        history_->ShowNow();
        desk_->LeaveGame();
    };
    if (playing_ && !AsksBeforeLeaving()) {
        leave();
    } else if (playing_) {
        guard_->Ask(QStringLiteral("Leave this game? It cannot be taken up again."), QStringLiteral("&Leave"),
                    QStringLiteral("&Stay"), leave);
    }
}

void UBoard::ClearResults() {
    guard_->Ask(QStringLiteral("Forget the results of all your games so far?"), QStringLiteral("&Forget"),
                QStringLiteral("&Keep"), [this] {
                    results_->Clear(IsWaiting());
                    strip_->Arrange();
                });
}

void UBoard::EndProgram() {
    lent_->Stop();
    tips_->Stop();
    desk_->EndProgram();
}

void UBoard::CloseAtOnce() {
    sure_ = true;
    close();
}

void UBoard::closeEvent(QCloseEvent* event) {
    if (!sure_ && playing_ && !desk_->Ended() && AsksBeforeLeaving()) {
        event->ignore();
        guard_->Ask(QStringLiteral("Close the window in the middle of this game? It cannot be taken up again."),
                    QStringLiteral("&Close"), QStringLiteral("&Stay"), [this] { CloseAtOnce(); });
        return;
    }
    place_->Save();
    EndProgram();
    event->accept();
}

}  // namespace plasmos
