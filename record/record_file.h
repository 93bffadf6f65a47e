// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "record/game_record.h"

namespace plasmos {

/// How the names of records end.
inline constexpr std::string_view RecordEnding = ".plasmos";
/// Bytes of the largest record that is read. A long game has some 20,000.
inline constexpr std::size_t LargestRecord = 4 << 20;

/// Reads a record's file, which stays as it is. What cannot be opened, is no file or is too large has a fault without
/// a line.
ReadRecord ReadRecordFile(const std::string& path);

/// Writes a record's text into a file whole; the old one stays when this fails. What comes back is what went wrong, or
/// an empty text.
std::string WriteRecordFile(const std::string& path, std::string_view text);

}  // namespace plasmos
