// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/settings_store.h"

#include <charconv>

#include "files/strings.h"

namespace plasmos {

std::string MemorySettings::Get(std::string_view section, std::string_view key, std::string_view fallback) const {
    const auto found = Values.find({std::string(section), std::string(key)});
    return found == Values.end() ? std::string(fallback) : found->second;
}

bool MemorySettings::Save(std::string_view section, std::string_view key, std::string_view value) {
    Values[{std::string(section), std::string(key)}] = value;
    return true;
}

int GetNumber(const SettingsStore& store, std::string_view section, std::string_view key, int fallback, int least,
              int most) {
    const std::string saved = store.Get(section, key, {});
    const auto text = Trim(saved);
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc{} && end == text.data() + text.size();
    return whole && number >= least && number <= most ? number : fallback;
}

}  // namespace plasmos
