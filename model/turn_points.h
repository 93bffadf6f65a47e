// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/game_state.h"

namespace plasmos {

/// Genes of a clan that count for the score, at most 7; Ray Protection never counts.
int CountScoredGenes(const GameState& state, int clan);
inline int CountScoredGenes(int clan) {
    return CountScoredGenes(game, clan);
}

/// The points of a clan in a turn: so many steps its marker makes, each over every space that is taken.
struct TurnPoints {
    int ForAmoebas = 0;
    int ForGenes = 0;
};

TurnPoints TurnPointsOf(const GameState& state, int clan);

}  // namespace plasmos
