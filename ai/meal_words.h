// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#feeding-and-fights-of-a-computer-clan

#include "model/reasons.h"

namespace plasmos {

/// Use TellMeal.
[[gnu::cold]] void TellMealWanted(int menu, int square, int clan);

/// The reason for a menu that SuggestMenu has just found: the food it was found for, the genes that allow it, and
/// what decides between heaps of the same size.
inline void TellMeal(int menu, int square, int clan) {
    if (ReasonsAreWanted()) [[unlikely]] {
        TellMealWanted(menu, square, clan);
    }
}

}  // namespace plasmos
