// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>

namespace plasmos {

/// A fault while the game runs, with the classic error number: 5 invalid procedure call,
/// 6 overflow, 7 out of memory, 9 subscript out of range, 11 division by zero, 51 internal error,
/// 53 file not found, 57 device I/O error, 61 disk full, 70 permission denied,
/// 75 path/file access error, 76 path not found.
struct RuntimeError : std::runtime_error {
    RuntimeError(int number, const std::string& description) : std::runtime_error(description), Number(number) {}

    int Number;
};

/// Whether an error number is one of files, disks and folders: 53, 57, 61, 70, 75 or 76.
bool IsFileError(int number);

/// The end of the program asked for in the middle of a game: the window was closed, or an error
/// record was written. It unwinds every rule up to whoever started the game and is never an error.
struct ProgramEnd {
    int ExitCode = 0;
};

/// The person leaves the game in the middle of it; the window stays. It unwinds every rule up to the
/// game driver and is never an error.
struct GameLeft {};

/// Raises error 9, "Subscript out of range".
[[noreturn]] void RaiseSubscriptError();

}  // namespace plasmos
