// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/preferences_desk.h"

#include <utility>

#include "files/game_files.h"
#include "flow/start.h"
#include "model/game_state.h"
#include "model/services.h"
#include "ui/options/options_dialog.h"

namespace plasmos {

PreferencesDesk::PreferencesDesk(QWidget& window, std::function<void(bool otherBoard)> changed)
    : window_(&window), changed_(std::move(changed)) {}

PreferencesDesk::~PreferencesDesk() = default;

bool PreferencesDesk::IsOpen() const {
    return dialog_ != nullptr;
}

void PreferencesDesk::Open() {
    if (IsOpen() || services.Settings == nullptr || services.Files == nullptr) {
        return;
    }
    dialog_ = new OptionsDialog(window_, *services.Settings, *services.Files);
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog_, &QDialog::finished, window_,
                     [this, dialog = dialog_.data()] { Closed(dialog->SaveTried); });
    changed_(false);
    dialog_->open();
}

void PreferencesDesk::Closed(bool saveTried) {
    dialog_ = nullptr;
    bool otherBoard = false;
    if (saveTried || (services.Files != nullptr && services.Files->Exists(OptionsFile))) {
        const GameSetup before = game;
        LoadBoard();
        otherBoard = before.NumRows != game.NumRows || before.NumCols != game.NumCols || before.Blocked != game.Blocked;
    }
    changed_(otherBoard);
}

}  // namespace plasmos
