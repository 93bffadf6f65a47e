// SPDX-License-Identifier: GPL-3.0-or-later
// Where results and journals go: files, links, pipes, devices, and what must not be touched.
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "tests/sim/command_line.h"

namespace plasmos::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;

class OutputPlaces : public CommandLineTest, public ::testing::WithParamInterface<CommandRow> {
protected:
    /// The bytes that every one of the commands must put where it says.
    std::string Results() const { return Shell("$SIM --games 5 --format csv 2>/dev/null").Text; }
};

TEST_P(OutputPlaces, ReceiveTheResults) {
    const auto results = Results();
    const auto ran = Shell("RUN=\"$SIM --games 5 --format csv\"; exec 2>err.txt; " + GetParam().Command);
    EXPECT_EQ(ran.ExitCode, 0) << Read("err.txt");
    EXPECT_EQ(ran.Text, GetParam().Says + results);
    EXPECT_THAT(Names(), ::testing::Each(::testing::Not(HasSubstr("plasmos-draft"))));
}

const CommandRow PlaceRows[] = {
    {"a_new_file", "$RUN --output out; cat out", ""},
    {"a_file_that_is_there", "echo old > out; $RUN --output out; cat out", ""},
    {"standard_output_by_its_name_is_a_pipe", "$RUN --output /dev/stdout | cat", ""},
    {"standard_output_by_its_name_is_a_file", "$RUN --output /dev/stdout > out; cat out", ""},
    {"standard_output_by_its_name_goes_on_behind_what_is_there",
     "echo before > out; $RUN --output /dev/stdout >> out; cat out", "before\n"},
    {"a_number_of_an_open_file", "$RUN --output /dev/fd/7 7> out; cat out", ""},
    {"a_link_to_standard_output", "ln -s /dev/stdout here; $RUN --output here > out; test -L here; cat out", ""},
    {"a_pipe_with_a_name", "mkfifo pipe; $RUN --output pipe & cat pipe; wait", ""},
    {"a_link_to_a_pipe", "mkfifo pipe; ln -s pipe here; $RUN --output here & cat pipe; wait", ""},
    {"a_link_is_followed", "echo old > out; ln -s out here; $RUN --output here; readlink here; cat out", "out\n"},
    {"a_link_into_another_folder",
     "mkdir there; echo old > there/out; ln -s there/out here; $RUN --output here; readlink here; ls there; "
     "cat there/out",
     "there/out\nout\n"},
    {"a_link_to_a_link", "ln -s b a; ln -s out b; echo old > out; $RUN --output a; readlink a b; cat out", "b\nout\n"},
    {"a_link_that_leads_to_nothing_yet", "ln -s out here; $RUN --output here; readlink here; cat out", "out\n"},
    {"a_file_keeps_its_rights", "touch out; chmod 640 out; $RUN --output out; stat -c %a out; cat out", "640\n"},
    {"a_file_with_the_longest_of_names", "n=$(printf '%0255d' 7); $RUN --output $n; cat $n", ""},
    {"somebody_elses_file_with_a_like_name",
     "echo mine > out.new; echo mine > out.2026-07.new; $RUN --output out; cat out.new out.2026-07.new out; rm out*",
     "mine\nmine\n"},
};
INSTANTIATE_TEST_SUITE_P(Results, OutputPlaces, ::testing::ValuesIn(PlaceRows), CommandName());

class RefusedPlaces : public CommandLineTest, public ::testing::WithParamInterface<CommandRow> {};

TEST_P(RefusedPlaces, OneLineAndExitCode2AndNothingIsTouched) {
    const auto ran = Shell(
        "echo old > kept; echo old > locked; chmod 444 locked; ln kept hard; ln -s kept soft; mkdir folder; "
        "ln -s locked tolocked; mkfifo pipe; " +
        GetParam().Command);
    EXPECT_EQ(ran.ExitCode, 2);
    EXPECT_THAT(ran.Text, ::testing::MatchesRegex("plasmos-sim: [^\n]*\n"));
    EXPECT_THAT(ran.Text, HasSubstr(GetParam().Says));
    EXPECT_EQ(Read("kept") + Read("locked") + Read("hard"), "old\nold\nold\n");
    EXPECT_THAT(Names(), UnorderedElementsAre("kept", "locked", "hard", "soft", "folder", "tolocked", "pipe"));
}

constexpr std::string_view OwnPlace = "the journal must have a place of its own";

const CommandRow RefusedRows[] = {
    {"a_read_only_file", "$SIM --games 2 --output locked 2>&1 >/dev/null", "locked cannot be written: Permission"},
    {"a_link_to_a_read_only_file", "$SIM --games 2 --output tolocked 2>&1 >/dev/null",
     "tolocked cannot be written: Permission"},
    {"a_read_only_journal", "$SIM --games 2 --output kept --journal locked 2>&1 >/dev/null",
     "locked cannot be written: Permission"},
    {"a_folder", "$SIM --games 2 --output folder/ 2>&1 >/dev/null", "folder/ cannot be written: Is a directory"},
    {"a_missing_folder", "$SIM --games 2 --output no/out 2>&1 >/dev/null", "no/out cannot be written: No such file"},
    {"a_file_as_a_folder", "$SIM --games 2 --output kept/out 2>&1 >/dev/null",
     "kept/out cannot be written: Not a directory"},
    {"a_ring_of_links", "ln -s ring ring; $SIM --games 2 --output ring 2>&1 >/dev/null; code=$?; rm ring; exit $code",
     "ring cannot be written: Too many levels"},
    {"standard_output_that_is_closed", "$SIM --games 2 2>&1 >&-", "standard output cannot be written: Bad file"},
    {"standard_output_that_is_closed_by_its_name", "$SIM --games 2 --output /dev/stdout 2>&1 >&-",
     "/dev/stdout cannot be written: Bad file"},
    {"a_terminal_that_is_not_there", "setsid $SIM --games 2 --output /dev/tty 2>&1 >/dev/null",
     "/dev/tty cannot be written: No such device"},
    {"a_number_that_is_not_open", "$SIM --games 2 --output /dev/fd/77 2>&1 >/dev/null",
     "/dev/fd/77 cannot be written: Bad file"},
    {"the_same_name_twice", "$SIM --games 2 --output new --journal new 2>&1 >/dev/null", std::string(OwnPlace)},
    {"the_same_name_in_other_words", "$SIM --games 2 --output new --journal folder/../new 2>&1 >/dev/null",
     std::string(OwnPlace)},
    {"the_same_file_by_a_link", "$SIM --games 2 --output kept --journal soft 2>&1 >/dev/null", std::string(OwnPlace)},
    {"the_same_file_by_another_name", "$SIM --games 2 --output hard --journal kept 2>&1 >/dev/null",
     std::string(OwnPlace)},
    {"the_same_pipe", "$SIM --games 2 --output pipe --journal ./pipe 2>&1 >/dev/null", std::string(OwnPlace)},
    {"a_journal_where_the_results_go",
     "$SIM --games 2 --journal /dev/stdout 2>err | cat; code=${PIPESTATUS[0]}; cat err; rm err; exit $code",
     std::string(OwnPlace)},
};
INSTANTIATE_TEST_SUITE_P(Places, RefusedPlaces, ::testing::ValuesIn(RefusedRows), CommandName());

/// What may be said on a standard output that takes nothing.
class FullOutput : public CommandLineTest, public ::testing::WithParamInterface<CommandRow> {};

TEST_P(FullOutput, IsToldAndHasExitCode2) {
    const auto ran = Shell("$SIM " + GetParam().Command + " 2>&1 >/dev/full");
    EXPECT_EQ(ran.ExitCode, 2);
    EXPECT_THAT(ran.Text, ::testing::StartsWith("plasmos-sim: standard output cannot be written: No space"));
    EXPECT_EQ(std::count(ran.Text.begin(), ran.Text.end(), '\n'), 1) << ran.Text;
}

const CommandRow FullRows[] = {
    {"help", "--help", ""},
    {"the_bench", "--bench --games 5", ""},
    {"a_table", "--games 5", ""},
    {"games_as_csv", "--games 5 --format csv", ""},
    {"games_as_json", "--games 5 --format json", ""},
};
INSTANTIATE_TEST_SUITE_P(Texts, FullOutput, ::testing::ValuesIn(FullRows), CommandName());

TEST_F(CommandLineTest, ASocketIsNoPlaceForResults) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const auto path = (folder_ / "socket").string();
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int listening = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(listening, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    const auto ran = Shell("$SIM --games 2 --output socket 2>&1 >/dev/null");
    close(listening);
    EXPECT_EQ(ran.ExitCode, 2);
    EXPECT_EQ(ran.Text, "plasmos-sim: socket cannot be written: a pipe or a device is in its place\n");
    EXPECT_THAT(Names(), UnorderedElementsAre("socket"));
}

TEST_F(CommandLineTest, TwoRunsAtOnceLeaveOneWholeResult) {
    const auto one = Shell("$SIM --games 300 --format csv 2>/dev/null").Text;
    const auto other = Shell("$SIM --games 300 --clans 3 --format csv 2>/dev/null").Text;
    for (int round = 0; round < 5; ++round) {
        EXPECT_EQ(Shell("$SIM --games 300 --format csv --output out 2>/dev/null & one=$!; "
                        "$SIM --games 300 --clans 3 --format csv --output out 2>/dev/null; wait $one")
                      .ExitCode,
                  0);
        EXPECT_THAT(Read("out"), ::testing::AnyOf(one, other));
        EXPECT_THAT(Names(), UnorderedElementsAre("out"));
    }
}

TEST_F(CommandLineTest, TheDraftsOfAKilledRunGoWithTheNextAndThoseOfALivingOneStay) {
    const auto ran = Shell(
        "$SIM --games 10000000 --output out 2>/dev/null & killed=$!; "
        "until ls | grep -q draft; do sleep 0.01; done; kill -KILL $killed; wait $killed 2>/dev/null; ls | wc -l; "
        "$SIM --games 10000000 --clans 3 --output out 2>/dev/null & lives=$!; "
        "until ls | grep -q \"$lives\"; do sleep 0.01; done; ls | wc -l; "
        "$SIM --games 5 --output out 2>/dev/null; ls | wc -l; kill -TERM $lives; wait $lives; echo $?; ls");
    EXPECT_EQ(ran.Text, "1\n1\n2\n130\nout\n");
}

TEST_F(CommandLineTest, NothingOfAStandardStreamThatIsClosedGoesIntoAFile) {
    const auto clean = Shell("$SIM --games 5 --format csv 2>/dev/null").Text;
    for (const std::string closed : {"<&-", ">&-", "2>&-", "<&- >&- 2>&-"}) {
        EXPECT_EQ(Shell("$SIM --games 5 --format csv --progress always --output out --data data " + closed).ExitCode, 0)
            << closed;
        EXPECT_EQ(Read("out"), clean) << closed;
        EXPECT_THAT(Read("data/movefil.txt"), ::testing::Not(HasSubstr("games per second"))) << closed;
    }
}

TEST_F(CommandLineTest, AFullStandardErrorEndsNoRun) {
    EXPECT_EQ(Shell("$SIM --games 5 --progress always 2>/dev/full >/dev/null").ExitCode, 0);
    EXPECT_EQ(Shell("( $SIM --games 2000 --progress always 2>&1 >/dev/null; echo $? > code ) | true; sleep 0.1; "
                    "read code < code; exit $code")
                  .ExitCode,
              0);
}

TEST_F(CommandLineTest, AFileThatMayNotGrowIsTold) {
    const auto ran = Shell(
        "echo old > out; ( ulimit -f 1; $SIM --games 2000 --format csv --output out 2>&1 >/dev/null | cat; "
        "exit ${PIPESTATUS[0]} )");
    EXPECT_EQ(ran.ExitCode, 2);
    EXPECT_EQ(ran.Text, "plasmos-sim: out cannot be written: File too large\n");
    EXPECT_EQ(Read("out"), "old\n");
    EXPECT_THAT(Names(), UnorderedElementsAre("out"));
}

TEST_F(CommandLineTest, WhereThereIsNoRoomForAllThreadsFewerPlay) {
    if (Shell("ulimit -v 1000000; $SIM --games 1 2>/dev/null >/dev/null").ExitCode != 0) {
        GTEST_SKIP() << "this build of the program takes more room than that for itself";
    }
    const auto all = Shell("$SIM --games 200 --format csv 2>/dev/null").Text;
    for (const int megabytes : {40, 80, 200, 400, 1000}) {
        const auto ran =
            Shell(Concat("ulimit -v ", megabytes * 1024, "; $SIM --games 200 --jobs 64 --format csv 2>err; exit $?"));
        if (ran.ExitCode == 0) {
            EXPECT_EQ(ran.Text, all) << megabytes;
        } else {
            EXPECT_EQ(ran.ExitCode, 2) << megabytes << Read("err");
            EXPECT_THAT(Read("err"), ::testing::MatchesRegex("plasmos-sim: [^\n]*\n"));
        }
    }
}

}  // namespace
}  // namespace plasmos::testing
