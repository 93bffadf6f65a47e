// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <functional>

class QWidget;

namespace plasmos {

class OptionsDialog;

/// The preferences of a window, and what comes of them.
class PreferencesDesk {
public:
    /// `changed` is called when they have been opened or closed, with whether the board is another one than before.
    PreferencesDesk(QWidget& window, std::function<void(bool otherBoard)> changed);

    ~PreferencesDesk();

    bool IsOpen() const;
    /// Opens them, where there is somewhere to keep them.
    void Open();

private:
    /// Takes the saved board; a save that was tried may have reached the settings and not the file.
    void Closed(bool saveTried);

    QWidget* window_;
    std::function<void(bool)> changed_;
    QPointer<OptionsDialog> dialog_;
};

}  // namespace plasmos
