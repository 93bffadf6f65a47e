// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/reason_words.h"

#include <algorithm>

namespace plasmos {

namespace {

/// How often each square stands in a list.
using Times = Table<int, 0, MaxSquares>;

Times CountSquares(const SquareList& squares) {
    Times times;
    for (int place = 1; place <= squares.Count(); ++place) {
        ++times[squares[place]];
    }
    return times;
}

int CountDifferent(const Times& times) {
    return static_cast<int>(std::count_if(times.begin(), times.end(), [](int often) { return often > 0; }));
}

}  // namespace

void AppendSquares(std::string& text, const SquareList& squares, bool countThem) {
    constexpr std::string_view often[] = {"", "", " (twice)", " (three times)", " (four times)"};
    const Times times = CountSquares(squares);
    int named = 0;
    for (int square = 1; square <= MaxSquares; ++square) {
        if (times[square] > 0) {
            AppendSeparator(text, ++named, CountDifferent(times));
            text += Concat(square, countThem ? often[times[square]] : "");
        }
    }
}

void AppendPiece(std::string& text, const TheSquares& squares) {
    AppendPiece(text, CountDifferent(CountSquares(squares.Squares)) == 1 ? "the square " : "the squares ");
    AppendSquares(text, squares.Squares, false);
}

void AppendPiece(std::string& text, TheThrow thrown) {
    constexpr std::string_view directions[] = {"", ", right", ", down", ", left", ", up", ", in place"};
    const int target = NeighbourByDie(thrown.From, thrown.Roll);
    AppendPiece(text, thrown.Roll);
    AppendPiece(text, directions[thrown.Roll]);
    if (target != thrown.From) {
        text += Concat(" into ", target);
    } else if (thrown.Roll <= 4) {
        AppendPiece(text, ", where the way is barred");
    }
}

void AppendPiece(std::string& text, const TheDraw& draw) {
    if (CountDifferent(CountSquares(draw.Squares)) == 1) {
        text += Concat(draw.Square, " is the only one");
        return;
    }
    text += Concat("the die took ", draw.Square, " of the squares ");
    AppendSquares(text, draw.Squares, true);
}

}  // namespace plasmos
