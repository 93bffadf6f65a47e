// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#computer-clans

#include "model/reasons.h"
#include "rules/directions.h"

namespace plasmos {

/// Pieces of the reasons that speak of squares; see model/reasons.h.

/// "the squares 8, 12 and 14", "the square 7". A square that stands in the list more than once is named once.
struct TheSquares {
    const SquareList& Squares;
};
/// A direction die and where it leads: "3, left into 12", "5, in place", "2, down, where the way is barred".
struct TheThrow {
    int Roll;
    int From;
};
/// A square drawn from a list by a die: "the die took 14 of the squares 12 and 14", "12 is the only one".
struct TheDraw {
    const SquareList& Squares;
    int Square;
};

void AppendPiece(std::string& text, const TheSquares& squares);
void AppendPiece(std::string& text, TheThrow thrown);
void AppendPiece(std::string& text, const TheDraw& draw);

/// The squares of a list in ascending order: "8, 12 and 14"; one that stands in it more than once, and has more than
/// one face of the die over the list, as "1 (twice)" if they are to be counted.
void AppendSquares(std::string& text, const SquareList& squares, bool countThem);

}  // namespace plasmos
