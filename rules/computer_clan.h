// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#computer-clans

namespace plasmos {

// What a computer clan decides. The phases ask here, in the places where they would ask a person, and know
// nothing else of the computer clans; ai/ answers.

/// Decides and carries out the move of one amoeba of a computer clan: it holds fast, drifts, or pays
/// to move actively, once more with "spe" or "per". The clan's personality plays no part in it.
void ComputerMoveAmoeba(int clan, int amoeba);

/// The feeding turn of a computer clan's amoeba, or of a person's that eats by itself: it eats what
/// SuggestMenu offers, else attacks another clan's amoeba in the square, feeds as a parasite, or starves.
void ComputerFeedAmoeba(int clan, int amoeba, int square);

/// What the current computer clan gives up when its mutation level is above the UV level and it cannot
/// simply pay: first genes that are no favourites and Ray Protection, the cheapest first, then "div",
/// then its favourites. It pays BP as soon as that settles the rest.
void ComputerAdaptEnvironment();

/// What the current computer clan buys: the favourites of its personality, a fallback upgrade, genes
/// drawn by die while it can afford them, "int" from turn 6 on, and in turn 10 whatever it can.
void ComputerBuyGenes();

/// How many amoebas the current computer clan divides at a price in BP, and the dividing itself. In
/// turn 1 a coin decides on one, in turns 2 to 4 it is one less than it could be.
void ComputerDivide(int cost);

/// The square for a new amoeba of a computer clan with "spo" or fewer than 2 amoebas: drawn among the
/// squares 1 to 24, whatever the board's size; where it can eat if 23 draws find such a square.
int ComputerPlaceSquare(int clan);

/// The same for a clan that places next to its own amoebas: up to 23 draws for a square where it can
/// eat, else any of the squares it may place in. 0: there is none.
int ComputerPlaceBeside(int clan);

/// An attack that a computer clan with "agg" has found.
struct ComputerTarget {
    int Attacker = 0;        ///< piece of the attacking clan
    int Clan = 0;            ///< attacked clan; 0: none was found
    bool IsDamaged = false;  ///< chosen because a piece of it carries damage
};

/// Searches a target for a computer clan. One die says which clan is tried first. Pass 1 takes a clan
/// that can neither escape nor defend and is not armoured, pass 2 one with a damaged piece in the
/// square, pass 3 one without armour and defence whose escape is weak (neither "str" nor "mv2").
ComputerTarget FindComputerTarget(int clan);

/// Where a computer clan's piece under attack flees to; its own square: it failed. With "mv2" it
/// chooses among the squares it reaches, else a die decides and 6 chooses; with "mv1" two dice.
int FindEscapeSquare(int clan, int amoeba);

}  // namespace plasmos
