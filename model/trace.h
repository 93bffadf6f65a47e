// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <functional>
#include <string>
#include <string_view>

#include "model/game_state.h"
#include "model/services.h"

namespace plasmos {

/// Whether this game keeps files; without them no trace line needs to be built.
inline bool TracesAreKept() {
    return services.Files != nullptr;
}

/// Appends a text as one line: kind "rnd" or "rand" to the random-number file, "crt" nowhere, every
/// other kind to the move file. A text that ends in a line break leaves an empty line after it.
/// A line that fails is tried three times, 50 ms apart, before it is an error; a data folder that is gone
/// is made again in between.
void WriteTrace(std::string_view text, std::string_view kind);

/// Writes to the game's files with the patience of a trace line.
void WriteWithPatience(const std::function<void()>& write);

/// Empties the move file.
void EmptyMoveFile();

/// The six lines of an error record, each with its line end.
std::string ErrorRecord(const RuntimeError& error, int clan, int amoeba);

/// Appends an error record to the error file, with the patience of a trace line. It never fails: what cannot
/// be written goes to standard error, and so does the record of a game that keeps no files.
void AppendErrorRecord(const RuntimeError& error, int clan, int amoeba);

/// Appends an error record and ends the program.
[[noreturn]] void WriteErrorRecord(const RuntimeError& error, int clan, int amoeba);

/// The error being handled, as one of the game's own; call it inside a catch block for std::exception
/// (the ends of program and game are none).
RuntimeError CurrentError();

/// Runs a phase. An error in it is recorded for the clan and piece that act, and ends the program.
template <class Body>
void GuardPhase(Body&& body) {
    try {
        body();
    } catch (const std::exception&) {
        WriteErrorRecord(CurrentError(), game.CurPlayer, game.CurAmoeba);
    }
}

}  // namespace plasmos
