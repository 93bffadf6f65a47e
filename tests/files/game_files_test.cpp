// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/game_files.h"

#include <gmock/gmock.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "files/platform.h"
#include "files/runtime_error.h"
#include "model/services.h"
#include "model/trace.h"
#include "tests/support/on_disk.h"

namespace plasmos::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;

TEST_F(OnDisk, TheFolderIsMadeWithAllItsParents) {
    EXPECT_FALSE(fs::exists(folder));
    files.MakeFolder();
    EXPECT_TRUE(fs::is_directory(folder));
    EXPECT_NO_THROW(files.MakeFolder()) << "it is there already";
}

TEST_F(OnDisk, AFileInThePlaceOfTheFolderIsAnError) {
    fs::create_directories(fs::path(folder).parent_path());
    std::ofstream(folder) << "in the way";
    EXPECT_EQ(ErrorOf([this] { files.MakeFolder(); }), 75);
}

TEST_F(OnDisk, AFolderThatCanBeMadeNowhereIsAPathNotFound) {
    fs::create_symlink(Home() + "/no/where", Home() + "/QX");
    EXPECT_EQ(ErrorOf([this] { files.MakeFolder(); }), 76);
    fs::remove(Home() + "/QX");
    std::ofstream(Home() + "/QX") << "in the way";
    EXPECT_EQ(ErrorOf([this] { files.MakeFolder(); }), 76);
    EXPECT_EQ(ErrorOf([] { DataFolder("/proc/no/where").MakeFolder(); }), 76);
}

TEST_F(OnDisk, LinesAreAppendedWithCrLf) {
    files.MakeFolder();
    EXPECT_FALSE(files.Exists(MoveFile));
    files.Append(MoveFile, "position 3\n");
    files.Append(MoveFile, "\xC3\x96nd\xC3\xB3ttr\n");
    EXPECT_TRUE(files.Exists(MoveFile));
    EXPECT_EQ(Bytes(MoveFile), "position 3\r\n\xD6nd\xF3ttr\r\n");
}

TEST_F(OnDisk, AFileIsReplacedWhole) {
    files.MakeFolder();
    files.Rewrite(OptionsFile, "old and long\n");
    files.Rewrite(OptionsFile, "new\n");
    EXPECT_EQ(Bytes(OptionsFile), "new\r\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1) << "no draft stays behind";
}

TEST_F(OnDisk, LinesAreReadWhateverTheirEnd) {
    files.MakeFolder();
    Lay(NamesFile, "1 - Oddr\r\n2 - Bruno\n\n3 - Guy");
    EXPECT_THAT(files.ReadLines(NamesFile, 10), ElementsAre("1 - Oddr", "2 - Bruno", "", "3 - Guy"));
    Lay(NamesFile, "");
    EXPECT_THAT(files.ReadLines(NamesFile, 10), IsEmpty());
}

TEST_F(OnDisk, ReadingStopsAfterSoManyLines) {
    files.MakeFolder();
    Lay(NamesFile, "a\nb\nc\nd\n");
    EXPECT_THAT(files.ReadLines(NamesFile, 2), ElementsAre("a", "b"));
    EXPECT_THAT(files.ReadLines(NamesFile, 0), IsEmpty());
}

TEST_F(OnDisk, ReadingTakesEitherEncoding) {
    files.MakeFolder();
    Lay(NamesFile, "1 - \xD6nd\xF3ttr\n1 - \xC3\x96nd\xC3\xB3ttr\n");
    EXPECT_THAT(files.ReadLines(NamesFile, 10), ElementsAre("1 - \xC3\x96nd\xC3\xB3ttr", "1 - \xC3\x96nd\xC3\xB3ttr"));
}

TEST_F(OnDisk, AByteOrderMarkIsNoPartOfTheFirstLine) {
    files.MakeFolder();
    Lay(NamesFile,
        "\xEF\xBB\xBF"
        "1 - Otto\n");
    EXPECT_THAT(files.ReadLines(NamesFile, 10), ElementsAre("1 - Otto"));
}

TEST_F(OnDisk, AnEndlessLineIsCut) {
    files.MakeFolder();
    Lay(NamesFile, std::string(200000, 'x') + "\nnext\n");
    const auto lines = files.ReadLines(NamesFile, 10);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0], std::string(1000, 'x'));
    EXPECT_EQ(lines[1], "next");
}

TEST_F(OnDisk, ACutLineKeepsItsEncoding) {
    files.MakeFolder();
    std::string line;
    while (line.size() < 3000) {
        line += "\xE2\x82\xAC";
    }
    Lay(NamesFile, line + "\n");
    EXPECT_THAT(files.ReadLines(NamesFile, 1)[0].substr(0, 6), "\xE2\x82\xAC\xE2\x82\xAC");
}

TEST_F(OnDisk, ATraceGoesToTheDisk) {
    files.MakeFolder();
    services.Files = &files;
    WriteTrace("\n\nGame: 42 2024-02-29 12:34:56\n", "");
    EXPECT_EQ(Bytes(MoveFile), "\r\n\r\nGame: 42 2024-02-29 12:34:56\r\n\r\n");
    EmptyMoveFile();
    EXPECT_TRUE(files.Exists(MoveFile));
    EXPECT_EQ(Bytes(MoveFile), "");
}

/// Sets variables of the environment and puts them back.
class Variable {
public:
    Variable(const char* name, const char* value) : name_(name) {
        const char* before = std::getenv(name);
        had_ = before != nullptr;
        before_ = had_ ? before : "";
        Set(value);
    }
    ~Variable() { Set(had_ ? before_.c_str() : nullptr); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    void Set(const char* value) const {
        if (value != nullptr) {
            setenv(name_, value, 1);
        } else {
            unsetenv(name_);
        }
    }

    const char* name_;
    bool had_ = false;
    std::string before_;
};

TEST(Platform, TheDataFolderIsTheOneChosen) {
    const Variable chosen("PLASMOS_DATA", "/somewhere/else");
    EXPECT_EQ(DataFolderPath(), "/somewhere/else");
}

TEST(Platform, TheDataFolderLiesInTheDataHome) {
    const Variable chosen("PLASMOS_DATA", nullptr);
    const Variable home("HOME", "/home/otto");
    {
        const Variable data("XDG_DATA_HOME", "/data/otto");
        EXPECT_EQ(DataFolderPath(), "/data/otto/QX/Plasmo6");
    }
    const Variable data("XDG_DATA_HOME", nullptr);
    EXPECT_EQ(DataFolderPath(), "/home/otto/.local/share/QX/Plasmo6");
}

TEST(Platform, ATildeInTheChosenFolderIsTheHomeFolder) {
    const Variable home("HOME", "/home/otto");
    for (const auto& [chosen, folder] :
         {std::pair{"~/games", "/home/otto/games"}, std::pair{"~", "/home/otto"}, std::pair{"~/", "/home/otto/"},
          std::pair{"/a/~/b", "/a/~/b"}, std::pair{"~else/x", "~else/x"}, std::pair{"x~/y", "x~/y"}}) {
        const Variable variable("PLASMOS_DATA", chosen);
        EXPECT_EQ(DataFolderPath(), folder);
    }
}

TEST(Platform, WithoutAHomeInTheEnvironmentTheAccountHasOne) {
    const Variable data("XDG_DATA_HOME", nullptr);
    const std::string account = getpwuid(getuid())->pw_dir;
    for (const char* home : {static_cast<const char*>(nullptr), ""}) {
        const Variable variable("HOME", home);
        const Variable chosen("PLASMOS_DATA", nullptr);
        EXPECT_EQ(DataFolderPath(), account + "/.local/share/QX/Plasmo6");
        const Variable tilde("PLASMOS_DATA", "~/x");
        EXPECT_EQ(DataFolderPath(), account + "/x");
    }
}

TEST(Platform, DateAndTimeAreWrittenYearFirst) {
    EXPECT_THAT(DateAndTime(), MatchesRegex("[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}"));
}

TEST(Platform, SecondsSinceMidnightStayInsideADay) {
    EXPECT_GE(SecondsSinceMidnight(), 0);
    EXPECT_LT(SecondsSinceMidnight(), 86401);
}

}  // namespace
}  // namespace plasmos::testing
