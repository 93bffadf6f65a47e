// SPDX-License-Identifier: GPL-3.0-or-later
#include "flow/clan_names.h"

#include "files/encoding.h"
#include "files/settings_store.h"
#include "files/strings.h"
#include "model/game_state.h"

namespace plasmos {

namespace {

constexpr std::string_view Section = "players";

std::string KeyOf(int clan) {
    return Concat("name", clan);
}

}  // namespace

std::string DefaultClanName(int clan) {
    return Concat("Player ", clan);
}

std::string SavedClanName(const SettingsStore& settings, int clan) {
    const auto name = FirstCharacters(settings.Get(Section, KeyOf(clan), {}), LongestClanName);
    return Trim(name).empty() ? DefaultClanName(clan) : name;
}

bool SaveClanName(SettingsStore& settings, int clan, const std::string& name) {
    const std::string cut = FirstCharacters(name, LongestClanName);
    return cut == DefaultClanName(clan) || settings.Save(Section, KeyOf(clan), cut);
}

}  // namespace plasmos
