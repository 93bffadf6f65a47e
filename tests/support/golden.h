// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "sim/options.h"

namespace plasmos::testing {

/// A recorded game: the file of its steps under tests/golden, and the options it was played with.
struct GoldenGame {
    std::string Name;
    SimOptions Options;
};
inline void PrintTo(const GoldenGame& golden, std::ostream* out) {
    *out << golden.Name;
}

/// The six recorded games: computer clans of every number, boards with and without blocks, persons.
std::vector<GoldenGame> GoldenGames();

/// Plays a game and tells it step by step, a line each: turn, step, clan and amoeba, the rolls, the
/// number of lines and questions, and a digest of the state after it.
std::vector<std::string> TellSteps(const GoldenGame& golden);

/// The path of a recorded game's file.
std::string GoldenFile(const std::string& name);

}  // namespace plasmos::testing
