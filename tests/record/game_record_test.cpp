// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/game_record.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "files/platform.h"
#include "record/record_file.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

using ::testing::HasSubstr;

// ---- the text of a record ----

const char* const Sound =
    "Plasmos game record 1\n"
    "rules 1\n"
    "replay 4711.5\n"
    "rows 4\n"
    "columns 5\n"
    "blocks 3:7:\n"
    "persons 1\n"
    "difficulty easy\n"
    "victory on\n"
    "fast off\n"
    "clans 3 asked\n"
    "names 1 of 14 \"Player 1\": \"Otto\" \"Olga\" \"Olaf\" \"Oddr\" \"Offa\" \"Ormr\" \"Oscar\"\n"
    "names 2 of 9 \"The \\\"Others\\\"\": \"B 1\" \"B 2\" \"B 3\" \"B 4\" \"B 5\" \"B 6\" \"B\\\\7\"\n"
    "names 3 of 10 \"Gríma\": \"G1\" \"G2\" \"G3\" \"G4\" \"G5\" \"G6\" \"G7\"\n"
    "inputs\n"
    "0000 number 3\n"
    "07af square 9\n"
    "refused\n"
    "07af square 8\n"
    "07af set victory off\n"
    "1b2c after 12 steps: set fast on\n"
    "1b2d lost 57: 61 Disk full: movefil.txt\n";

TEST(RecordText, IsReadAsItIsWritten) {
    const ReadRecord read = ParseRecord(Sound);
    EXPECT_EQ(read.Fault.Told(), "");
    EXPECT_EQ(RecordText(read.Record), Sound);
    EXPECT_EQ(read.Record.Head.Blocks, (std::vector<int>{3, 7}));
    EXPECT_EQ(read.Record.Head.Names.Of(2).Name, "The \"Others\"");
    EXPECT_EQ(read.Record.Head.Names.Of(2).Pieces[6], "B\\7");
    ASSERT_EQ(read.Record.Inputs.size(), 6U);
    EXPECT_TRUE(read.Record.Inputs[1].Refused);
    EXPECT_EQ(read.Record.Inputs[5].Lost.Line, 57);
    EXPECT_EQ(read.Record.Inputs[5].Lost.Error, 61);
    EXPECT_EQ(read.Lines, (std::vector<int>{16, 17, 19, 20, 21, 22}));
}

TEST(RecordText, BearsOtherLineEndsBlankLinesAndRemarks) {
    std::string text = "# a game to look at\n\n";
    for (const char* c = Sound; *c != '\0'; ++c) {
        text += *c == '\n' ? "\r\n" : std::string(1, *c);
    }
    const ReadRecord read = ParseRecord(text + "\n# the end\n");
    EXPECT_EQ(read.Fault.Told(), "");
    EXPECT_EQ(RecordText(read.Record), Sound);
}

TEST(RecordText, LeavesOutWhatWasTakenBack) {
    const ReadRecord read = ParseRecord(std::string(Sound) + "back to 1\nsquare 2\n");
    EXPECT_EQ(read.Fault.Told(), "");
    ASSERT_EQ(read.Record.Inputs.size(), 2U);
    EXPECT_EQ(read.Record.Inputs[1].Text(), "square 2");
    EXPECT_EQ(read.Lines, (std::vector<int>{16, 24}));
}

TEST(RecordText, TellsThatItsEndHasBeenCounted) {
    const ReadRecord read = ParseRecord(std::string(Sound) + std::string(CountedLine) + "square 2\n");
    EXPECT_EQ(read.Fault.Told(), "");
    EXPECT_TRUE(read.Counted);
    EXPECT_EQ(read.Record.Inputs.size(), 7U);
    EXPECT_FALSE(ParseRecord(Sound).Counted);
}

struct FaultRow {
    std::string_view Name;
    std::string Old;  ///< what is replaced in the sound record
    std::string New;
    std::string Fault;
    bool Opens = false;
};

void PrintTo(const FaultRow& row, std::ostream* out) {
    *out << row.Name;
}

std::string Changed(const FaultRow& row) {
    std::string text = Sound;
    const auto at = text.find(row.Old);
    EXPECT_NE(at, std::string::npos);
    return row.Old.empty() ? row.New : text.replace(at, row.Old.size(), row.New);
}

class FaultyRecord : public ::testing::TestWithParam<FaultRow> {};

TEST_P(FaultyRecord, SaysTheLineAndWhatWasExpected) {
    const ReadRecord read = ParseRecord(Changed(GetParam()));
    EXPECT_THAT(read.Fault.Told(), HasSubstr(GetParam().Fault));
    EXPECT_EQ(read.HasHead, GetParam().Opens);
    EXPECT_EQ(read.Fault.Told().find('\n'), std::string::npos);
}

const FaultRow FaultRows[] = {
    {"nothing", "", "", "line 1: the record ends where \"Plasmos game record 1\" was expected"},
    {"another_file", "Plasmos game record 1", "GIF89a",
     "line 1: this is no game that was saved: it begins with \"GIF89a\" and not with \"Plasmos game record 1\""},
    {"no_text", "Plasmos", "\xff\xfe\x01", "line 1: this is no text in UTF-8"},
    {"another_form", "record 1", "record 2",
     "line 1: this is no game that was saved: it begins with \"Plasmos game record 2\""},
    {"other_rules", "rules 1", "rules 7",
     "line 2: the game was played by version 7 of the rules; this program plays version 1"},
    {"no_replay_number", "4711.5", "many", "line 3: \"replay many\" stands where \"replay\" with the replay number"},
    {"ten_rows", "rows 4", "rows 10",
     "line 4: \"rows 10\" stands where \"rows\" with a number from 3 to 9 was expected"},
    {"a_board_too_large", "rows 4\ncolumns 5", "rows 9\ncolumns 5", "36"},
    {"a_block_off_the_board", "3:7:", "3:27:", "line 6: \"blocks 3:27:\" stands where"},
    {"too_many_blocks", "3:7:", "1:2:3:4:5:6:7:8:9:", "line 6: "},
    {"three_persons", "persons 1", "persons 3",
     "line 7: \"persons 3\" stands where \"persons\" with a number from 0 to 2"},
    {"another_difficulty", "easy", "hard", "\"difficulty normal\" or \"difficulty easy\" was expected"},
    {"two_clans", "clans 3 asked", "clans 2 asked", "line 11: "},
    {"clans_in_another_way", "asked", "wished", "\"given\", \"rolled\" or \"asked\""},
    {"nobody_to_ask", "persons 1", "persons 0", "a person is asked for the number of clans"},
    {"a_name_missing", " \"Oscar\"", "", "line 12: \"names 1 of 14"},
    {"a_name_too_many", "\"Oscar\"", "\"Oscar\" \"Otto\"", "and 7 names in quotes was expected"},
    {"a_blank_name", "\"Otto\"", "\"  \"", "line 12: "},
    {"an_open_quote", "\"Oscar\"", "\"Oscar", "line 12: "},
    {"too_few_to_choose_from", "of 14", "of 6", "line 12: "},
    {"a_clan_missing", "names 2 of 9", "names 3 of 9", "line 13: "},
    {"a_long_clan_name", "Player 1", "A name of twenty-one c", "line 12: "},
    {"no_inputs", "inputs\n", "input\n", "line 15: \"input\" stands where \"inputs\" was expected"},
    {"an_unknown_input", "square 8", "jump 8", "line 19: \"jump 8\" is no answer", true},
    {"an_unknown_switch", "set victory off", "set colour off", "line 20: \"set colour off\" is no switch", true},
    {"a_check_with_a_sign", "07af square 8", "-7af square 8", "line 19: \"-7af square 8\" is no answer", true},
    {"a_lost_line_without_a_number", "lost 57:", "lost many:",
     "line 22: \"lost many: 61 Disk full: movefil.txt\" names no line that was lost, as in", true},
    {"a_line_lost_for_no_file", ": 61 Disk", ": 51 Disk", "line 22: \"lost 57: 51 Disk", true},
    {"an_answer_after_leaving", "set victory off\n", "leave game\nsquare 2\n",
     "line 21: the person has left the game above, and \"square 2\" comes later", true},
    {"refused_twice", "refused\n", "refused\nrefused\n", "line 19: \"refused\" stands below an answer, once", true},
    {"nothing_to_refuse", "inputs\n", "inputs\nrefused\n", "line 16: \"refused\" stands below", true},
    {"back_beyond", "07af set victory off", "back to 9",
     "line 20: \"back to\" is followed by a number of inputs, here 0 to 3", true},
    {"cut_off_in_an_input", "movefil.txt\n", "mov", "line 22: the record is cut off in the middle of", true},
    {"a_line_missing", "columns 5\n", "", "line 5: \"blocks 3:7:\" stands where \"columns\""},
    {"an_endless_line", "square 8", std::string(9000, 'x'), "at most 8000 bytes", true},
    {"a_line_of_bytes", "square 8", "\xc3(", "an input is a text in UTF-8", true},
};
INSTANTIATE_TEST_SUITE_P(Records, FaultyRecord, ::testing::ValuesIn(FaultRows), RowName());

TEST(RecordText, CutAnywhereIsSoundUpToThere) {
    const std::string text = Sound;
    for (std::size_t size = 0; size < text.size(); ++size) {
        const ReadRecord read = ParseRecord(text.substr(0, size));
        if (size > text.find("inputs\n") + 6) {
            EXPECT_TRUE(read.HasHead) << size;
            EXPECT_EQ(read.Fault.Text.empty(), text[size - 1] == '\n') << size;
        } else {
            EXPECT_FALSE(read.HasHead) << size;
            EXPECT_NE(read.Fault.Told(), "") << size;
        }
    }
}

// ---- files ----

class RecordFiles : public ::testing::Test {
protected:
    std::string Path(std::string_view name) const { return (folder_ / name).string(); }
    void SetUp() override { std::filesystem::create_directories(folder_); }
    void TearDown() override { std::filesystem::remove_all(folder_); }

private:
    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("plasmos-records-" + std::to_string(ProcessNumber()));
};

TEST_F(RecordFiles, AreWrittenAndRead) {
    EXPECT_EQ(WriteRecordFile(Path("a.plasmos"), Sound), "");
    EXPECT_EQ(RecordText(ReadRecordFile(Path("a.plasmos")).Record), Sound);
}

TEST_F(RecordFiles, ThatAreNoneSayWhy) {
    std::filesystem::create_directory(Path("folder"));
    std::ofstream(Path("large")).seekp(1 << 30).put('x');
    EXPECT_THAT(ReadRecordFile(Path("none")).Fault.Told(), HasSubstr("none cannot be opened: No such file"));
    EXPECT_THAT(ReadRecordFile(Path("folder")).Fault.Told(), HasSubstr("cannot be opened: Is a directory"));
    EXPECT_THAT(ReadRecordFile(Path("large")).Fault.Told(), HasSubstr("larger than 4 MB"));
#ifndef _WIN32
    EXPECT_THAT(ReadRecordFile("/dev/zero").Fault.Told(), HasSubstr("a pipe or a device is in its place"));
#endif
    EXPECT_THAT(WriteRecordFile(Path("folder"), Sound), HasSubstr("folder cannot be written: "));
}

}  // namespace
}  // namespace plasmos::testing
