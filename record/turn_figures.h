// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "model/game_state.h"
#include "model/observer.h"

namespace plasmos {

/// What one clan had at one moment of a game.
struct ClanFigures {
    int Score = 0;
    int Amoebas = 0;  ///< pieces on the board
    int Genes = 0;    ///< genes it holds
    int BP = 0;
    int Food = 0;  ///< pieces of food of its colour on the board
    int MutationLevel = 0;

    friend bool operator==(const ClanFigures&, const ClanFigures&) = default;
};

/// How a game stood at the end of a turn.
struct TurnFigures {
    int Turn = 0;  ///< 0: before the first turn
    int UV = 0;
    int Food = 0;                           ///< pieces of food of every colour on the board
    Table<ClanFigures, 0, MaxClans> Clans;  ///< by clan; of those that are not in play all is 0

    friend bool operator==(const TurnFigures&, const TurnFigures&) = default;
};

TurnFigures FiguresOf(const GameState& state);

/// Keeps how a game stood after its setup and at the end of every turn.
class FigureKeeper {
public:
    /// A step has ended: a new game begins the figures anew, its setup and each scoring add to them.
    void Note(Step step, const GameState& state);
    /// In the order of the turns; empty before a game.
    const std::vector<TurnFigures>& Kept() const { return kept_; }

private:
    std::vector<TurnFigures> kept_;
};

}  // namespace plasmos
