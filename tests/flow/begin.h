// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "flow/new_game.h"
#include "model/game_state.h"

namespace plasmos::testing {

/// Sets up a game of computer clans.
inline void Begin(float replay, int clans) {
    game.HasRequestedReplay = true;
    game.RequestedReplay = replay;
    game.RequestedClans = clans;
    game.AutoPlay = true;
    NewGame();
}

}  // namespace plasmos::testing
