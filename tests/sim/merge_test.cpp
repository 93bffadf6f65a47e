// SPDX-License-Identifier: GPL-3.0-or-later
//
// Results of several runs added up as if they were one.
#include <gmock/gmock.h>

#include "tests/sim/command_line.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

using ::testing::HasSubstr;

class Merged : public CommandLineTest {};

class MergedAs : public CommandLineTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(MergedAs, OneRunWouldHavePrintedThem) {
    const auto options = "--persons 1 --clans 4 --victory --rows 6 --cols 6 --blocks 7:12:";
    EXPECT_EQ(
        Shell(Concat("$SIM --games 60 ", options, " --format ", GetParam(), " --output whole 2>/dev/null")).ExitCode,
        0);
    EXPECT_EQ(Shell(Concat("for i in 0 1 2; do $SIM --games 20 --replay $((1 + 20 * i)) ", options,
                           " --format json --output $i.json 2>/dev/null || exit; done; "
                           "$SIM --merge 1.json 2.json 0.json --format ",
                           GetParam(), " --output added"))
                  .ExitCode,
              0);
    EXPECT_FALSE(Read("whole").empty());
    EXPECT_EQ(Read("added"), Read("whole"));
}
INSTANTIATE_TEST_SUITE_P(Sim, MergedAs, ::testing::Values("table", "csv", "json"),
                         [](const auto& row) { return row.param; });

TEST_F(Merged, FromGamesThatLieBetweenOneAnother) {
    Shell("$SIM --games 40 --format json --output whole 2>/dev/null");
    EXPECT_EQ(Shell("sed -n 'p;n' whole >odd; sed -n 'n;p' whole >even; $SIM --merge even odd --format json").Text,
              Read("whole"));
}

TEST_F(Merged, WithAGameOfMinusZero) {
    Shell("$SIM --games 1 --replay -0 --format json --output whole 2>/dev/null");
    EXPECT_THAT(Read("whole"), HasSubstr("{\"replay\":-0,"));
    EXPECT_EQ(Shell("$SIM --merge whole --format json").Text, Read("whole"));
}

TEST_F(Merged, ByWorkersOfGnuParallel) {
    if (Shell("command -v parallel").ExitCode != 0) {
        GTEST_SKIP() << "GNU parallel is not installed";
    }
    Shell("$SIM --games 80 --clans 5 --output whole 2>/dev/null");
    EXPECT_EQ(
        Shell("export SIM HOME=$PWD; seq 0 3 | parallel --will-cite -j 2 '$SIM --games 20 --replay $((1 + 20 * {})) "
              "--clans 5 --jobs 1 --format json --output {}.json' 2>/dev/null; $SIM --merge [0-3].json")
            .Text,
        Read("whole"));
}

class Unmerged : public CommandLineTest, public ::testing::WithParamInterface<CommandRow> {};

TEST_P(Unmerged, SayWhyAndWriteNothing) {
    Shell(
        "$SIM --games 3 --format json --output a 2>/dev/null; $SIM --games 3 --replay 4 --format json --output b "
        "2>/dev/null");
    const auto ran = Shell(GetParam().Command + " 2>&1");
    EXPECT_EQ(ran.ExitCode, 2);
    EXPECT_THAT(ran.Text, HasSubstr(GetParam().Says));
    EXPECT_EQ(std::count(ran.Text.begin(), ran.Text.end(), '\n'), 1) << ran.Text;
    EXPECT_EQ(Shell("ls out").Text, "");
}

const CommandRow UnmergedRows[] = {
    {"other_settings",
     "$SIM --games 2 --replay 9 --clans 4 --format json --output c 2>/dev/null; $SIM --merge a c --output out",
     "c, line 1: played with \"clans 4, persons 0, normal, board 5 x 5\", and a, line 1 with \"clans rolled, "},
    {"the_same_game_twice", "$SIM --merge a b a --output out", "line 1: game 1 is in a, line 1, too"},
    {"cut_off", "head -c -9 b >c; $SIM --merge a c --output out",
     "c, line 3: the line has no end; is the file cut off?"},
    {"no_result", "echo hello >c; $SIM --merge a c --output out",
     "c, line 1: this is no result of plasmos-sim --format json"},
    {"another_format", "$SIM --games 1 --format csv --output c 2>/dev/null; $SIM --merge c --output out",
     "c, line 1: this is no result"},
    {"an_older_result", "sed 's/,\"settings.*/}/' a >c; $SIM --merge c --output out",
     "\"settings\" with a text is wanted"},
    {"a_winner_that_does_not_play", "sed 's/\"winner\":./\"winner\":9/' a >c; $SIM --merge c --output out",
     "\"winner\" with a number from 1 to"},
    {"an_unknown_personality", "sed 's/Eater/Loser/' a >c; $SIM --merge c --output out", "and not \"Loser\""},
    {"out_of_order", "tac a >c; $SIM --merge c --output out", "c, line 2: game 2 stands behind game 3"},
    {"a_missing_file", "$SIM --merge a nowhere --output out", "nowhere cannot be opened: "},
    {"a_folder", "mkdir c; $SIM --merge a c --output out", "c cannot be opened: "},
    {"with_games", "$SIM --merge a b --games 3 --output out",
     "--games: --merge plays no games; only --format and --output"},
    {"into_one_of_them", "$SIM --merge a b --output b", "--output: b is one of the results that are added up"},
    {"nothing", "$SIM --merge --output out", "--merge"},
};
INSTANTIATE_TEST_SUITE_P(Sim, Unmerged, ::testing::ValuesIn(UnmergedRows), CommandName());

}  // namespace
}  // namespace plasmos::testing
