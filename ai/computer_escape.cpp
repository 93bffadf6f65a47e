// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/computer_clan.h"

#include "model/dice.h"
#include "model/genes.h"
#include "model/reasons.h"
#include "rules/directions.h"
#include "rules/menus.h"
#include "rules/reason_words.h"

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

/// What speaks for the square that PreferredSquare found.
struct Refuge {
    int Square, Clan;
};

void AppendPiece(std::string& text, const Refuge& refuge) {
    text += Concat(refuge.Square, CanEat(refuge.Square, refuge.Clan)
                                      ? ", the first where it can eat and none of its clan is"
                                      : ", the first where none of its clan is, as it could eat in none of those");
}

/// How it comes to choose: "With Movement 2".
int ChooseNeighbour(int own, int clan, std::string_view how) {
    if (const int preferred = PreferredSquare(Neighbours(own, clan), own, clan); preferred != 0) {
        Because(how, " it chooses its way: ", Refuge{preferred, clan}, ".");
        return preferred;
    }
    const int roll = RollDie(4);
    Because(how, " it chooses its way, but its clan is all around: the die threw ", TheThrow{roll, own}, ".");
    return NeighbourByDie(own, roll);
}

constexpr std::string_view ThrownFreely = "The die threw 6, so";

}  // namespace

int FindEscapeSquare(int clan, int amoeba) {
    const int own = game.Amoeba[amoeba][clan].Square;
    if (HasGene(clan, "mv2")) {
        return ChooseNeighbour(own, clan, "With Movement 2");
    }
    const int first = RollDie(6);
    if (first == 6) {
        return ChooseNeighbour(own, clan, ThrownFreely);
    }
    Because("The die threw ", TheThrow{first, own}, Where{HasGene(clan, "mv1"), ", and Movement 1 throws a second"},
            ".");
    if (!HasGene(clan, "mv1")) {
        return NeighbourByDie(own, first);
    }
    const int second = RollDie(6);
    if (second == 6) {
        return ChooseNeighbour(own, clan, ThrownFreely);
    }
    SquareList both;
    both.Add(NeighbourByDie(own, first));
    both.Add(NeighbourByDie(own, second));
    const int preferred = PreferredSquare(both, own, clan);
    if (preferred != 0) {
        Because("The second die threw ", TheThrow{second, own}, ", and it takes ", Refuge{preferred, clan}, ".");
        return preferred;
    }
    Because("The second die threw ", TheThrow{second, own},
            ", and with neither square free of its clan the first counts.");
    return both[1];
}

}  // namespace plasmos
