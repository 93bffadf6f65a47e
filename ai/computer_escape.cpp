// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/computer_clan.h"

#include "model/dice.h"
#include "model/genes.h"
#include "rules/directions.h"
#include "rules/menus.h"

namespace plasmos {

namespace {

/// The first square of a list where the clan has no piece and can eat, else the first without its
/// pieces; its own square never counts. 0: none.
int PreferredSquare(const SquareList& list, int own, int clan) {
    int empty = 0;
    for (int i = 1; i <= list.Count(); ++i) {
        const int square = list[i];
        if (square == own || game.Occupancy[square][clan] > 0) {
            continue;
        }
        if (CanEat(square, clan)) {
            return square;
        }
        empty = empty == 0 ? square : empty;
    }
    return empty;
}

int ChooseNeighbour(int own, int clan) {
    const int preferred = PreferredSquare(Neighbours(own, clan), own, clan);
    return preferred != 0 ? preferred : NeighbourByDie(own, RollDie(4));
}

}  // namespace

int FindEscapeSquare(int clan, int amoeba) {
    const int own = game.Amoeba[amoeba][clan].Square;
    if (HasGene(clan, "mv2")) {
        return ChooseNeighbour(own, clan);
    }
    const int first = RollDie(6);
    if (first == 6) {
        return ChooseNeighbour(own, clan);
    }
    if (!HasGene(clan, "mv1")) {
        return NeighbourByDie(own, first);
    }
    const int second = RollDie(6);
    if (second == 6) {
        return ChooseNeighbour(own, clan);
    }
    SquareList both;
    both.Add(NeighbourByDie(own, first));
    both.Add(NeighbourByDie(own, second));
    const int preferred = PreferredSquare(both, own, clan);
    return preferred != 0 ? preferred : both[1];
}

}  // namespace plasmos
