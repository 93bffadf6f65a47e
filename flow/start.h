// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#setting-up

#include <string>

namespace plasmos {

class SettingsStore;
struct BoardSize;

/// Program start: makes sure that the data folder is there. The answer is what went wrong, with path
/// and reason, or an empty text. The caller shows it in a message box and the window all the same; a
/// game started then is refused with the same message.
std::string PrepareDataFolder();

/// Reads board size and blocks from the settings (what is missing or out of bounds has its default)
/// and builds the board.
void LoadBoard();

/// The board the settings hold, inside the bounds whatever they say.
BoardSize ReadBoardSettings(const SettingsStore& store);

}  // namespace plasmos
