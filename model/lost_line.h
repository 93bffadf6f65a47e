// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "files/runtime_error.h"
#include "model/services.h"

namespace plasmos {

/// A line of a move that could not be written, as on a full disk. A piece whose line is lost stays where it is, so a
/// lost line is an input of the game like an answer: with it the game can be played again where the disk is sound.
struct LostLine {
    int Line = 0;     ///< the number of the line among all lines of the game's moves, from 1; 0: none
    int Error = 0;    ///< the error number, see RuntimeError
    std::string Why;  ///< its description

    /// As one line: "lost 57: 61 Disk full: ...".
    std::string Text() const;
    /// Reads what Text() writes. What comes back is what is wrong with the line and what is expected, or an empty
    /// text.
    static std::string Parse(std::string_view line, LostLine& read);

    friend bool operator==(const LostLine&, const LostLine&) = default;
};

/// Use CountMoveLine.
void LoseAgain();

/// Counts a line of a move, which is about to be written, and loses it where a game that is played again has lost it.
inline void CountMoveLine() {
    ++services.MoveLines;
    if (services.ToLose != nullptr) [[unlikely]] {
        LoseAgain();
    }
}

/// A part of a move has failed. Tells the listener when it was for a line that could not be written.
void TellOfLostLine(const RuntimeError& error);

/// Whether the move that has just failed did so because the game is played again; it has been recorded then.
bool IsLostAgain();

}  // namespace plasmos
