// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "tests/sim/command_line.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

using ::testing::HasSubstr;

class SimulatorRecords : public CommandLineTest {};

struct RunRow {
    std::string_view Name;
    std::string_view Options;
};

void PrintTo(const RunRow& row, std::ostream* out) {
    *out << row.Name;
}

class RecordsOfRuns : public CommandLineTest, public ::testing::WithParamInterface<RunRow> {};

TEST_P(RecordsOfRuns, AreTheirJournal) {
    const auto& options = GetParam().Options;
    EXPECT_EQ(Shell(Concat("$SIM --games 20 ", options, " --records new/records --journal all 2>/dev/null")).ExitCode,
              0);
    EXPECT_EQ(Shell(Concat("$SIM --games 20 ", options, " --journal alone 2>/dev/null")).ExitCode, 0);
    EXPECT_EQ(Shell("for i in $(seq 1 20); do $SIM --record new/records/$i.plasmos --check --journal one >/dev/null && "
                    "cat one >>again; done")
                  .ExitCode,
              0);
    EXPECT_FALSE(Read("all").empty());
    EXPECT_TRUE(Read("alone") == Read("all")) << "writing records changes nothing";
    EXPECT_TRUE(Read("again") == Read("all"));
}

const RunRow RunRows[] = {
    {"computer_clans", ""},
    {"one_person", "--persons 1"},
    {"two_persons_easy_victory", "--persons 2 --clans 5 --difficulty easy --victory --robot 77"},
    {"a_board_with_blocks", "--persons 1 --rows 6 --cols 6 --blocks 7:12: --robot 9"},
    {"several_at_a_time", "--persons 2 --clans 6 --rows 3 --cols 4 --jobs 3"},
};
INSTANTIATE_TEST_SUITE_P(Sim, RecordsOfRuns, ::testing::ValuesIn(RunRows), RowName());

TEST_F(SimulatorRecords, OverwriteNothing) {
    EXPECT_EQ(Shell("mkdir r; echo kept >r/7.plasmos; $SIM --games 20 --records r 2>/dev/null").ExitCode, 2);
    EXPECT_EQ(Shell("ls r; cat r/7.plasmos").Text, "7.plasmos\nkept\n");
    EXPECT_THAT(Shell("$SIM --games 20 --records r 2>&1").Text, HasSubstr("r/7.plasmos is there already"));
}

TEST_F(SimulatorRecords, EndWhereTheirInputsEnd) {
    Shell("$SIM --games 1 --persons 1 --records r --journal whole 2>/dev/null");
    EXPECT_EQ(Shell("head -30 r/1.plasmos >cut.plasmos; $SIM --record cut.plasmos --journal part >/dev/null").ExitCode,
              0);
    const auto part = Read("part");
    EXPECT_LT(part.size(), Read("whole").size());
    EXPECT_GT(part.size(), 1000U);
    EXPECT_EQ(Read("whole").substr(0, part.size()), part);
}

struct RefusedRow {
    std::string_view Name;
    std::string_view Command;  ///< a record of a game lies in r/1.plasmos
    std::string_view Text;
};

void PrintTo(const RefusedRow& row, std::ostream* out) {
    *out << row.Name;
}

class RefusedRecord : public CommandLineTest, public ::testing::WithParamInterface<RefusedRow> {};

TEST_P(RefusedRecord, SaysWhyInOneLineAndWritesNothing) {
    Shell("$SIM --games 1 --persons 1 --records r 2>/dev/null");
    const auto ran = Shell(Concat(GetParam().Command, " 2>&1"));
    EXPECT_EQ(ran.ExitCode, 2) << ran.Text;
    EXPECT_THAT(ran.Text, HasSubstr(std::string(GetParam().Text)));
    EXPECT_EQ(std::count(ran.Text.begin(), ran.Text.end(), '\n'), 1) << ran.Text;
    EXPECT_EQ(Shell("ls out journal 2>/dev/null").Text, "");
}

const RefusedRow RefusedRows[] = {
    {"missing", "$SIM --record none --output out --journal journal", "--record: none cannot be opened: No such file"},
    {"a_folder", "$SIM --record r", "r cannot be opened: Is a directory"},
    {"a_device", "$SIM --record /dev/zero", "a pipe or a device is in its place"},
    {"too_large", "truncate -s 1G large; $SIM --record large", "larger than 4 MB"},
    {"cut_off", "head -c 3000 r/1.plasmos >c; $SIM --record c --output out --journal journal",
     "the record is cut off in the middle of"},
    {"edited", "sed '30d' r/1.plasmos >e; $SIM --record e --output out --journal journal", "--record: e, line "},
    {"of_other_rules", "sed 's/^rules .*/rules 99/' r/1.plasmos >o; $SIM --record o",
     "o, line 2: the game was played by"},
    {"an_answer_that_is_refused", "sed '0,/square/s/square .*/square 99/' r/1.plasmos >s; $SIM --record s",
     "\"square 99\" is refused here; allowed: square "},
    {"with_a_replay_number", "$SIM --record r/1.plasmos --replay 3", "--replay: --record takes everything"},
    {"with_games", "$SIM --record r/1.plasmos --games 3", "--games: --record takes everything"},
    {"with_records", "$SIM --record r/1.plasmos --records x", "--records: --record takes everything"},
    {"without_a_name", "$SIM --record ''", "--record: the name of a file is needed"},
    {"records_without_a_name", "$SIM --records ''", "--records: the name of a folder is needed"},
    {"records_in_a_file", "$SIM --records r/1.plasmos", "--records: the folder r/1.plasmos cannot be made"},
    {"records_of_the_bench", "$SIM --bench --records x", "--records: --bench plays a fixed set"},
};
INSTANTIATE_TEST_SUITE_P(Sim, RefusedRecord, ::testing::ValuesIn(RefusedRows), RowName());

}  // namespace
}  // namespace plasmos::testing
