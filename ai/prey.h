// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#feeding-and-fights-of-a-computer-clan

#include "model/genes.h"

namespace plasmos {

/// Whether a computer clan that fights in order to eat looks at another clan in a square: it has a piece
/// there and no armour, whatever IsVictim says of it.
inline bool IsPrey(int square, int eater, int clan) {
    return clan != eater && game.Occupancy[square][clan] > 0 && !HasGene(clan, "arm");
}

}  // namespace plasmos
