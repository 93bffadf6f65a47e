// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace plasmos {

class SettingsStore;
struct GameState;

/// What one person has reached so far in games of one number of clans.
struct PersonRecord {
    int Games = 0;
    int Wins = 0;
    int Best = 0;  ///< the best score; 0 before the first game
};

/// The record of games with so many clans (3..6), kept in the settings under "results" ("games4", "wins4", "best4").
/// What is missing or damaged counts as 0.
PersonRecord LoadRecord(const SettingsStore& store, int clans);
/// Forgets the records of every number of clans. False: they could not be saved.
bool ClearRecords(SettingsStore& store);
/// Takes a game that is over into the record, if exactly one person played in it. False: it could not be saved.
bool NoteGame(SettingsStore& store, const GameState& over);

/// Who won by how much over whom: "Otto wins with 33 points, 4 more than Ida."
std::string TellResult(const GameState& over);
/// "1. Otto 33   2. Ida 29"
std::string TellPlaces(const GameState& over);
/// "You have played 3 games with 4 clans and won 1 of them; your best score is 31."
std::string TellRecord(const PersonRecord& record, int clans);

}  // namespace plasmos
