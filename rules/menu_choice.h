// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#feeding

#include "model/genes.h"

namespace plasmos {

namespace detail {

constexpr bool Between(int least, int food, int most) {
    return least < food && food < most;
}

constexpr int SuggestWithBoth(int clans, int food) {
    switch (clans) {
        case 3:
            if (Between(1, food, 10))
                return 2;
            if (Between(10, food, 21))
                return 11;
            if (Between(20, food, 31))
                return 21;
            return food > 30 ? 31 : 0;
        case 4:
            if (Between(2, food, 11))
                return 3;
            if (food == 11 || food == 21 || food == 22)
                return food;
            if (Between(30, food, 111))
                return 31;
            return food > 110 ? 111 : 0;
        default:
            if (food == 22)
                return 22;
            if (Between(30, food, 100))
                return 31;
            if (food == 111 || food == 211)
                return food;
            if (food == 221 || food == 222)
                return 221;
            if (Between(310, food, 1110))
                return 311;
            return food > 1110 ? 1111 : 0;
    }
}

constexpr int SuggestWithFru(int clans, int food) {
    switch (clans) {
        case 3:
            if (Between(1, food, 10))
                return 2;
            if (Between(10, food, 20))
                return 11;
            return food > 20 ? 21 : 0;
        case 4:
            if (Between(10, food, 110))
                return 11;
            return food > 110 ? 111 : 0;
        default:
            if (Between(110, food, 1110))
                return 111;
            return food > 1110 ? 1111 : 0;
    }
}

constexpr int SuggestWithSub(int clans, int food) {
    switch (clans) {
        case 3:
            if (Between(3, food, 10))
                return 4;
            if (Between(20, food, 30))
                return 21;
            return food > 30 ? 31 : 0;
        case 4:
            if (Between(21, food, 31))
                return 22;
            if (Between(30, food, 110))
                return 31;
            return food > 110 ? 111 : 0;
        default:
            if (Between(220, food, 311))
                return 221;
            if (Between(310, food, 1000))
                return 311;
            return food > 1110 ? 1111 : 0;
    }
}

constexpr int SuggestPlain(int clans, int food) {
    switch (clans) {
        case 3: return food > 20 ? 21 : 0;
        case 4: return food > 110 ? 111 : 0;
        default: return food > 1110 ? 1111 : 0;
    }
}

}  // namespace detail

/// Which table of suggestions a clan reads: the number of clans and two of its genes.
struct Palate {
    int Clans;
    bool Sub, Fru;
};

inline Palate PalateOf(int clan) {
    return {game.NumPlayers, HasGene(clan, "sub"), HasGene(clan, "fru")};
}

/// The menu for the food on offer, a number whose digits are the amounts of each colour, largest first.
constexpr int ChooseMenu(int food, const Palate& palate) {
    if (palate.Sub) {
        return palate.Fru ? detail::SuggestWithBoth(palate.Clans, food) : detail::SuggestWithSub(palate.Clans, food);
    }
    return palate.Fru ? detail::SuggestWithFru(palate.Clans, food) : detail::SuggestPlain(palate.Clans, food);
}

}  // namespace plasmos
