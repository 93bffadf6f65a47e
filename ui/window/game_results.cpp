// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/game_results.h"

#include <algorithm>

#include "files/settings_store.h"
#include "files/text.h"
#include "model/game_state.h"

namespace plasmos {

namespace {

constexpr std::string_view Section = "results";
constexpr int Most = 1000000;

/// The only person of a game; 0: there is none, or more than one.
int OnlyPerson(const GameState& over) {
    int person = 0;
    for (int clan = 1; clan <= over.NumPlayers; ++clan) {
        if (!over.Players[clan].IsComputer) {
            person = person == 0 ? clan : -1;
        }
    }
    return std::max(person, 0);
}

bool SaveRecord(SettingsStore& store, const PersonRecord& record, int clans) {
    return store.Save(Section, Concat("games", clans), Concat(record.Games)) &&
           store.Save(Section, Concat("wins", clans), Concat(record.Wins)) &&
           store.Save(Section, Concat("best", clans), Concat(record.Best));
}

std::string Named(const GameState& over, int place) {
    return std::string(over.Players[ClanAtPlace(over, place)].Name.View());
}

int ScoreAt(const GameState& over, int place) {
    return over.Players[ClanAtPlace(over, place)].Score;
}

std::string Counted(int count, std::string_view thing) {
    return Concat(count, " ", thing, count == 1 ? "" : "s");
}

}  // namespace

PersonRecord LoadRecord(const SettingsStore& store, int clans) {
    const auto number = [&](std::string_view what) {
        return GetNumber(store, Section, Concat(what, clans), 0, 0, Most);
    };
    return {number("games"), number("wins"), number("best")};
}

bool ClearRecords(SettingsStore& store) {
    bool saved = true;
    for (int clans = MinClans; clans <= MaxClans; ++clans) {
        saved = SaveRecord(store, {}, clans) && saved;
    }
    return saved;
}

bool NoteGame(SettingsStore& store, const GameState& over) {
    const int person = OnlyPerson(over);
    if (person == 0) {
        return true;
    }
    PersonRecord record = LoadRecord(store, over.NumPlayers);
    record.Games = std::min(record.Games + 1, Most);
    record.Wins = std::min(record.Wins + (ClanAtPlace(over, 1) == person ? 1 : 0), Most);
    record.Best = std::max(record.Best, over.Players[person].Score);
    return SaveRecord(store, record, over.NumPlayers);
}

// Two clans can have the same score: the place in the order of play decides then.
std::string TellResult(const GameState& over) {
    const int ahead = ScoreAt(over, 1) - ScoreAt(over, 2);
    return Concat(Named(over, 1), " wins with ", Counted(ScoreAt(over, 1), "point"), ", ",
                  ahead > 0 ? Concat(ahead, " more than ") : "before ", Named(over, 2), ".");
}

std::string TellPlaces(const GameState& over) {
    std::string text;
    for (int place = 1; place <= over.NumPlayers; ++place) {
        text += Concat(place > 1 ? "   " : "", place, ". ", Named(over, place), " ", ScoreAt(over, place));
    }
    return text;
}

std::string TellRecord(const PersonRecord& record, int clans) {
    return Concat("You have played ", Counted(record.Games, "game"), " with ", clans, " clans and won ", record.Wins,
                  record.Games == 1 ? "" : " of them", "; your best score is ", record.Best, ".");
}

}  // namespace plasmos
