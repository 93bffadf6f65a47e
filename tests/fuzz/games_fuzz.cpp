// SPDX-License-Identifier: GPL-3.0-or-later
// Whole games with persons whose every answer is a byte: the state is sound after each step and the
// game comes to its end.
#include "flow/play_game.h"
#include "model/consistency.h"
#include "model/step.h"
#include "sim/robot.h"
#include "sim/simulate.h"
#include "tests/fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace plasmos;
    using namespace plasmos::fuzz;
    Bytes bytes(data, size);
    SimOptions options;
    options.Check = true;
    options.Persons = bytes.Below(3);
    options.Clans = 3 + bytes.Below(4);
    options.Normal = bytes.Below(2) == 0;
    options.Victory = bytes.Below(4) == 0;
    constexpr int sizes[][2] = {{5, 5}, {3, 4}, {4, 9}, {9, 4}, {6, 6}, {3, 9}};
    const auto& board = sizes[bytes.Below(6)];
    options.Rows = board[0];
    options.Cols = board[1];
    const int room = std::min(8, board[0] * board[1] - 12);
    for (int block = bytes.Below(room + 1); block > 0; --block) {
        options.Blocks += Concat(4 * block, ":");
    }
    for (int i = 0; i < 8; ++i) {
        options.Robot = options.Robot << 8U | static_cast<unsigned>(bytes.Next());
    }
    options.FirstReplay = static_cast<float>(bytes.Next() * 256 + bytes.Next()) / 16;
    PrepareThread(options, nullptr);
    const GameResult result = SimulateGame(options, 0);
    Require(result.Fault.empty(), result.Fault.c_str());
    Require(result.Turns >= 1 && result.Turns <= 10, "a game has 1 to 10 turns");
    return 0;
}
