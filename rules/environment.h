// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#environment

#include <string_view>

#include "model/game_state.h"

namespace plasmos {

/// The turn's environment card sets UV level and drift; every clan whose mutation level is above the
/// UV level pays the difference in BP, gives up genes, or both.
void EnvironmentPhase();

/// The words for a direction on a state's board: "Right", "Down", "Left", "Up", "in place", "where it wants"; nothing
/// for any other offset.
std::string_view DirectionText(const GameState& state, int direction);
inline std::string_view DirectionText(int direction) {
    return DirectionText(game, direction);
}

}  // namespace plasmos
