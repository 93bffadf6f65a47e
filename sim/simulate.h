// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "model/game_state.h"
#include "model/services.h"
#include "sim/options.h"

namespace plasmos {

/// How one game ended.
struct GameResult {
    struct ClanResult {
        FixedText<12> Personality;  ///< "person" for a robot's clan
        int StartPlace = 0;
        int Score = 0;
        int Amoebas = 0;
        int Genes = 0;
        int BP = 0;
    };

    float Replay = 0;
    int Clans = 0;
    int Turns = 0;
    int Winner = 0;
    std::int64_t Decisions = 0;
    std::uint64_t Signature = 0;
    Table<ClanResult, 0, MaxClans> ByClan;
    std::string Settings;  ///< what the run was played with, in words; empty where nobody asks
    std::string Journal;   ///< empty when none is wanted
    std::string Record;    ///< likewise
    std::string Fault;     ///< what ended the game or was found in it; empty: nothing
};

/// Sets this thread's game up for a run: board, menu marks, clan count.
void PrepareThread(const SimOptions& options, GameFiles* files);

/// Plays one game of a run on this thread.
GameResult SimulateGame(const SimOptions& options, std::int64_t index);

/// Plays the one record of a run on this thread. Raises UsageError where it does not fit.
GameResult SimulateRecord(const SimOptions& options, GameFiles* files);

/// Plays the games of a run on its jobs and hands the results over in replay order, on the calling
/// thread. `take` answers whether to go on. Games in hand are finished when it answers no or `stop`
/// is set, and then they are handed over no more or, after `stop`, still in order.
void SimulateGames(const SimOptions& options, GameFiles* files, const std::function<bool()>& stop,
                   const std::function<bool(const GameResult&)>& take);

}  // namespace plasmos
