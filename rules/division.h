// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#division

#include "rules/square_set.h"

namespace plasmos {

/// Amoebas that every clan begins with.
inline constexpr int StartAmoebas = 2;

/// Which of the amoebas that a clan creates one after the other is meant.
struct NewAmoeba {
    int Which = 1;
    int Of = 1;
};

/// Cell division: every clan gets its income and may then buy new amoebas and place them.
void DivisionPhase();

/// BP each clan gets in every division step: 10, with 5 or 6 clans 11.
int DivisionIncome();

/// BP one new amoeba costs a clan: 4 with "div", else 6.
int DivisionPrice(int clan);

/// Creates an amoeba of a clan in its lowest free slot, on a square that the person clicks or the
/// computer chooses. While the game is set up (turn 0) every empty square will do. False: no slot is
/// free or there is no square to place it in, and nothing has happened.
bool CreateAmoeba(int clan, const NewAmoeba& which = {});

/// Pays for an amoeba, unless the clan has none on the board, and creates it. False: nothing happened.
bool DivideOnce(int clan, int price, const NewAmoeba& which = {});

/// The squares a clan may place an amoeba in. `inPlay` is false during the setup. In play
/// a clan without amoebas has every empty square, with "spo" or one amoeba every square without its
/// own, else the squares next to its amoebas; where that is none, every square without its own.
SquareSet PlacingSquares(int clan, bool inPlay);

/// Lets a person click one of the placing squares.
int ChoosePlaceSquare(int clan, bool inPlay, const NewAmoeba& which = {});

}  // namespace plasmos
