// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QKeyEvent>

namespace plasmos {

/// The keys that go through turns in a window, and through what has the keyboard and can be paged itself.
inline bool IsPageKey(int key) {
    return key == Qt::Key_PageUp || key == Qt::Key_PageDown || key == Qt::Key_Home || key == Qt::Key_End;
}

/// Keeps these keys for a part that has the keyboard, if it pages: true, and the event needs nothing else.
template <class Pages>
bool KeepsPageKeys(QEvent* event, const Pages& pages) {
    const bool keeps =
        event->type() == QEvent::ShortcutOverride && IsPageKey(static_cast<QKeyEvent*>(event)->key()) && pages();
    if (keeps) {
        event->accept();
    }
    return keeps;
}

}  // namespace plasmos
