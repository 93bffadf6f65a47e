// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plasmos {

inline constexpr int MinSide = 3;
inline constexpr int MaxSide = 9;
inline constexpr int MaxBoardSquares = 36;
inline constexpr int MaxBlocks = 8;
/// Six clans can place two pieces each, and every draw of a square has an answer.
inline constexpr int MinFreeSquares = 12;
inline constexpr int DefaultSide = 5;

/// A board as it is chosen before a game: rows and columns, and the squares covered by blocks.
struct BoardSize {
    int Rows = DefaultSide;
    int Cols = DefaultSide;
    std::vector<int> Blocks;

    friend bool operator==(const BoardSize&, const BoardSize&) = default;
};

/// What is wrong with a board and what is allowed, or an empty text: 3 to 9 rows and columns,
/// rows x columns at most 36, at most 8 blocks on the board, once each, and 12 squares free.
std::string BoardFault(const BoardSize& board);

/// Reads blocked squares, each followed by ":" ("7:12:"). Keeps whole numbers 1..squares, each once;
/// everything else is passed over.
std::vector<int> ParseBlocks(std::string_view text, int squares);

/// Writes blocked squares the way ParseBlocks reads them.
std::string BlocksText(const std::vector<int>& blocks);

/// Drops the blocks that would be more than 8 or leave fewer than 12 squares free, the last first.
void TrimBlocks(BoardSize& board);

}  // namespace plasmos
