// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#feeding

#include <vector>

#include "model/game_state.h"

namespace plasmos {

/// A meal is written as a whole number whose digits, largest first, are the pieces eaten of each
/// distinct foreign colour: 211 is two of one colour and one each of two others.

/// The menus that a clan may eat, with its genes and the number of clans in play, in the order in which
/// they are shown. What it finds in a square limits them further.
std::vector<int> LegalMenusOf(int clan);

/// Whether the current clan may eat a menu.
bool IsLegalMenu(int menu);

/// The same. Keeps the text of its legal menus in `LegalMenus`.
bool LegalEat(int menu);

/// Sorts the menu work lists by amount, the largest first, and gives the menu they spell.
int SortMenuDigits(Table<int, 0, 7>& amounts, Table<int, 0, 7>& colours);

/// The best menu that a square's food allows for a clan; 0: it cannot eat there. The work lists keep
/// what was counted. A clan with frugality is steered to its smallest menus, and some legal menus are
/// never suggested.
int SuggestMenu(int square, int clan);

/// Whether SuggestMenu would find a menu, for looking ahead: it leaves the work lists alone.
bool CanEat(int square, int clan);

/// Puts entries with equal amounts in the order of their owners' scores, the higher score first.
void OrderEqualAmounts();

}  // namespace plasmos
