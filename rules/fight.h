// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#aggression

namespace plasmos {

/// An attack made in order to eat, by the current amoeba of clan `attacker`; it serves persons and
/// computer clans alike, and who attacks has paid. `stillHungry` is false afterwards when the victim has
/// been eaten. `victimAmoeba` 0: the victim clan's piece with the lowest damage in the square, the
/// lowest number on a tie. Armour does not help.
void AttackToEat(int victimClan, int square, int attacker, bool& stillHungry, int victimAmoeba);

/// One attack of the aggression step by the current amoeba, from the choice of the victim to the
/// outcome; a second one with "per" when the victim got away. A person picks the victim and pays
/// for it; a computer clan has paid.
void AttackAmoeba(int victimClan, int square, int victimAmoeba);

}  // namespace plasmos
