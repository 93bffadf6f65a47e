// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace plasmos {

/// Shows what the signs on the board, the cards and in the questions mean, each beside its picture, in a window that
/// stays open beside the game.
void ShowSigns(QWidget& window);

/// Shows the keys that play and steer the window.
void ShowKeys(QWidget& window);

}  // namespace plasmos
