// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace plasmos {

struct GameState;
struct Happening;

/// The quiet line that the window's log has about something that has just happened, in a state that has it already.
/// Empty where the rules have told it in words, and where a mark on board or cards says enough: a change of spot, BP
/// that are paid, the order of play.
std::string QuietWords(const GameState& state, const Happening& happening);

/// A piece as the log calls it: "Otto (3) of Player 1".
std::string PieceWords(const GameState& state, int clan, int amoeba);

}  // namespace plasmos
