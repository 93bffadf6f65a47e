// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/colour_names.h"

#include <array>

#include "files/text.h"
#include "model/game_state.h"

namespace plasmos {

std::string_view ColourName(int clan) {
    constexpr std::array<std::string_view, MaxClans + 1> names = {"no colour", "blue",  "purple", "yellow",
                                                                  "red",       "green", "orange"};
    return names[clan >= 1 && clan <= MaxClans ? static_cast<std::size_t>(clan) : 0];
}

std::string FoodWords(const GameState& state, int square) {
    std::string words;
    for (int clan = 1; clan <= state.NumPlayers; ++clan) {
        if (state.Food[square][clan] > 0) {
            words += Concat(words.empty() ? "" : ", ", state.Food[square][clan], " ", ColourName(clan));
        }
    }
    return words.empty() ? "none" : words;
}

}  // namespace plasmos
