// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#the-turn

#include <string>

#include "rules/aggression.h"
#include "rules/division.h"

namespace plasmos {

class FoodForm;

/// What the answers to a question cost and bring, in a line or two that stand beside the question. The rules that
/// ask hand it over with the question. Where nobody reads hints every one of these is empty, and no text is made.

// ---- setup ----
/// How many clans play; the persons play so many of them.
std::string ClansHint(int persons);

// ---- movement ----
/// The offer to move elsewhere: its price, where the faces of the die lead, what a "no" means, and the genes that
/// would change it. `without` is the square in which it then eats, 0 where that is not known.
std::string MoveOfferHint(int clan, int amoeba, bool first, int without);
/// The square of a drift that lets the amoeba choose.
std::string FreeDriftHint();
/// A square chosen without a die, with Movement 2.
std::string FreeChoiceHint();
/// A square chosen because a throw (1 or 2) shows "where it wants"; where the first throw led, if this is the
/// second: a direction and a square, which are not looked at otherwise.
std::string ThrowHint(int clan, int number, int firstDirection, int firstSquare);
/// The choice between the squares of two throws, given as directions and squares.
std::string BothThrowsHint(int firstDirection, int firstSquare, int secondDirection, int secondSquare);
/// Riding along with an amoeba that moves to a square.
std::string RidersHint(int to);
/// What the tentacle carries into a square.
std::string TentacleHint(int clan, int to);
std::string DragHint(int clan, int to);

// ---- feeding ----
/// The meal of an amoeba, or that there is none and what starving brings, and the alternatives where they are offered.
std::string FeedingHint(const FoodForm& form, int amoeba);
std::string HostHint();
std::string StruggleHint(int clan, int amoeba);

// ---- genes ----
std::string GenesOfferHint();
std::string BuyingHint();
std::string AdaptingHint(int clan);

// ---- division ----
/// New amoebas of a clan at a price, of which it may have so many.
std::string DivisionHint(int clan, int price, int most);
std::string PlacingHint(int clan, bool inPlay, const NewAmoeba& which);

// ---- aggression ----
std::string AggressHint();
std::string AggressVictimHint(int clan, int attack);
std::string AttackerHint();
std::string DefenceHint(int clan, Assault assault, bool again);
std::string EscapeHint(int clan, int amoeba, Assault assault);

}  // namespace plasmos
