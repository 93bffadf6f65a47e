// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace plasmos {

/// The turn's environment card sets UV level and drift; every clan whose mutation level is above the
/// UV level pays the difference in BP, gives up genes, or both.
void EnvironmentPhase();

/// The words for a direction: "Right", "Down", "Left", "Up", "in place", "where it wants"; nothing
/// for any other offset.
std::string_view DirectionText(int direction);

}  // namespace plasmos
