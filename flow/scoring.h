// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace plasmos {

struct GameState;

/// The last phase of a turn: scoring, re-ordering, victory test, food history.
void ScorePhase();

/// Copies the food on the board into the history of this turn.
void RecordFoodHistory();

/// Points for amoebas and for genes, by the number of clans in play.
void FillScoreTables();

/// Genes of a clan that count for the score, at most 7; Ray Protection never counts.
int CountScoredGenes(const GameState& state, int clan);
int CountScoredGenes(int clan);

/// The points of a clan in a turn: so many steps its marker makes, each over every space that is taken.
struct TurnPoints {
    int ForAmoebas = 0;
    int ForGenes = 0;
};

TurnPoints TurnPointsOf(const GameState& state, int clan);

}  // namespace plasmos
