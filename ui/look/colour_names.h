// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace plasmos {

struct GameState;

/// What the colour of clan 1..6 is called: "blue".
std::string_view ColourName(int clan);
/// The food of a square in words, "2 blue, 1 red"; "none" where there is none.
std::string FoodWords(const GameState& state, int square);

}  // namespace plasmos
