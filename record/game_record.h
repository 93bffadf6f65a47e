// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/dealt_names.h"
#include "model/rules_version.h"
#include "record/input_list.h"

namespace plasmos {

/// What a game needs to be played again, beside its inputs: everything that was chosen, rolled or dealt before the
/// first turn and does not follow from the replay number.
struct RecordHead {
    /// How it came to the number of clans.
    enum class ClansAre { Given, Rolled, Asked };

    int Rules = RulesVersion;
    float ReplayNo = 0;
    int Rows = 5;
    int Cols = 5;
    std::vector<int> Blocks;  ///< ascending
    int Persons = 0;          ///< 0: computer clans only; 1: clan 3 is a person's; 2: clan 2, too
    bool Normal = true;       ///< the marks as the game began
    bool Victory = false;
    bool Fast = false;
    int Clans = 0;
    ClansAre How = ClansAre::Given;
    DealtNames Names;

    friend bool operator==(const RecordHead&, const RecordHead&) = default;
};

/// A game: how it began, and all that came from its persons.
struct GameRecord {
    RecordHead Head;
    InputList Inputs;
};

/// What is wrong with a record.
struct RecordFault {
    int Line = 0;      ///< of the file, from 1; 0: of none alone
    std::string Text;  ///< what is wrong and what was expected; empty: nothing

    /// "line 12: ..."
    std::string Told() const;
};

/// A record as it was read: all of it, or as far as it is sound.
struct ReadRecord {
    GameRecord Record;
    std::vector<int> Lines;  ///< of the inputs, in the file
    bool HasHead = false;    ///< without one there is no game to open
    bool CutOff = false;     ///< its last line has no end, and that is all that is wrong with it
    bool Counted = false;    ///< its end has been taken into the person's results before, and the game taken back since
    RecordFault Fault;
};

/// The marks, board and replay number of the current game as it begins; clans and names come with NoteDealt().
RecordHead HeadOfBeginning();
/// What has been dealt since. False: it is not known yet.
bool NoteDealt(RecordHead& head);
/// Makes the current game begin as the head tells, as soon as NewGame() is called; `names` are to live as long as it
/// is played.
void BeginAs(const RecordHead& head);

// ---- the text of a record: UTF-8, one line for each thing; docs/records.md describes it ----

std::string HeadText(const RecordHead& head);
/// An input as a line, or two where it was refused.
std::string InputText(const Input& input);
std::string RecordText(const GameRecord& record);
/// Tells in the record of a kept game that it counts in no results any more.
inline constexpr std::string_view CountedLine = "counted\n";
/// Reads a record. Lines may end with CR LF; blank ones and those that begin with "#" count for nothing.
ReadRecord ParseRecord(std::string_view text);

}  // namespace plasmos
