// SPDX-License-Identifier: GPL-3.0-or-later
// The program plasmos-sim from outside: bytes, exit codes, outputs that fail, interrupts.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "files/text.h"
#include "tests/sim/command_line.h"

namespace plasmos::testing {
namespace {

TEST_F(CommandLineTest, OneTwoAndEightJobsGiveTheSameBytes) {
    for (const std::string format : {"table", "csv", "json"}) {
        const auto run = [&](int jobs) {
            return Shell(Concat("$SIM --games 40 --persons 1 --format ", format, " --journal j", jobs, " --jobs ", jobs,
                                " 2>/dev/null"))
                .Text;
        };
        const auto one = run(1);
        EXPECT_FALSE(one.empty());
        EXPECT_EQ(run(2), one);
        EXPECT_EQ(run(8), one);
        EXPECT_EQ(Read("j1"), Read("j2"));
        EXPECT_EQ(Read("j1"), Read("j8"));
    }
}

TEST_F(CommandLineTest, EveryFormatTellsEveryGame) {
    const auto csv = Shell("$SIM --games 5 --format csv 2>/dev/null").Text;
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 6);
    EXPECT_THAT(csv, ::testing::StartsWith("replay,clans,turns,winner,personality1,score1,amoebas1,genes1,bp1,"));
    std::istringstream lines(Shell("$SIM --games 5 --replay 2.5 --format json 2>/dev/null").Text);
    int games = 0;
    for (std::string line; std::getline(lines, line); ++games) {
        const auto record = nlohmann::json::parse(line);
        EXPECT_EQ(record["replay"], 2.5 + games);
        EXPECT_EQ(record["players"].size(), record["clans"].get<std::size_t>());
        const int winner = record["winner"];
        for (const auto& player : record["players"]) {
            EXPECT_GE(record["players"][static_cast<std::size_t>(winner - 1)]["score"], player["score"]);
        }
    }
    EXPECT_EQ(games, 5);
}

TEST_F(CommandLineTest, MinusZeroIsANumberOfItsOwnInEveryFile) {
    for (const std::string zero : {"-0", "0"}) {
        const auto run = Concat("$SIM --games 2 --replay=", zero, " --clans 3 2>/dev/null");
        EXPECT_THAT(Shell(run + " --format csv --journal all").Text, ::testing::HasSubstr("\n" + zero + ",3,"));
        EXPECT_THAT(Read("all"), ::testing::StartsWith(R"({"t":"game","replay":)" + zero + ","));
        EXPECT_THAT(Shell(run + " --format json").Text,
                    ::testing::StartsWith(R"({"replay":)" + zero + R"(,"clans":3,)"));
        EXPECT_EQ(Shell(Concat("$SIM --games 1 --replay ", zero, " --data data >/dev/null 2>&1")).ExitCode, 0);
        EXPECT_THAT(Read("data/movefil.txt"), ::testing::HasSubstr("Game: " + zero + " "));
    }
    EXPECT_NE(Shell("$SIM --games 1 --replay -0 2>/dev/null").Text,
              Shell("$SIM --games 1 --replay 0 2>/dev/null").Text);
}

TEST_F(CommandLineTest, TheTableCountsEverySeat) {
    const auto table = Shell("$SIM --games 50 --clans 4 2>/dev/null").Text;
    EXPECT_THAT(table, ::testing::StartsWith("games: 50\n"));
    EXPECT_THAT(table, ::testing::HasSubstr("Eccentric"));
    EXPECT_THAT(table, ::testing::HasSubstr("place 4              50"));
}

TEST_F(CommandLineTest, TheBenchPrintsOneLine) {
    const auto ran = Shell("$SIM --bench --games 20");
    EXPECT_EQ(ran.ExitCode, 0);
    EXPECT_THAT(ran.Text, ::testing::MatchesRegex("games=20 decisions=[0-9]+ seconds=[0-9.]+ games_per_second=[0-9]+ "
                                                  "signature=[0-9a-f]+\n"));
}

TEST_F(CommandLineTest, AnOutputTakesItsNameWhenItIsWhole) {
    EXPECT_EQ(Shell("$SIM --games 5 --format csv --output out.csv --journal all.jsonl 2>/dev/null").ExitCode, 0);
    EXPECT_THAT(Names(), ::testing::UnorderedElementsAre("out.csv", "all.jsonl"));
    EXPECT_THAT(Read("all.jsonl"), ::testing::StartsWith("{\"t\":\"game\",\"replay\":1,"));
}

TEST_F(CommandLineTest, TraceFilesAreKeptInTheDataFolder) {
    EXPECT_EQ(Shell("$SIM --games 2 --data here/there 2>/dev/null >/dev/null").ExitCode, 0);
    EXPECT_TRUE(fs::exists(folder_ / "here/there/movefil.txt"));
    EXPECT_TRUE(fs::exists(folder_ / "here/there/zynames.txt"));
    EXPECT_THAT(Read("here/there/movefil.txt"), ::testing::HasSubstr("Game: 2 "));
}

TEST_F(CommandLineTest, WithoutADataFolderNoFileIsTouched) {
    EXPECT_EQ(Shell("HOME=. XDG_DATA_HOME= $SIM --games 2 2>/dev/null >/dev/null").ExitCode, 0);
    EXPECT_THAT(Names(), ::testing::IsEmpty());
}

struct RefusedRow {
    std::string_view Name;
    std::string Command;
    std::string Says;
};

void PrintTo(const RefusedRow& row, std::ostream* out) {
    *out << row.Name;
}

class RefusedCommands : public CommandLineTest, public ::testing::WithParamInterface<RefusedRow> {};

TEST_P(RefusedCommands, OneLineAndExitCode2AndNothingHalfWritten) {
    const auto ran = Shell("echo old > kept.csv; mkdir taken; " + GetParam().Command);
    EXPECT_EQ(ran.ExitCode, 2);
    EXPECT_EQ(std::count(ran.Text.begin(), ran.Text.end(), '\n'), 1) << ran.Text;
    EXPECT_THAT(ran.Text, ::testing::HasSubstr(GetParam().Says));
    EXPECT_EQ(Read("kept.csv"), "old\n");
    EXPECT_THAT(Names(), ::testing::UnorderedElementsAre("kept.csv", "taken"));
}

const RefusedRow RefusedRows[] = {
    {"bad_option", "$SIM --frobnicate 2>&1 >/dev/null", "--frobnicate"},
    {"output_in_a_folder_that_is_missing", "$SIM --output no/out.csv 2>&1 >/dev/null", "no/out.csv cannot be written"},
    {"output_is_a_folder", "$SIM --output taken 2>&1 >/dev/null", "taken cannot be written"},
    {"journal_in_a_folder_that_is_missing", "$SIM --output kept.csv --journal no/j 2>&1 >/dev/null",
     "no/j cannot be written"},
    {"journal_on_a_full_disk", "$SIM --output kept.csv --journal /dev/full 2>&1 >/dev/null",
     "/dev/full cannot be written: No space"},
    {"results_on_a_full_disk", "$SIM --format csv --games 3000 --output /dev/full 2>&1 >/dev/null",
     "/dev/full cannot be written: No space"},
    {"standard_output_full", "$SIM --games 3 2>&1 >/dev/full", "standard output cannot be written"},
    {"closed_pipe",
     "( $SIM --games 20000 --clans 3 --format json 2>err.txt; echo $? > code ) | true; cat err.txt; "
     "read code < code; rm err.txt code; exit $code",
     "standard output cannot be written: Broken pipe"},
    {"data_folder_is_a_file", "$SIM --data kept.csv 2>&1 >/dev/null", "kept.csv"},
};

INSTANTIATE_TEST_SUITE_P(Commands, RefusedCommands, ::testing::ValuesIn(RefusedRows),
                         [](const auto& row) { return std::string(row.param.Name); });

}  // namespace
}  // namespace plasmos::testing
