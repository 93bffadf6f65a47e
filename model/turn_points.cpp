// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/turn_points.h"

#include <algorithm>

#include "model/genes.h"

namespace plasmos {

namespace {

constexpr int MostGenesScored = 7;
constexpr int GenesBeforeDouble = 17;

}  // namespace

int CountScoredGenes(const GameState& state, int clan) {
    int count = 0;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (state.Genes[gene][clan] && gene != GeneId("ray")) {
            count += count >= GenesBeforeDouble ? 2 : 1;
        }
    }
    return std::min(count, MostGenesScored);
}

TurnPoints TurnPointsOf(const GameState& state, int clan) {
    return {state.ScoreByAmoebaCount[state.AmoebaCount[clan]], state.ScoreByGenes[CountScoredGenes(state, clan)]};
}

}  // namespace plasmos
