// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace plasmos {

/// Where a window stands on the screen and how large it is, from one program to the next.
class WindowPlace : public QObject {
    Q_OBJECT

public:
    explicit WindowPlace(QWidget& window);

    /// Takes size and place from the settings, as far as the screens allow.
    void Load();
    /// Saves them; a window that is maximised saves those it had before.
    void Save();
    /// The window is there: from now on it is never larger than the free area of its screen, its frame included.
    void Watch();

private:
    void KeepOnScreen();

    QWidget* window_;
    bool watching_ = false;
};

}  // namespace plasmos
