// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace plasmos {

class GameRecorder;

/// Shows, beside the game, why the computer clans did what they did last, the latest first. What it shows is renewed
/// when it is shown again.
void ShowReasons(QWidget& window, const GameRecorder& recorder);

}  // namespace plasmos
