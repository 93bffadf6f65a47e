// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/runtime_error.h"
#include "flow/play_game.h"
#include "model/services.h"
#include "record/game_recorder.h"
#include "sim/robot.h"

namespace plasmos {

/// Plays a whole game of one robot person among computer clans, always the same one, and has it written down.
inline void PlayRobotsGame(int clans, GameRecorder& recorder) {
    services = {};
    SetBoard(5, 5);
    game.AutoPlay = false;
    game.FastMode = true;
    game.RequestedClans = clans;
    game.HasRequestedReplay = true;
    game.RequestedReplay = 4711;
    Robot robot(1, 4711);
    services.Window = &robot;
    services.Listener = &recorder;
    PlayOneGame();
    services = {};
}

}  // namespace plasmos
