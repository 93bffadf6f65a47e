// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#movement

#include "model/game_state.h"
#include "model/happening.h"

namespace plasmos {

/// What an amoeba with a tentacle takes along when it leaves a square.
struct TentacleLoad {
    Table<int, 0, MaxClans> Food;  ///< pieces of each colour
    bool HasFood = false;
    int DraggedAmoeba = 0;  ///< a piece of its own clan; 0: none

    void Take(int colour, int pieces) {
        Food[colour] += pieces;
        HasFood = HasFood || pieces != 0;
    }
};

/// What kind of move a piece makes, and the piece that it has to do with: whom it holds on to, whose tentacle drags
/// it, or from whom it escapes.
struct Manner {
    Happening::Kind What = Happening::Kind::Moves;
    int OtherClan = 0;
    int OtherAmoeba = 0;
};

/// Moves one amoeba to a square, with what its tentacle takes along and with the hitch-hikers. Each
/// piece's move is traced, and everything in it that can fail comes before its tables change: an error
/// is recorded for the piece that it stops, which stays where it is and pays nothing for being dragged,
/// while the others move. Nobody follows a mover that stays. The phase goes on.
void MoveAmoeba(int clan, int amoeba, int destination);

/// The same for a piece that rides, is dragged or escapes: no tentacle and no riders of its own.
/// False: an error has been recorded.
bool MoveAlone(int clan, int amoeba, int destination, const Manner& manner);

/// The spot a piece gets in a square: RollDie(30) until it is free. A square with 30 pieces has none:
/// a message tells so and the spot is 0, not drawn.
int SquareCapacity(int square);

/// What the amoeba's tentacle takes to the destination, asked or worked out; nothing without "ten".
TentacleLoad ChooseTentacleLoad(int clan, int amoeba, int destination);

/// The free spot in a piece's square nearest by number to another piece's spot becomes the piece's,
/// the lower one on a tie; without a free spot it keeps its own.
void MoveBeside(int clan, int amoeba, int otherSlot);

}  // namespace plasmos
