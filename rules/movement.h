// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#movement

#include <string>

#include "model/genes.h"
#include "rules/directions.h"

namespace plasmos {

/// Movement: every amoeba drifts with the current, unless its clan pays to try to move elsewhere, and
/// feeds at once where it then stands. Clans act in the reverse of the order of play.
void MovementPhase();

/// Whether a clan may attempt to move twice, the second time free: with Speed or its upgrade.
inline bool HasSpeed(int clan) {
    return HasGene(clan, "spe") || HasGene(clan, "per");
}

/// One amoeba of a person's clan drifts, or moves after the offer; with "spe" or "per" twice.
void MovePersonsAmoeba(int clan, int amoeba);

/// Asks a person to click the square an amoeba is to move into. With `neighbours` the squares it
/// reaches are offered, else those of `list`. The message line has its text back afterwards.
int ChooseSquare(int clan, int amoeba, bool neighbours, const SquareList& list = {}, std::string hint = {});

/// What a person's amoeba moves for.
enum class MoveKind { FirstAttempt, SecondAttempt, Escape };

/// How the direction of a person's move is found: by choice with "mv2", else by die (6 chooses),
/// with "mv1" by two dice. In an escape a first 6 chooses at once, without a second die.
int FindPersonsDestination(int clan, int amoeba, MoveKind kind);

}  // namespace plasmos
