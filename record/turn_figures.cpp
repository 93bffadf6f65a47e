// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/turn_figures.h"

namespace plasmos {

namespace {

int FoodOf(const GameState& state, int clan) {
    int food = 0;
    for (int square = 1; square <= state.NumSquares; ++square) {
        food += state.Food[square][clan];
    }
    return food;
}

int GenesOf(const GameState& state, int clan) {
    int genes = 0;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        genes += state.Genes[gene][clan] ? 1 : 0;
    }
    return genes;
}

}  // namespace

TurnFigures FiguresOf(const GameState& state) {
    TurnFigures figures;
    figures.Turn = state.Turn;
    figures.UV = state.UVLevel;
    for (int clan = 1; clan <= state.NumPlayers; ++clan) {
        const Clan& one = state.Players[clan];
        figures.Clans[clan] = {one.Score,      state.AmoebaCount[clan], GenesOf(state, clan),
                               state.BP[clan], FoodOf(state, clan),     one.MutationLevel};
        figures.Food += figures.Clans[clan].Food;
    }
    return figures;
}

void FigureKeeper::Note(Step step, const GameState& state) {
    if (step == Step::NewGame) {
        kept_.clear();
    }
    if (step == Step::NewGame || step == Step::Score) {
        kept_.push_back(FiguresOf(state));
    }
}

}  // namespace plasmos
