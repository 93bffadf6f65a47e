// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever may stand in a data file's place, wherever a write may be cut off, whenever a writer may die.
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <new>

#include "files/file_draft.h"
#include "model/services.h"
#include "model/trace.h"
#include "tests/support/most_bytes.h"
#include "tests/support/on_disk.h"
#include "tests/support/terminal.h"

namespace plasmos::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;

constexpr std::string_view AllFiles[] = {NamesFile, MoveFile, RandomFile, ErrorFile, OptionsFile};

std::vector<std::string> NamesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    return names;
}

/// What stands in a file's place, and the errors of reading, of appending and of replacing it; 0: it works.
struct PlaceRow {
    std::string_view Name;
    void (*Lay)(const std::string& path);
    int Reading;
    int Appending;
    int Replacing;
};
void PrintTo(const PlaceRow& row, std::ostream* out) {
    *out << row.Name;
}
class OddPlaces : public OnDisk, public ::testing::WithParamInterface<PlaceRow> {
protected:
    template <class Operation>
    void Expect(int number, std::string_view file, Operation operation) {
        files.MakeFolder();
        GetParam().Lay(files.PathOf(file));
        try {
            operation();
            EXPECT_EQ(number, 0) << file;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number, number) << file << ": " << error.what();
            EXPECT_THAT(error.what(), HasSubstr(files.PathOf(file)));
        }
        fs::remove_all(Home() + "/QX");
        fs::remove_all(Home() + "/elsewhere");
    }
};

TEST_P(OddPlaces, AreToldAtOnceWhateverTheFile) {
    for (const auto file : AllFiles) {
        Expect(GetParam().Reading, file, [&] { files.ReadLines(file, 10); });
        Expect(GetParam().Appending, file, [&] { files.Append(file, "a line\n"); });
        Expect(GetParam().Replacing, file, [&] { files.Rewrite(file, "a line\n"); });
    }
}

void LayFolder(const std::string& path) {
    fs::create_directory(path);
}
void LayPipe(const std::string& path) {
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
}
void LaySocket(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const DiskFile socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    ASSERT_EQ(bind(socket.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
}
std::string Elsewhere(const std::string& path) {
    return (fs::path(path).parent_path() / "../../elsewhere").lexically_normal().string();
}
void LayLinkToPipe(const std::string& path) {
    LayPipe(Elsewhere(path));
    fs::create_symlink(Elsewhere(path), path);
}

void LayDevice(const std::string& path) {
    static const Terminal terminal;
    fs::create_symlink(terminal.Path(), path);
}

const PlaceRow PlaceRows[] = {
    {"nothing", [](const std::string&) {}, 53, 0, 0},
    {"a_file", [](const std::string& path) { std::ofstream(path) << "old\n"; }, 0, 0, 0},
    {"a_folder", LayFolder, 75, 75, 75},
    {"a_pipe", LayPipe, 75, 75, 75},
    {"a_link_to_a_pipe", LayLinkToPipe, 75, 75, 75},
    {"a_socket", LaySocket, 75, 75, 75},
    {"a_device", LayDevice, 75, 75, 75},
    {"a_link_to_a_file",
     [](const std::string& path) {
         std::ofstream(Elsewhere(path)) << "old\n";
         fs::create_symlink(Elsewhere(path), path);
     },
     0, 0, 0},
    {"a_link_to_nothing", [](const std::string& path) { fs::create_symlink(Elsewhere(path), path); }, 53, 0, 0},
    {"a_link_into_a_missing_folder",
     [](const std::string& path) { fs::create_symlink(Elsewhere(path) + "/no/file", path); }, 76, 76, 76},
    {"a_link_to_itself", [](const std::string& path) { fs::create_symlink(path, path); }, 75, 75, 75},
    {"a_missing_folder", [](const std::string& path) { fs::remove(fs::path(path).parent_path()); }, 76, 76, 76},
    {"two_missing_folders", [](const std::string& path) { fs::remove_all(fs::path(path).parent_path().parent_path()); },
     76, 76, 76},
    {"a_file_as_the_folder",
     [](const std::string& path) {
         const auto folder = fs::path(path).parent_path();
         fs::remove(folder);
         std::ofstream(folder) << "in the way";
     },
     76, 76, 76},
};
INSTANTIATE_TEST_SUITE_P(Files, OddPlaces, ::testing::ValuesIn(PlaceRows), RowName());

TEST_F(OnDisk, AFileReplacedThroughALinkLeavesTheLink) {
    files.MakeFolder();
    std::ofstream(Home() + "/elsewhere") << "old";
    fs::create_symlink(Home() + "/elsewhere", files.PathOf(OptionsFile));
    files.Rewrite(OptionsFile, "new\n");
    EXPECT_TRUE(fs::is_symlink(files.PathOf(OptionsFile)));
    EXPECT_EQ(Bytes(OptionsFile), "new\r\n");
    EXPECT_THAT(NamesIn(Home()), UnorderedElementsAre("QX", "elsewhere"));
}

/// The files that lines are added to, and one of their lines.
struct AppendRow {
    std::string_view Name;
    std::string_view File;
    std::string Line;
};
void PrintTo(const AppendRow& row, std::ostream* out) {
    *out << row.Name;
}
class CutOffLines : public OnDisk, public ::testing::WithParamInterface<AppendRow> {};

TEST_P(CutOffLines, AreTakenBackWhereverTheDiskIsFull) {
    files.MakeFolder();
    const auto add = [this] { files.Append(GetParam().File, GetParam().Line); };
    add();
    const std::string line = Bytes(GetParam().File);
    ASSERT_FALSE(line.empty());
    for (std::size_t part = 0; part < line.size(); ++part) {
        {
            const MostBytes most(static_cast<unsigned>(line.size() + part));
            EXPECT_EQ(ErrorOf(add), 61);
        }
        ASSERT_EQ(Bytes(GetParam().File), line) << "cut off after " << part;
    }
    add();
    EXPECT_EQ(Bytes(GetParam().File), line + line) << "there is room again";
}

const AppendRow AppendRows[] = {
    {"a_move", MoveFile, "Turn: 2   Amoeba 1, 1 moving to square 8\n"},
    {"a_position", MoveFile, "position 7\n\n"},
    {"a_random_number", RandomFile, "6\n"},
    {"an_error_record", ErrorFile, ErrorRecord(RuntimeError(9, "Subscript out of range"), 1, 2)},
};
INSTANTIATE_TEST_SUITE_P(Lines, CutOffLines, ::testing::ValuesIn(AppendRows), RowName());

TEST_F(OnDisk, AReplacementThatIsCutOffLeavesTheOldFile) {
    files.MakeFolder();
    files.Rewrite(OptionsFile, "old\n");
    for (unsigned most = 0; most < 12; ++most) {
        const MostBytes limit(most);
        EXPECT_EQ(ErrorOf([&] { files.Rewrite(OptionsFile, "a longer text\n"); }), 61) << most;
    }
    EXPECT_EQ(Bytes(OptionsFile), "old\r\n");
    EXPECT_THAT(NamesIn(folder), UnorderedElementsAre("Opts.txt"));
}

TEST_F(OnDisk, DraftsOfAKilledProgramGoAndThoseOfALivingOneStay) {
    files.MakeFolder();
    for (const auto file : {NamesFile, MoveFile, OptionsFile}) {
        const pid_t killed = fork();
        if (killed == 0) {
            FileDraft draft;
            _exit(draft.Open(files.PathOf(file)));
        }
        int status = 0;
        waitpid(killed, &status, 0);
        EXPECT_EQ(status, 0);
    }
    FileDraft living;
    EXPECT_EQ(living.Open(files.PathOf(MoveFile)), 0);
    EXPECT_EQ(living.Write("whole"), 0);
    for (const auto* mine :
         {"Opts.txt.new", "movefil.txt.2026-07.new", "movefil.txt.1-x.new", "zynames.txt.1-2.new.txt"}) {
        std::ofstream(folder + "/" + mine) << "mine";
    }
    EXPECT_EQ(NamesIn(folder).size(), 8U);
    files.MakeFolder();
    EXPECT_EQ(NamesIn(folder).size(), 5U);
    EXPECT_EQ(living.Commit(), 0);
    EXPECT_THAT(NamesIn(folder), UnorderedElementsAre("movefil.txt", "Opts.txt.new", "movefil.txt.2026-07.new",
                                                      "movefil.txt.1-x.new", "zynames.txt.1-2.new.txt"));
    EXPECT_EQ(Bytes(MoveFile), "whole");
}

/// Files that fail by something else than an error of the game.
class BrokenFiles : public GameFiles {
public:
    std::string PathOf(std::string_view name) const override { return std::string(name); }
    void MakeFolder() override {}
    bool Exists(std::string_view) const override { return false; }
    void Append(std::string_view, std::string_view) override { throw std::bad_alloc(); }
    void Rewrite(std::string_view, std::string_view) override {}
    std::vector<std::string> ReadLines(std::string_view, int) const override { return {}; }
};

class ErrorRecordsOnDisk : public OnDisk {
protected:
    /// What goes to standard error when a record is appended.
    std::string Appended() {
        ::testing::internal::CaptureStderr();
        EXPECT_NO_THROW(AppendErrorRecord(RuntimeError(9, "Subscript out of range"), 1, 2));
        return ::testing::internal::GetCapturedStderr();
    }
};

TEST_F(ErrorRecordsOnDisk, AreWrittenInAFolderThatSomebodyDeleted) {
    services.Files = &files;
    EXPECT_EQ(Appended(), "");
    EXPECT_THAT(Bytes(ErrorFile), HasSubstr("Error #9: Subscript out of range"));
}

TEST_F(ErrorRecordsOnDisk, NeverFailWhateverTheFilesDo) {
    BrokenFiles broken;
    services.Files = &broken;
    EXPECT_THAT(Appended(), AllOf(HasSubstr("errfile.txt"), HasSubstr("Error #9: Subscript out of range")));
    files.MakeFolder();
    LayPipe(files.PathOf(ErrorFile));
    services.Files = &files;
    EXPECT_THAT(Appended(), AllOf(HasSubstr(files.PathOf(ErrorFile)), HasSubstr("Error #9: Subscript out of range")));
}

}  // namespace
}  // namespace plasmos::testing
