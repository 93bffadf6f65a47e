// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace plasmos {

/// The per-user settings of the application "Plasmos". Keys live in sections: "board" (left, top,
/// width, height, rows, cols, blockno, blocks), "players" (name1 to name6), "play" and "look" (what the menus keep) and
/// "results" (the record of the person's games).
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// The saved text, or the default when nothing is saved.
    virtual std::string Get(std::string_view section, std::string_view key, std::string_view fallback) const = 0;
    /// Saves a text. False: it could not be saved, and nothing has changed.
    virtual bool Save(std::string_view section, std::string_view key, std::string_view value) = 0;
    /// Where the settings lie, for messages.
    virtual std::string Where() const = 0;
};

/// Settings in memory, for tests and simulated games.
class MemorySettings : public SettingsStore {
public:
    std::string Get(std::string_view section, std::string_view key, std::string_view fallback) const override;
    bool Save(std::string_view section, std::string_view key, std::string_view value) override;
    std::string Where() const override { return "memory"; }

    std::map<std::pair<std::string, std::string>, std::string> Values;
};

/// A saved whole number; the fallback when it is missing, no whole number, or outside the bounds.
int GetNumber(const SettingsStore& store, std::string_view section, std::string_view key, int fallback, int least,
              int most);

}  // namespace plasmos
