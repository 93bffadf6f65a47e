// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace plasmos {

/// The environment may ask for a scale of the screen (QT_SCALE_FACTOR, QT_SCREEN_SCALE_FACTORS, QT_FONT_DPI).
/// What no window can be shown with (no number, 0, below a quarter, more than eightfold) is taken away, so that
/// the scale is 1, with a line on standard error. Call it before the application is made.
void CheckScaleFactors();

}  // namespace plasmos
