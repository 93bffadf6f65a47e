// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/options.h"

#include <gmock/gmock.h>

#include "model/dice.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

SimOptions Parse(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "plasmos-sim");
    return ParseOptions(static_cast<int>(arguments.size()), arguments.data());
}

class OptionsTest : public GameTest {};

TEST_F(OptionsTest, HaveTheirDefaults) {
    const SimOptions options = Parse({});
    EXPECT_EQ(options.Games, 100);
    EXPECT_EQ(options.FirstReplay, 1);
    EXPECT_EQ(options.Clans, 0);
    EXPECT_EQ(options.Persons, 0);
    EXPECT_TRUE(options.Normal);
    EXPECT_FALSE(options.Victory);
    EXPECT_EQ(options.Rows, 5);
    EXPECT_EQ(options.Cols, 5);
    EXPECT_EQ(options.Blocks, "");
    EXPECT_GE(options.Jobs, 1);
    EXPECT_EQ(options.Format, ResultFormat::Table);
    EXPECT_EQ(options.Output, "");
}

TEST_F(OptionsTest, AreRead) {
    const SimOptions options =
        Parse({"--games",      "7",       "--replay",  "2.5",    "--clans", "6",        "--persons", "2",
               "--difficulty", "easy",    "--victory", "--rows", "4",       "--cols",   "9",         "--blocks",
               "7:12:",        "--robot", "99",        "--jobs", "3",       "--format", "json",      "--check"});
    EXPECT_EQ(options.Games, 7);
    EXPECT_EQ(options.FirstReplay, 2.5F);
    EXPECT_EQ(options.Clans, 6);
    EXPECT_EQ(options.Persons, 2);
    EXPECT_FALSE(options.Normal);
    EXPECT_TRUE(options.Victory);
    EXPECT_EQ(options.Rows, 4);
    EXPECT_EQ(options.Cols, 9);
    EXPECT_EQ(options.Blocks, "7:12:");
    EXPECT_EQ(options.Robot, 99U);
    EXPECT_EQ(options.Jobs, 3);
    EXPECT_EQ(options.Format, ResultFormat::Json);
    EXPECT_TRUE(options.Check);
}

TEST_F(OptionsTest, TheBenchPlaysItsFixedSetWithOneJob) {
    const SimOptions options = Parse({"--bench"});
    EXPECT_EQ(options.Games, 20000);
    EXPECT_EQ(options.Jobs, 1);
    EXPECT_EQ(Parse({"--bench", "--games", "50"}).Games, 50);
}

TEST_F(OptionsTest, TraceFilesAreKeptByOneJob) {
    EXPECT_EQ(Parse({"--data", "folder"}).Jobs, 1);
    EXPECT_EQ(Parse({"--data", "folder", "--jobs", "1"}).Jobs, 1);
}

TEST_F(OptionsTest, ReasonsGoIntoAJournal) {
    EXPECT_TRUE(Parse({"--journal", "j", "--why"}).Why);
    EXPECT_FALSE(Parse({"--journal", "j"}).Why);
}

TEST_F(OptionsTest, ReplayNumbersCountFromTheFirst) {
    const SimOptions options = Parse({"--replay", "0.5", "--games", "3"});
    EXPECT_EQ(ReplayOf(options, 0), 0.5F);
    EXPECT_EQ(ReplayOf(options, 2), 2.5F);
}

TEST_F(OptionsTest, MinusZeroIsAReplayNumberOfItsOwn) {
    const SimOptions options = Parse({"--replay", "-0", "--games", "3"});
    EXPECT_EQ(ReplayText(ReplayOf(options, 0)), "-0");
    EXPECT_EQ(ReplayText(ReplayOf(options, 1)), "1");
}

struct RefusedRow {
    std::string_view Name;
    std::vector<const char*> Arguments;
    std::string_view Says;
};

void PrintTo(const RefusedRow& row, std::ostream* out) {
    *out << row.Name;
}

class RefusedOptions : public GameRows<RefusedRow> {};

TEST_P(RefusedOptions, SayInOneLineWhatIsWrong) {
    try {
        Parse(GetParam().Arguments);
        FAIL() << "it was accepted";
    } catch (const UsageError& error) {
        EXPECT_THAT(error.what(), ::testing::HasSubstr(std::string(GetParam().Says)));
        EXPECT_THAT(error.what(), ::testing::Not(::testing::HasSubstr("\n")));
    }
}

const RefusedRow RefusedRows[] = {
    {"unknown_option", {"--gmes", "3"}, "--gmes"},
    {"argument_without_option", {"seven"}, "seven"},
    {"no_games", {"--games", "0"}, "1 to 16000000"},
    {"negative_games", {"--games", "-1"}, "1 to 16000000"},
    {"games_as_a_word", {"--games", "many"}, "many"},
    {"games_of_forty_digits", {"--games", "1234567890123456789012345678901234567890"}, "--games"},
    {"games_without_a_number", {"--games"}, "--games"},
    {"two_clans", {"--clans", "2"}, "3 to 6"},
    {"seven_clans", {"--clans", "7"}, "3 to 6"},
    {"three_persons", {"--persons", "3"}, "0 to 2"},
    {"hard_difficulty", {"--difficulty", "hard"}, "easy"},
    {"two_rows", {"--rows", "2"}, "3 to 9"},
    {"ten_columns", {"--cols", "10"}, "3 to 9"},
    {"forty_two_squares", {"--rows", "6", "--cols", "7"}, "at most 36 squares"},
    {"block_off_the_board", {"--blocks", "26:"}, "squares 1 to 25"},
    {"block_0", {"--blocks", "0:"}, "squares 1 to 25"},
    {"block_twice", {"--blocks", "7:7:"}, "each once"},
    {"blocks_as_words", {"--blocks", "a:b:"}, "7:12:"},
    {"nine_blocks", {"--blocks", "1:2:3:4:5:6:7:8:9:"}, "at most 8 blocks"},
    {"too_few_free_squares", {"--rows", "3", "--cols", "4", "--blocks", "1:"}, "12 squares must stay free"},
    {"replay_as_a_word", {"--replay", "x"}, "no decimal number"},
    {"replay_in_hexadecimal", {"--replay", "0x10"}, "no decimal number"},
    {"replay_infinite", {"--replay", "inf"}, "no decimal number"},
    {"replay_beyond_whole_singles", {"--replay", "16777216"}, "stay below 16777216"},
    {"replay_reaches_beyond", {"--replay", "16777200", "--games", "16"}, "stay below 16777216"},
    {"no_jobs", {"--jobs", "0"}, "1 to 256"},
    {"format_xml", {"--format", "xml"}, "--format: xml not in {table,csv,json} ("},
    {"format_by_number", {"--format", "1"}, "--format: 1 not in {table,csv,json} ("},
    {"progress_maybe", {"--progress", "maybe"}, "--progress: maybe not in {auto,always,never} ("},
    {"robot_negative", {"--robot", "-1"}, "--robot: Value -1 not in range 0 to 1000000000000000000 ("},
    {"robot_too_large", {"--robot", "18446744073709551616"}, "not in range 0 to 1000000000000000000 ("},
    {"robot_a_word", {"--robot", "x"}, "--robot: Value x not in range 0 to 1000000000000000000 ("},
    {"trace_files_with_two_jobs", {"--data", "d", "--jobs", "2"}, "one job only"},
    {"bench_with_two_jobs", {"--bench", "--jobs", "2"}, "one job only"},
    {"bench_with_clans", {"--bench", "--clans", "3"}, "--bench plays a fixed set"},
    {"empty_output", {"--output", ""}, "--output"},
    {"empty_journal", {"--journal", ""}, "--journal"},
    {"why_without_a_journal", {"--why"}, "--why: the reasons stand in the journal; only with --journal FILE"},
    {"why_with_bench", {"--bench", "--why", "--journal", "j"}, "--bench plays a fixed set"},
    {"empty_data_folder", {"--data", ""}, "--data"},
};

INSTANTIATE_TEST_SUITE_P(Options, RefusedOptions, ::testing::ValuesIn(RefusedRows), RowName());

}  // namespace
}  // namespace plasmos::testing
