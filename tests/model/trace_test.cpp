// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/trace.h"

#include <gmock/gmock.h>

#include <new>

#include "files/game_files.h"
#include "tests/support/game_fixture.h"
#include "tests/support/memory_files.h"

namespace plasmos::testing {
namespace {

using ::testing::HasSubstr;

/// The kind of a trace line and the file it goes to.
struct KindRow {
    std::string_view Name;
    std::string_view Kind;
    std::string_view File;  ///< "": nowhere
};

void PrintTo(const KindRow& row, std::ostream* out) {
    *out << row.Name;
}

class TraceKinds : public GameRows<KindRow> {};

TEST_P(TraceKinds, ChooseTheFile) {
    MemoryFiles files;
    WriteTrace("position 7", GetParam().Kind);
    if (GetParam().File.empty()) {
        EXPECT_TRUE(files.Files.empty());
        return;
    }
    EXPECT_EQ(files.Files.size(), 1U);
    EXPECT_EQ(files.Files[std::string(GetParam().File)], "position 7\n");
}

constexpr KindRow KindRows[] = {
    {"rnd_is_the_random_number_file", "rnd", "randfil.txt"},
    {"rand_is_the_random_number_file", "rand", "randfil.txt"},
    {"crt_is_written_nowhere", "crt", ""},
    {"no_kind_is_the_move_file", "", "movefil.txt"},
    {"mov_is_the_move_file", "mov", "movefil.txt"},
    {"kinds_are_compared_exactly", "RND", "movefil.txt"},
};

INSTANTIATE_TEST_SUITE_P(Lines, TraceKinds, ::testing::ValuesIn(KindRows), RowName());

class Traces : public GameTest {};

TEST_F(Traces, ATextThatEndsInALineBreakLeavesAnEmptyLine) {
    MemoryFiles files;
    WriteTrace("mposition 3\n", "");
    WriteTrace("next", "");
    EXPECT_EQ(files.Files["movefil.txt"], "mposition 3\n\nnext\n");
}

TEST_F(Traces, ANewGameEmptiesTheMoveFileOnly) {
    MemoryFiles files;
    WriteTrace("old", "");
    WriteTrace("3", "rnd");
    EmptyMoveFile();
    EXPECT_EQ(files.Files["movefil.txt"], "");
    EXPECT_EQ(files.Files["randfil.txt"], "3\n");
}

TEST_F(Traces, AGameWithoutFilesTracesNothing) {
    EXPECT_FALSE(TracesAreKept());
    EXPECT_NO_THROW(WriteTrace("x", ""));
    EXPECT_NO_THROW(EmptyMoveFile());
}

TEST_F(Traces, ALineIsTriedThreeTimes) {
    MemoryFiles files;
    files.Failures = 2;
    WriteTrace("patience", "");
    EXPECT_EQ(files.Files["movefil.txt"], "patience\n");
    EXPECT_EQ(files.Tries, 3);
}

TEST_F(Traces, TheThirdFailureIsTheError) {
    MemoryFiles files;
    files.Failures = 3;
    try {
        WriteTrace("lost", "");
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number, 61);
    }
    EXPECT_EQ(files.Tries, 3);
}

class ErrorRecords : public GameTest {
protected:
    ErrorRecords() {
        NewPosition(5);
        game.ReplayNo = 43210.5F;
        game.Turn = 7;
        game.Players[4].Name = std::string_view("Ameera");
    }

    const RuntimeError error{9, "Subscript out of range"};
    const std::string record =
        "ReplayNo: 43210.5\n"
        "Player: 4 (Ameera)  Moeba: 2\n"
        "Turn: 7   No. Players: 5\n"
        "Error #9: Subscript out of range\n"
        "\n"
        "\n";
};

TEST_F(ErrorRecords, HaveSixLines) {
    EXPECT_EQ(ErrorRecord(error, 4, 2), record);
}

TEST_F(ErrorRecords, AreAppended) {
    MemoryFiles files;
    AppendErrorRecord(error, 4, 2);
    AppendErrorRecord(error, 4, 2);
    EXPECT_EQ(files.Files["errfile.txt"], record + record);
}

TEST_F(ErrorRecords, OfAClanOffTheTableHaveNoName) {
    EXPECT_THAT(ErrorRecord(error, 9, 2), HasSubstr("Player: 9 ()  Moeba: 2\n"));
}

TEST_F(ErrorRecords, WithoutFilesGoToStandardError) {
    ::testing::internal::CaptureStderr();
    AppendErrorRecord(error, 4, 2);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), record);
}

TEST_F(ErrorRecords, ThatCannotBeWrittenGoToStandardErrorToo) {
    MemoryFiles files;
    files.Failures = 1000;
    ::testing::internal::CaptureStderr();
    EXPECT_NO_THROW(AppendErrorRecord(error, 4, 2));
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), HasSubstr(record));
}

TEST_F(ErrorRecords, EndTheProgramWhenTheyAreWritten) {
    MemoryFiles files;
    EXPECT_THROW(WriteErrorRecord(error, 4, 2), ProgramEnd);
    EXPECT_EQ(files.Files["errfile.txt"], record);
}

TEST_F(ErrorRecords, AnErrorInAPhaseIsRecordedOnceForWhoActs) {
    MemoryFiles files;
    game.CurPlayer = 4;
    game.CurAmoeba = 2;
    EXPECT_THROW(GuardPhase([] { game.BP[7] = 1; }), ProgramEnd);
    EXPECT_EQ(files.Files["errfile.txt"], record);
}

TEST_F(ErrorRecords, AGuardInsideAGuardRecordsOneErrorOnce) {
    MemoryFiles files;
    game.CurPlayer = 4;
    game.CurAmoeba = 2;
    EXPECT_THROW(GuardPhase([] { GuardPhase([] { game.BP[7] = 1; }); }), ProgramEnd);
    EXPECT_EQ(files.Files["errfile.txt"], record);
}

TEST_F(ErrorRecords, TheProgramsEndIsNoError) {
    MemoryFiles files;
    EXPECT_THROW(GuardPhase([] { throw ProgramEnd{}; }), ProgramEnd);
    EXPECT_TRUE(files.Files.empty());
}

TEST_F(ErrorRecords, OtherErrorsGetANumberToo) {
    MemoryFiles files;
    EXPECT_THROW(GuardPhase([] { throw std::bad_alloc(); }), ProgramEnd);
    EXPECT_THAT(files.Files["errfile.txt"], HasSubstr("Error #7: Out of memory\n"));
    EXPECT_THROW(GuardPhase([] { throw std::logic_error("odd"); }), ProgramEnd);
    EXPECT_THAT(files.Files["errfile.txt"], HasSubstr("Error #51: "));
}

TEST_F(ErrorRecords, APhaseWithoutErrorWritesNothing) {
    MemoryFiles files;
    bool ran = false;
    GuardPhase([&] { ran = true; });
    EXPECT_TRUE(ran);
    EXPECT_TRUE(files.Files.empty());
}

}  // namespace
}  // namespace plasmos::testing
