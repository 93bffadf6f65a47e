// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace plasmos {

enum class ResultFormat { Table, Csv, Json };
enum class ProgressMode { Auto, Always, Never };

/// What the simulator is told on its command line.
struct SimOptions {
    std::int64_t Games = 100;
    float FirstReplay = 1;
    int Clans = 0;  ///< 0: rolled, or chosen by the robot
    int Persons = 0;
    bool Normal = true;
    bool Victory = false;
    int Rows = 5;
    int Cols = 5;
    std::string Blocks;
    std::uint64_t Robot = 1;
    int Jobs = 1;
    ResultFormat Format = ResultFormat::Table;
    std::string Output;              ///< empty: standard output
    std::string Journal;             ///< empty: none
    bool Why = false;                ///< the journal tells why computer clans do what they do
    std::string Data;                ///< empty: no files
    std::string Records;             ///< the folder for the games' records; empty: none are written
    std::string Record;              ///< the one record that is played; empty: games are
    std::vector<std::string> Merge;  ///< results that are added up; empty: games are played
    bool Bench = false;
    bool Check = false;
    ProgressMode Progress = ProgressMode::Auto;
};

/// A command line that cannot be carried out: one line that says what is wrong and what is allowed.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Help or the version was asked for; the text is for standard output.
struct HelpWanted {
    std::string Text;
};

/// Reads a command line. Throws UsageError or HelpWanted.
SimOptions ParseOptions(int argc, const char* const* argv);

/// What the games of a run are played with, in words: runs of the same words may be added up.
std::string SettingsText(const SimOptions& options);

/// The replay number of a game, 0-based.
float ReplayOf(const SimOptions& options, std::int64_t index);

}  // namespace plasmos
