// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/leave_guard.h"

#include <QPushButton>
#include <utility>

#include "model/game_state.h"
#include "ui/look/dress.h"

namespace plasmos {

bool LeaveGuard::IsNeeded() {
    if (IsOver()) {
        return false;
    }
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        if (!game.Players[clan].IsComputer) {
            return true;
        }
    }
    return false;
}

void LeaveGuard::Ask(const QString& question, const QString& yes, const QString& no, std::function<void()> deed) {
    Drop();
    box_ = new QMessageBox(QMessageBox::Question, QStringLiteral("Plasmos"), question, QMessageBox::NoButton, window_);
    box_->setObjectName(QStringLiteral("leavebox"));
    box_->setTextFormat(Qt::PlainText);
    QPushButton* leave = box_->addButton(yes, QMessageBox::DestructiveRole);
    leave->setObjectName(QStringLiteral("leaveb"));
    QPushButton* stay = box_->addButton(no, QMessageBox::RejectRole);
    stay->setObjectName(QStringLiteral("stayb"));
    box_->setDefaultButton(stay);
    box_->setEscapeButton(stay);
    Dress(*box_);
    box_->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(
        leave, &QPushButton::clicked, window_, [done = std::move(deed)] { done(); }, Qt::QueuedConnection);
    box_->open();
}

void LeaveGuard::Drop() {
    if (box_ != nullptr) {
        box_->close();
    }
}

}  // namespace plasmos
