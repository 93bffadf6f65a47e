// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plasmos {

/// The first line of every record; its number is that of the form.
inline constexpr std::string_view FirstLine = "Plasmos game record 1";
/// How it came to the number of clans, in the order of RecordHead::ClansAre.
inline constexpr std::string_view HowWords[] = {"given", "rolled", "asked"};

/// A text between quotes, with a backslash before a quote or a backslash of its own.
std::string Quoted(std::string_view text);
/// Takes a quoted text off a line, with the blanks before it. False: there is none.
bool TakeQuoted(std::string_view& line, std::string& text);

/// A line in a message: not more of it than helps to find it, and nothing that would not be shown.
std::string Shown(std::string_view line);

}  // namespace plasmos
