// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/board_size.h"

#include <algorithm>
#include <charconv>

#include "files/text.h"

namespace plasmos {

std::string BoardFault(const BoardSize& board) {
    if (board.Rows < MinSide || board.Rows > MaxSide || board.Cols < MinSide || board.Cols > MaxSide) {
        return Concat("a board has ", MinSide, " to ", MaxSide, " rows and columns, not ", board.Rows, " x ",
                      board.Cols);
    }
    const int squares = board.Rows * board.Cols;
    if (squares > MaxBoardSquares) {
        return Concat("a board has at most ", MaxBoardSquares, " squares, not ", squares);
    }
    const auto blocks = static_cast<int>(board.Blocks.size());
    if (blocks > MaxBlocks) {
        return Concat("a board has at most ", MaxBlocks, " blocks, not ", blocks);
    }
    if (squares - blocks < MinFreeSquares) {
        return Concat(MinFreeSquares, " squares must stay free");
    }
    for (auto block = board.Blocks.begin(); block != board.Blocks.end(); ++block) {
        if (*block < 1 || *block > squares) {
            return Concat("block ", *block, " is off the board of ", squares, " squares");
        }
        if (std::find(board.Blocks.begin(), block, *block) != block) {
            return Concat("block ", *block, " is there twice");
        }
    }
    return {};
}

std::vector<int> ParseBlocks(std::string_view text, int squares) {
    std::vector<int> blocks;
    while (!text.empty()) {
        const auto end = std::min(text.find(':'), text.size());
        const auto entry = text.substr(0, end);
        int square = 0;
        const auto [rest, error] = std::from_chars(entry.data(), entry.data() + entry.size(), square);
        const bool whole = error == std::errc{} && rest == entry.data() + entry.size();
        const bool known = std::find(blocks.begin(), blocks.end(), square) != blocks.end();
        if (whole && square >= 1 && square <= squares && !known) {
            blocks.push_back(square);
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return blocks;
}

std::string BlocksText(const std::vector<int>& blocks) {
    std::string text;
    for (const int square : blocks) {
        text += Concat(square, ":");
    }
    return text;
}

void TrimBlocks(BoardSize& board) {
    const int room = std::min(MaxBlocks, board.Rows * board.Cols - MinFreeSquares);
    if (static_cast<int>(board.Blocks.size()) > room) {
        board.Blocks.resize(static_cast<std::size_t>(std::max(room, 0)));
    }
}

}  // namespace plasmos
