// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace plasmos {

/// The arrow keys go from control to control within a part of the window, to the nearest one that way, and
/// never out of it.
class ArrowKeys : public QObject {
public:
    /// Belongs to the part of the window that it keeps the keys in.
    explicit ArrowKeys(QWidget* part);

    /// Takes the keys from every control that is there.
    void Take();
    /// Moves the focus; false: the key is no arrow, or the focus is elsewhere.
    bool Move(int key);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* part_;
};

}  // namespace plasmos
