// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageBox>
#include <QPointer>
#include <functional>

namespace plasmos {

/// Asks once before something of a person's is lost by a slip: whether a game is to be left, the window closed in its
/// middle, or the results forgotten.
class LeaveGuard {
public:
    explicit LeaveGuard(QWidget& window) : window_(&window) {}

    /// Whether a person plays in the current game, and it is not over yet.
    static bool IsNeeded();
    /// Does what is wanted once the person is sure. The game goes on waiting meanwhile.
    void Ask(const QString& question, const QString& yes, const QString& no, std::function<void()> deed);
    /// The game is over: nothing is asked any more.
    void Drop();

private:
    QWidget* window_;
    QPointer<QMessageBox> box_;
};

}  // namespace plasmos
