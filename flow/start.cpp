// SPDX-License-Identifier: GPL-3.0-or-later
#include "flow/start.h"

#include <algorithm>

#include "files/game_files.h"
#include "files/settings_store.h"
#include "model/board_size.h"
#include "model/game_state.h"
#include "model/services.h"

namespace plasmos {

std::string PrepareDataFolder() {
    if (services.Files == nullptr) {
        return {};
    }
    try {
        services.Files->MakeFolder();
        return {};
    } catch (const RuntimeError& error) {
        return Concat("The data folder cannot be made.\n", std::string_view(error.what()));
    }
}

BoardSize ReadBoardSettings(const SettingsStore& store) {
    BoardSize board;
    board.Rows = GetNumber(store, "board", "rows", DefaultSide, MinSide, MaxSide);
    board.Cols = GetNumber(store, "board", "cols", DefaultSide, MinSide, MaxSide);
    if (board.Rows * board.Cols > MaxBoardSquares || board.Rows * board.Cols < MinFreeSquares) {
        board.Rows = board.Cols = DefaultSide;
    }
    board.Blocks = ParseBlocks(store.Get("board", "blocks", {}), board.Rows * board.Cols);
    TrimBlocks(board);
    return board;
}

void LoadBoard() {
    const BoardSize board = services.Settings != nullptr ? ReadBoardSettings(*services.Settings) : BoardSize{};
    SetBoard(board.Rows, board.Cols, BlocksText(board.Blocks));
}

}  // namespace plasmos
