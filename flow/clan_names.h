// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#setting-up

#include <string>

namespace plasmos {

class SettingsStore;

/// "Player 3": what a clan is called that has no name of its own.
std::string DefaultClanName(int clan);

/// The name of a clan as it is saved, cut at LongestClanName characters; the default where none is saved, or
/// nothing but blanks.
std::string SavedClanName(const SettingsStore& settings, int clan);

/// Saves the name of a clan, cut likewise. A name that is the default one is not written; an earlier one
/// stays in the store. False: it could not be saved.
bool SaveClanName(SettingsStore& settings, int clan, const std::string& name);

}  // namespace plasmos
