// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/directions.h"

#include "model/genes.h"

namespace plasmos {

SquareList Neighbours(int square, int clan) {
    constexpr int leftRightUpDown[] = {3, 1, 4, 2};
    SquareList list;
    bool own = false;
    for (const int direction : leftRightUpDown) {
        const int next = game.NextTo[square][direction];
        own = own || next == square;
        list.Add(next);
    }
    if (HasGene(clan, "hol") && !own) {
        list.Add(square);
    }
    return list;
}

}  // namespace plasmos
