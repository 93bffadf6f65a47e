// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <thread>

#include "files/version.h"
#include "model/board_size.h"
#include "model/dice.h"
#include "model/rules_version.h"

namespace plasmos {

namespace {

constexpr std::int64_t MostGames = 16000000;
constexpr std::int64_t BenchGames = 20000;
constexpr int MostJobs = 256;
constexpr int MostMerged = 10000;
constexpr std::int64_t LargestSeed = 1000000000000000000;
/// From here on singles skip whole numbers, and games would be played twice.
constexpr double ReplayBound = 16777216;

std::string OneLine(std::string text) {
    std::replace(text.begin(), text.end(), '\n', ' ');
    while (!text.empty() && text.back() == ' ') {
        text.pop_back();
    }
    return text;
}

void CheckBoard(const SimOptions& options) {
    BoardSize board{options.Rows, options.Cols, ParseBlocks(options.Blocks, options.Rows * options.Cols)};
    const auto given = std::count(options.Blocks.begin(), options.Blocks.end(), ':') +
                       (options.Blocks.empty() || options.Blocks.back() == ':' ? 0 : 1);
    if (static_cast<std::size_t>(given) != board.Blocks.size()) {
        throw UsageError(Concat("--blocks: \"", options.Blocks, "\" is no list of squares 1 to ",
                                options.Rows * options.Cols, ", each once and followed by \":\", such as 7:12:"));
    }
    if (const auto fault = BoardFault(board); !fault.empty()) {
        throw UsageError(Concat("--rows, --cols, --blocks: ", fault));
    }
}

void CheckReplay(const SimOptions& options) {
    const double first = options.FirstReplay;
    const auto games = static_cast<double>(options.Games);
    if (first + games >= ReplayBound || first <= -ReplayBound) {
        throw UsageError(Concat("--replay: the first replay number plus the number of games must stay below 16777216, ",
                                "and the first above -16777216"));
    }
}

void CheckJobs(SimOptions& options, bool jobsGiven) {
    const bool single = !options.Data.empty() || options.Bench;
    if (jobsGiven && single && options.Jobs != 1) {
        throw UsageError(
            Concat("--jobs: ", options.Bench ? "--bench" : "--data", " allows one job only, not ", options.Jobs));
    }
    if (!jobsGiven) {
        const auto cores = static_cast<int>(std::thread::hardware_concurrency());
        options.Jobs = single ? 1 : std::clamp(cores, 1, MostJobs);
    }
}

void CheckBench(const CLI::App& app) {
    if (app.count("--bench") == 0) {
        return;
    }
    for (const char* other :
         {"--replay", "--clans", "--persons", "--difficulty", "--victory", "--rows", "--cols", "--blocks", "--robot",
          "--format", "--output", "--journal", "--why", "--data", "--records", "--check"}) {
        if (app.count(other) != 0) {
            throw UsageError(Concat(other, ": --bench plays a fixed set of games; only --games goes with it"));
        }
    }
}

/// A record tells everything of its game.
void CheckRecord(const CLI::App& app) {
    if (app.count("--record") == 0) {
        return;
    }
    for (const char* other : {"--games", "--replay", "--clans", "--persons", "--difficulty", "--victory", "--rows",
                              "--cols", "--blocks", "--robot", "--jobs", "--bench", "--records"}) {
        if (app.count(other) != 0) {
            throw UsageError(Concat(other, ": --record takes everything of the game from its file; only --format, ",
                                    "--output, --journal, --why, --data, --check and --progress go with it"));
        }
    }
}

/// Results tell all of their games.
void CheckMerge(const CLI::App& app) {
    if (app.count("--merge") == 0) {
        return;
    }
    for (const CLI::Option* other : app.get_options()) {
        const auto name = other->get_name();
        if (other->count() != 0 && name != "--merge" && name != "--format" && name != "--output") {
            throw UsageError(Concat(name, ": --merge plays no games; only --format and --output go with it"));
        }
    }
}

/// What is typed in words and read afterwards.
struct TypedWords {
    std::string Replay = "1";
    std::string Difficulty = "normal";
    std::string Format = "table";
    std::string Progress = "auto";
};

void AddGameOptions(CLI::App& app, SimOptions& options, TypedWords& words) {
    app.add_option("--games", options.Games, "number of games (default 100)")
        ->check(CLI::Range(std::int64_t{1}, MostGames));
    app.add_option("--replay", words.Replay, "replay number of the first game (default 1)");
    app.add_option("--clans", options.Clans, "number of clans, 3 to 6 (default: rolled)")
        ->check(CLI::Range(MinClans, MaxClans));
    app.add_option("--persons", options.Persons, "seats of the robot person: none, clan 3, or clans 3 and 2")
        ->check(CLI::Range(0, 2));
    app.add_option("--difficulty", words.Difficulty, "easy or normal (default normal)")
        ->check(CLI::IsMember({"easy", "normal"}));
    app.add_flag("--victory", options.Victory, "a game ends when a clan reaches 42 points");
    app.add_option("--rows", options.Rows, "rows of the board, 3 to 9 (default 5)")
        ->check(CLI::Range(MinSide, MaxSide));
    app.add_option("--cols", options.Cols, "columns of the board, 3 to 9 (default 5)")
        ->check(CLI::Range(MinSide, MaxSide));
    app.add_option("--blocks", options.Blocks, "blocked squares, such as 7:12:");
    app.add_option("--robot", options.Robot, "seed of the robot person (default 1)")
        ->check(CLI::Range(std::int64_t{0}, LargestSeed));
}

void AddRunOptions(CLI::App& app, SimOptions& options, TypedWords& words) {
    app.add_option("--jobs", options.Jobs, "games at a time (default: the number of cores)")
        ->check(CLI::Range(1, MostJobs));
    app.add_option("--format", words.Format, "table, csv or json (default table)")
        ->check(CLI::IsMember({"table", "csv", "json"}));
    app.add_option("--output", options.Output, "file for the results (default: standard output)");
    app.add_option("--journal", options.Journal, "file for the journal of all games, JSON Lines");
    app.add_flag("--why", options.Why, "the journal tells why computer clans do what they do (with --journal only)");
    app.add_option("--data", options.Data, "data folder to keep trace files in (one job only)");
    app.add_option("--records", options.Records, "folder for the record of every game, REPLAY.plasmos");
    app.add_option("--record", options.Record, "plays this one record instead of games");
    app.add_option("--merge", options.Merge, "adds up these json results of runs with the same settings")
        ->expected(1, MostMerged);
    app.add_flag("--bench", options.Bench, "plays the fixed signature set and prints one line");
    app.add_flag("--check", options.Check, "looks through the whole state after every step");
    app.add_option("--progress", words.Progress, "auto, always or never (default auto)")
        ->check(CLI::IsMember({"auto", "always", "never"}));
}

void ReadCommandLine(CLI::App& app, int argc, const char* const* argv) {
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        throw HelpWanted{app.help()};
    } catch (const CLI::CallForVersion&) {
        throw HelpWanted{app.version() + "\n"};
    } catch (const CLI::ParseError& error) {
        throw UsageError(OneLine(error.what()) + " (plasmos-sim --help tells what is allowed)");
    }
}

bool IsFolder(std::string_view name) {
    return name == "--data" || name == "--records";
}

void CheckNames(const CLI::App& app) {
    for (const char* name : {"--output", "--journal", "--data", "--records", "--record"}) {
        if (app.count(name) != 0 && app.get_option(name)->as<std::string>().empty()) {
            throw UsageError(
                Concat(name, ": the name of a ", IsFolder(name) ? "folder" : "file", " is needed, not an empty text"));
        }
    }
}

void CheckWhy(const SimOptions& options) {
    if (options.Why && options.Journal.empty()) {
        throw UsageError("--why: the reasons stand in the journal; only with --journal FILE are there any");
    }
}

void ReadWords(const TypedWords& words, SimOptions& options) {
    static const std::map<std::string, ResultFormat> formats{
        {"table", ResultFormat::Table}, {"csv", ResultFormat::Csv}, {"json", ResultFormat::Json}};
    static const std::map<std::string, ProgressMode> modes{
        {"auto", ProgressMode::Auto}, {"always", ProgressMode::Always}, {"never", ProgressMode::Never}};
    if (!ParseReplayNumber(words.Replay, options.FirstReplay)) {
        throw UsageError(Concat("--replay: \"", words.Replay, "\" is no decimal number that a single holds"));
    }
    options.Normal = words.Difficulty == "normal";
    options.Format = formats.at(words.Format);
    options.Progress = modes.at(words.Progress);
}

}  // namespace

SimOptions ParseOptions(int argc, const char* const* argv) {
    SimOptions options;
    TypedWords words;
    CLI::App app("Plays games of Plasmos without a window.", "plasmos-sim");
    app.set_version_flag("--version", Concat("plasmos-sim ", ProgramVersion, " (rules ", RulesVersion, ")"),
                         "Print the versions of the program and of the rules and exit");
    AddGameOptions(app, options, words);
    AddRunOptions(app, options, words);
    ReadCommandLine(app, argc, argv);
    CheckNames(app);
    CheckWhy(options);
    ReadWords(words, options);
    if (options.Bench && app.count("--games") == 0) {
        options.Games = BenchGames;
    }
    CheckRecord(app);
    CheckBench(app);
    CheckMerge(app);
    if (!options.Record.empty()) {
        options.Games = 1;
    }
    CheckBoard(options);
    CheckReplay(options);
    CheckJobs(options, app.count("--jobs") != 0);
    return options;
}

std::string SettingsText(const SimOptions& options) {
    if (!options.Record.empty()) {
        return "the record of one game";
    }
    const auto clans =
        options.Clans != 0 ? Concat(options.Clans) : std::string(options.Persons > 0 ? "asked" : "rolled");
    const auto robot = options.Persons > 0 ? Concat(", robot ", options.Robot) : std::string();
    const auto blocks = options.Blocks.empty() ? std::string() : Concat(" without ", options.Blocks);
    return Concat("clans ", clans, ", persons ", options.Persons, robot, ", ", options.Normal ? "normal" : "easy",
                  options.Victory ? ", victory at 42" : "", ", board ", options.Rows, " x ", options.Cols, blocks);
}

float ReplayOf(const SimOptions& options, std::int64_t index) {
    // Minus zero plus nothing would be zero, which is another game.
    return index == 0 ? options.FirstReplay
                      : static_cast<float>(static_cast<double>(options.FirstReplay) + static_cast<double>(index));
}

}  // namespace plasmos
