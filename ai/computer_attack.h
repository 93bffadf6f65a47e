// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace plasmos {

/// An attack that a computer clan with "agg" has found.
struct ComputerTarget {
    int Attacker = 0;        ///< piece of the attacking clan
    int Clan = 0;            ///< attacked clan; 0: none was found
    bool IsDamaged = false;  ///< chosen because a piece of it carries damage
};

/// Searches a target for a computer clan. One die says which clan is tried first. Pass 1 takes a clan
/// that can neither escape nor defend and is not armoured, pass 2 one with a damaged piece in the
/// square, pass 3 one without armour and defence whose escape is weak (neither "str" nor "mv2").
ComputerTarget FindComputerTarget(int clan);

}  // namespace plasmos
