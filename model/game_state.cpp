// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/game_state.h"

#include "model/board_size.h"

namespace plasmos {

namespace {

/// Direction number 1 right, 2 down, 3 left, 4 up: the square one step on, before blocks are looked at.
constexpr int StepOnEmptyBoard(int square, int direction, int rows, int cols) {
    switch (direction) {
        case 1: return square % cols == 0 ? square : square + 1;
        case 2: return square > (rows - 1) * cols ? square : square + cols;
        case 3: return (square - 1) % cols == 0 ? square : square - 1;
        case 4: return square <= cols ? square : square - cols;
        default: return square;
    }
}

constexpr void FillNextTo(GameSetup& setup) {
    for (int square = 1; square <= setup.NumSquares; ++square) {
        for (int direction = 0; direction <= 4; ++direction) {
            const int next = StepOnEmptyBoard(square, direction, setup.NumRows, setup.NumCols);
            setup.NextTo[square][direction] = static_cast<std::int8_t>(setup.Blocked[next] ? square : next);
        }
    }
}

constexpr GameTables EmptyTables{};

constexpr GameState NewState() {
    GameState state{};
    FillNextTo(state);
    return state;
}

}  // namespace

constinit thread_local GameState game = NewState();

void ResetTables() {
    static_cast<GameTables&>(game) = EmptyTables;
    game.Message = "";
}

void SetBoard(int rows, int cols, std::string_view blocks) {
    const BoardSize size{rows, cols, ParseBlocks(blocks, rows * cols)};
    if (const auto fault = BoardFault(size); !fault.empty()) {
        throw RuntimeError(5, "Invalid procedure call: " + fault);
    }
    game.NumRows = rows;
    game.NumCols = cols;
    game.NumSquares = rows * cols;
    game.Blocked = {};
    for (const int square : size.Blocks) {
        game.Blocked[square] = true;
    }
    FillNextTo(game);
}

void PutPiece(int clan, int amoeba, int square, int slot) {
    Piece& piece = game.Amoeba[amoeba][clan];
    piece.Square = square;
    piece.Slot = slot;
    if (square == 0) {
        return;
    }
    ++game.Occupancy[square][clan];
    ++game.Occupancy[square][0];
    if (slot > 0) {
        game.SpotsTaken[square] |= 1U << static_cast<unsigned>(slot);
    }
}

void LiftPiece(int clan, int amoeba) {
    Piece& piece = game.Amoeba[amoeba][clan];
    if (piece.Square > 0) {
        --game.Occupancy[piece.Square][clan];
        --game.Occupancy[piece.Square][0];
        if (piece.Slot > 0) {
            game.SpotsTaken[piece.Square] &= ~(1U << static_cast<unsigned>(piece.Slot));
        }
    }
    piece.Square = 0;
    piece.Slot = 0;
}

}  // namespace plasmos
