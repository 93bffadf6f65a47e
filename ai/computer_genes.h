// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#genes-of-a-computer-clan

namespace plasmos {

/// Whether a gene is one of the clan's favourites.
bool IsFavourite(int clan, int gene);

/// The mutation level from which on a computer clan buys no more favourites this turn: 50 in turn 10
/// and when the leader is close to the victory limit, else the UV values of the cards 1 to 10 summed
/// up and divided by the turns left.
int SpendingCap();

}  // namespace plasmos
