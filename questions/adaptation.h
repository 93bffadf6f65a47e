// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "model/game_state.h"

namespace plasmos {

/// A way to make up the difference between a clan's mutation level and the UV level.
struct Adaptation {
    std::vector<int> GivenUp;  ///< genes, ascending
    int Paid = 0;              ///< BP
};

/// The cheapest way for a clan, which a person may take as a suggestion: BP count as they are and a gene as much as
/// it costs to buy; of ways that cost the same the one that keeps more genes. Ray Protection is never given up: the
/// level is higher without it. Empty where nothing has to be made up.
Adaptation CheapestAdaptation(const GameState& state, int clan);

}  // namespace plasmos
