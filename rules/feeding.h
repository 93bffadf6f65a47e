// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#feeding

#include "model/game_state.h"

namespace plasmos {

/// Feeding: every amoeba eats once a turn, right after its move. It eats a menu of foreign colours
/// and excretes 2 pieces of its own, feeds as a parasite, eats another amoeba, or starves.

/// One feeding turn of a person's amoeba (the current one) in a square.
void FeedAmoeba(int square, int clan);

/// Takes a menu's pieces from the square, digit by digit from the colours in the work lists, and lays
/// down 2 pieces of the current clan's colour. Menu 0 changes nothing. Colour 0 takes nothing.
void EatMenu(int menu, int square);

/// Eats the menu that SuggestMenu has just found; colours with equal amounts are taken in the order
/// of their owners' scores, the higher first.
void EatSuggestion(int menu, int square);

/// The current amoeba eats nothing: the line, one point of damage, a pause.
void Starve(int square);

/// Whether a clan may fight for its food: it holds "sfs" or "agg".
bool IsFighter(int clan);

/// Whether a clan is a victim for the eater in a square: another clan with a piece there that is not
/// protected ("sfs" against "arm", or "par" against a clan without BP).
bool IsVictim(int square, int eater, int clan);

/// Whether a square holds a victim for a clan.
bool HasVictim(int square, int eater);

/// Whether a piece in the square could lend food to a parasite: another clan's with 1 BP.
bool IsHost(int square, int eater, int clan);

/// What parasites find: the menu, and the one or two clans that lend for it.
struct ParasiteMeal {
    int Menu = 0;  ///< 0: no meal
    int HostCount = 0;
    Table<int, 0, 2> Hosts;
};

/// Tries whether hosts make a menu possible; the square is afterwards as it was, the work lists hold
/// the meal, lent pieces as colour 0.
ParasiteMeal FindParasiteMeal(int square, int clan);

/// A parasite's meal is eaten: each host pays 1 BP, then the menu in the work lists is eaten.
void EatAsParasite(const ParasiteMeal& meal, int square);

/// What the clan's suggestion in a square would take of each colour.
Table<int, 0, MaxClans> SuggestedAmounts(int square, int clan);

}  // namespace plasmos
