// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "model/game_state.h"
#include "record/game_recorder.h"

namespace plasmos {

/// What came of playing a record again.
struct PlayedRecord {
    std::size_t Sound = 0;  ///< so many of its inputs fit the game
    std::string Fault;      ///< what is wrong with the next one, or with the head; empty: nothing
    bool HeadFits = true;
    bool Broken = false;  ///< a run-time error ended it, which has been recorded where the rules found it
    bool Over = false;    ///< the game came to its end
    /// As it stands at the question that the inputs do not answer, or at the end.
    GameState State;
};

/// Plays a record on this thread, whose current game it becomes, and whose files it writes if there are any; `listener`
/// hears it as it heard the game.
PlayedRecord PlayRecord(const GameRecord& record, Observer* listener = nullptr);

/// Plays a record in a game of its own, while the current one stays as it is.
PlayedRecord PlayRecordApart(const GameRecord& record);

/// The game of a record at a moment of it, as GameRecorder counts them; at its end where it has not as many.
GameState StateAt(const GameRecord& record, int moment);

/// The fault of a record that was read and then played, with the line of the file.
RecordFault FaultOf(const ReadRecord& read, const PlayedRecord& played);

}  // namespace plasmos
