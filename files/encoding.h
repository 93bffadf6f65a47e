// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace plasmos {

/// UTF-8 with "\n" to Windows-1252 with CR LF. A character outside the code page becomes "?"; a CR LF
/// that is there already stays one.
std::string ToFileBytes(std::string_view text);

/// The bytes of one line of a file to UTF-8: they are taken as UTF-8 where they are valid UTF-8, else
/// as Windows-1252.
std::string FromFileBytes(std::string_view bytes);

bool IsValidUtf8(std::string_view bytes);

/// A UTF-8 text as a part of one line: control characters, line and paragraph separators and what turns
/// the direction of writing become blanks.
std::string OneLine(std::string_view text);

/// The first characters of a UTF-8 text, at most `most`, without control characters; separators and what
/// turns the direction become blanks as in OneLine.
std::string FirstCharacters(std::string_view text, int most);

}  // namespace plasmos
