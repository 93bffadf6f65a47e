// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace plasmos {

class Question;
struct GameState;

/// What a question is about, for a person who has not met it yet, whatever the answer may be.
std::string TopicNote(const Question& question, const GameState& state);

}  // namespace plasmos
