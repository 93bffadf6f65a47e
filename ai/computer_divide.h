// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace plasmos {

/// How many amoebas the current computer clan divides at a price in BP, and the dividing itself. In
/// turn 1 a coin decides on one, in turns 2 to 4 it is one less than it could be.
void ComputerDivide(int cost);

/// The square for a new amoeba of a computer clan with "spo" or fewer than 2 amoebas: drawn among the
/// squares 1 to 24, whatever the board's size; where it can eat if 23 draws find such a square.
int ComputerPlaceSquare(int clan);

/// The same for a clan that places next to its own amoebas: up to 23 draws for a square where it can
/// eat, else any of the squares it may place in. 0: there is none.
int ComputerPlaceBeside(int clan);

}  // namespace plasmos
