// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#setting-up

#include <string_view>

namespace plasmos {

/// Names every piece of every clan in play by die, no name twice in a clan; a game that is played again, by
/// as many clans, has the names that were dealt then. The names come from the
/// names file, which is written with its 70 default names when it is missing; a game without files
/// uses the defaults. A file with fewer names for a clan than it has pieces raises error 5.
void LoadAmoebaNames();

/// Writes the names file with its defaults.
void WriteDefaultNames();

/// One line of the names file: clan 1..6 and the name; clan 0: the line names nobody.
struct NameLine {
    int Clan = 0;
    std::string_view Name;
};
NameLine ParseNameLine(std::string_view line);

}  // namespace plasmos
