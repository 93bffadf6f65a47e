// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace plasmos {

class GameRecorder;

/// Shows, beside the game, why the computer clans did what they did last, the latest first.
void ShowReasons(QWidget& window, const GameRecorder& recorder);

/// What it shows follows the game while it is open; nullptr: there is none.
void RenewReasons(QWidget& window, const GameRecorder* recorder);

}  // namespace plasmos
