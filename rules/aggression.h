// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#aggression

namespace plasmos {

/// The aggression step: amoebas whose damage has reached its limit die and become food; then at most
/// one attack in the whole game, by the first clan in clan-number order that is able and willing.
void AggressionPhase();

/// Damage at which an amoeba of a clan dies: 3 with "lif", else 2.
int DamageLimit(int clan);

/// What an amoeba is attacked for.
enum class Assault { ToEat, Aggression };

/// The attacked clan's answer by "def": up to two attempts with "per". True: the attack is beaten off.
bool DefendAmoeba(int clan, int amoeba, Assault assault = Assault::Aggression);

/// The attacked clan's answer by "esc". True: the amoeba has left the square.
bool EscapeAmoeba(int clan, int amoeba, Assault assault = Assault::Aggression);

/// Takes a piece off the board for good: square, damage and spot are 0, its name stays. Food: the pieces of every
/// colour that have been laid down for it and have not been told of.
void RemoveAmoeba(int clan, int amoeba, int food);

/// Every colour in play gains pieces of food in a square.
void AddFoodOfAllColours(int square, int pieces);

}  // namespace plasmos
