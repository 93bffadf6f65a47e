// SPDX-License-Identifier: GPL-3.0-or-later
// The program plasmos-sim is asked to end: while it plays, and while an output keeps it waiting.
#include <gmock/gmock.h>

#include "tests/sim/command_line.h"

namespace plasmos::testing {
namespace {

using ::testing::UnorderedElementsAre;

/// Waits in a shell until the program has its handlers, and a little for what it then does.
constexpr std::string_view Ready =
    "until grep -qs plasmos-sim /proc/$sim/comm && grep -qs 'SigCgt:.*[1-9a-f]' /proc/$sim/status; "
    "do sleep 0.01; done; sleep 0.2; ";

class EndsOfRuns : public CommandLineTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(EndsOfRuns, FinishTheGamesInHandAndPrintThem) {
    const auto ran =
        Shell(Concat("$SIM --games 10000000 --format csv --output out --journal all 2>/dev/null & sim=$!; "
                     "until ls | grep -q draft; do sleep 0.01; done; sleep 0.1; kill -",
                     GetParam(), " $sim; wait $sim"));
    EXPECT_EQ(ran.ExitCode, 130);
    const auto csv = Read("out");
    ASSERT_FALSE(csv.empty() || Read("all").empty());
    EXPECT_GT(std::count(csv.begin(), csv.end(), '\n'), 1);
    EXPECT_EQ(csv.back(), '\n');
    EXPECT_EQ(Read("all").back(), '\n');
    EXPECT_THAT(Names(), UnorderedElementsAre("out", "all"));
}

TEST_P(EndsOfRuns, EndTheWaitForSomebodyWhoReads) {
    const auto ran = Shell(Concat("mkfifo pipe; $SIM --games 5 --output pipe --journal all 2>err & sim=$!; ", Ready,
                                  "kill -", GetParam(), " $sim; wait $sim"));
    EXPECT_EQ(ran.ExitCode, 130);
    EXPECT_EQ(Read("err"), "");
    EXPECT_THAT(Names(), UnorderedElementsAre("pipe", "err"));
}

TEST_P(EndsOfRuns, EndTheWaitForAReaderWhoHasStopped) {
    const auto ran =
        Shell(Concat("mkfifo pipe; sleep 20 <pipe & reader=$!; "
                     "$SIM --games 100000 --format csv >pipe 2>err & sim=$!; ",
                     Ready, "sleep 0.5; kill -", GetParam(), " $sim; wait $sim; code=$?; kill $reader; exit $code"));
    EXPECT_EQ(ran.ExitCode, 130);
    EXPECT_THAT(Names(), UnorderedElementsAre("pipe", "err"));
}

INSTANTIATE_TEST_SUITE_P(Signals, EndsOfRuns, ::testing::Values("INT", "TERM", "HUP"),
                         [](const auto& row) { return std::string(row.param); });

TEST_F(CommandLineTest, ARunThatOutlivesItsTerminalPlaysOn) {
    const auto ran = Shell(
        "trap '' HUP; $SIM --games 300 --format csv --output out --journal all 2>/dev/null & sim=$!; "
        "until ls | grep -q draft; do sleep 0.01; done; kill -HUP $sim; wait $sim");
    EXPECT_EQ(ran.ExitCode, 0);
    const auto csv = Read("out");
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 301);
}

}  // namespace
}  // namespace plasmos::testing
