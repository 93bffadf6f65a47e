// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

class QDBusPendingCallWatcher;

namespace plasmos {

/// Asks the desktop over its session's bus whether windows move: what a desktop tells every program through its
/// settings portal, whatever the style says. It asks once the window runs and whenever the person comes back to it, who
/// may have been to the desktop's settings, and waits for no answer. A session without a bus, or a desktop without a
/// portal, tells nothing.
class DesktopMotion : public QObject {
public:
    /// `told` is called, from the event loop, with each answer of the desktop.
    DesktopMotion(QObject* parent, std::function<void(bool moves)> told);

private:
    void Ask();
    void Hear(QDBusPendingCallWatcher& answer);

    std::function<void(bool)> told_;
    bool asking_ = false;
};

}  // namespace plasmos
