// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace plasmos {

/// Deals every computer clan its personality by die, no card twice ("Eater" is in the deck twice). With
/// three clans the "Miser" is left out; with difficulty "Normal" Ray Protection becomes a favourite of
/// all. Where no "Eater" was dealt, the computer clans' favourites are thinned out.
void DealPersonalities();

/// Whether there is a personality of this name.
bool IsPersonality(std::string_view name);

}  // namespace plasmos
