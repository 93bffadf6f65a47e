// SPDX-License-Identifier: GPL-3.0-or-later
// A real disk that is full, forbidden, gone or full of somebody else's things.
#include <gmock/gmock.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <thread>
#include <vector>

#include "flow/play_game.h"
#include "flow/start.h"
#include "model/services.h"
#include "rules/movement.h"
#include "tests/files/disk_trouble.h"
#include "tests/support/most_bytes.h"

namespace plasmos::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST_F(DiskTrouble, AForbiddenPlaceForTheFolderIsNamedAndNoGameBegins) {
    fs::permissions(Home(), fs::perms(0555));
    const AsNobody nobody;
    services.Files = &files;
    EXPECT_THAT(PrepareDataFolder(), AllOf(HasSubstr("Permission denied"), HasSubstr(folder)));
    EXPECT_THAT(BoxesOfAGame(), ElementsAre(AllOf(HasSubstr("Permission denied"), HasSubstr(folder))));
    EXPECT_EQ(game.Turn, 0);
}

TEST_F(DiskTrouble, AReadOnlyFolderIsNamedAndTheNextGameWorks) {
    files.MakeFolder();
    fs::permissions(folder, fs::perms(0555));
    {
        const AsNobody nobody;
        EXPECT_THAT(BoxesOfAGame(),
                    ElementsAre(HasSubstr("Error #70: Permission denied: " + files.PathOf(MoveFile) + " (")));
    }
    fs::permissions(folder, fs::perms(0755));
    EXPECT_THAT(BoxesOfAGame(), IsEmpty());
    EXPECT_EQ(game.Turn, LastTurn + 1);
}

TEST_F(DiskTrouble, AFolderDeletedInTheMiddleOfAGameIsMadeAgain) {
    files.MakeFolder();
    fs::remove_all(Home() + "/QX");
    TwoDrift();
    EXPECT_EQ(game.Amoeba[1][1].Square, 8);
    EXPECT_EQ(game.Amoeba[1][2].Square, 10);
    EXPECT_THAT(Bytes(MoveFile), AllOf(HasSubstr("Amoeba 1, 1 moving to square 8"), HasSubstr("moving to square 10")));
    EXPECT_FALSE(files.Exists(ErrorFile));
}

TEST_F(DiskTrouble, AFolderThatCannotBeMadeAgainLeavesThePiecesWhereTheyAre) {
    files.MakeFolder();
    fs::remove_all(Home() + "/QX");
    fs::permissions(Home(), fs::perms(0555));
    const AsNobody nobody;
    TwoDrift();
    EXPECT_EQ(game.Amoeba[1][1].Square, 7);
    EXPECT_EQ(game.Amoeba[1][2].Square, 9);
    EXPECT_THAT(board_.LogLines,
                ::testing::Contains(AllOf(HasSubstr("A1 stays in 7: "), HasSubstr(files.PathOf(MoveFile)))));
}

TEST_F(DiskTrouble, AFolderInTheMoveFilesPlaceIsNamedEvenWhereTheErrorFileIsOneToo) {
    files.MakeFolder();
    fs::create_directory(files.PathOf(ErrorFile));
    fs::create_directory(files.PathOf(MoveFile));
    EXPECT_THAT(BoxesOfAGame(), ElementsAre(AllOf(HasSubstr("Error #75"), HasSubstr(files.PathOf(MoveFile)))));
    fs::remove(files.PathOf(MoveFile));
    EXPECT_THAT(BoxesOfAGame(), IsEmpty());
}

TEST_F(DiskTrouble, AMoveFileThatMayNotGrowLeavesThePiecesWhereTheyAre) {
    files.MakeFolder();
    Lay(MoveFile, "as it was\r\n");
    {
        const MostBytes most(20);
        TwoDrift();
    }
    EXPECT_EQ(game.Amoeba[1][1].Square, 7);
    EXPECT_EQ(game.Amoeba[1][2].Square, 9);
    EXPECT_EQ(Bytes(MoveFile), "as it was\r\n");
    EXPECT_THAT(board_.LogLines, ::testing::Contains(HasSubstr("A1 stays in 7: Disk full: ")));
}

TEST_F(DiskTrouble, AMoveFileThatTurnsIntoAPipeIsNotWaitedFor) {
    files.MakeFolder();
    ASSERT_EQ(mkfifo(files.PathOf(MoveFile).c_str(), 0666), 0);
    TwoDrift();
    EXPECT_EQ(game.Amoeba[1][1].Square, 7);
    EXPECT_EQ(game.Amoeba[1][2].Square, 9);
    EXPECT_THAT(Bytes(ErrorFile), AllOf(HasSubstr("Player: 1 (Player 1)  Moeba: 1\r\n"),
                                        HasSubstr("Error #75: Path/File access error: " + files.PathOf(MoveFile))));
}

/// A disk of 64 KiB, where the tests may make one.
class SmallDisk : public DiskTrouble {
protected:
    void SetUp() override {
        files.MakeFolder();
        mounted_ = mount("none", folder.c_str(), "tmpfs", 0, "size=64k,mode=755") == 0;
        if (!mounted_) {
            GTEST_SKIP() << "a disk cannot be mounted here";
        }
    }
    ~SmallDisk() override {
        if (mounted_) {
            EXPECT_EQ(umount(folder.c_str()), 0);
        }
    }
    /// Leaves so many bytes free, up to a block of 4096.
    void FillUpTo(int bytes) {
        std::ofstream rest(folder + "/rest", std::ios::binary);
        while (rest << std::string(1024, 'x') << std::flush) {
        }
        fs::resize_file(folder + "/rest", fs::file_size(folder + "/rest") - static_cast<unsigned>(bytes));
    }

private:
    bool mounted_ = false;
};

TEST_F(SmallDisk, AGameThatCannotBeginSaysWhatIsFullAndLeavesNoHalfFile) {
    FillUpTo(0);
    EXPECT_THAT(BoxesOfAGame(), ElementsAre(AllOf(HasSubstr("Error #61: Disk full"), HasSubstr(folder))));
    std::vector<std::string> left;
    for (const auto& entry : fs::directory_iterator(folder)) {
        left.push_back(entry.path().filename().string());
    }
    EXPECT_THAT(left, ::testing::UnorderedElementsAre("rest", "movefil.txt", "errfile.txt"));
    fs::remove(folder + "/rest");
    EXPECT_THAT(BoxesOfAGame(), IsEmpty());
}

TEST_F(SmallDisk, AFileThatDoesNotFitLeavesTheOldOne) {
    files.Rewrite(OptionsFile, "old\n");
    EXPECT_EQ(ErrorOf([&] { files.Rewrite(OptionsFile, std::string(100000, 'x')); }), 61);
    EXPECT_EQ(Bytes(OptionsFile), "old\r\n");
}

TEST_F(SmallDisk, MovesGoOnWhenThereIsRoomAgain) {
    FillUpTo(0);
    TwoDrift();
    EXPECT_EQ(game.Amoeba[1][1].Square, 7);
    fs::remove(folder + "/rest");
    MovementPhase();
    EXPECT_EQ(game.Amoeba[1][1].Square, 8);
    EXPECT_EQ(game.Amoeba[1][2].Square, 10);
}

TEST_F(DiskTrouble, TwoWritersDoNotGetInEachOthersWay) {
    files.MakeFolder();
    const auto write = [this](const char* text) {
        DataFolder mine(folder);
        for (int i = 0; i < 300; ++i) {
            mine.Rewrite(MoveFile, text);
            mine.Append(RandomFile, text);
        }
    };
    std::thread other([&] { EXPECT_NO_THROW(write("other\n")); });
    EXPECT_NO_THROW(write("mine\n"));
    other.join();
    EXPECT_THAT(Bytes(MoveFile), ::testing::AnyOf("mine\r\n", "other\r\n"));
    EXPECT_EQ(fs::file_size(files.PathOf(RandomFile)), 300 * (6 + 7));
}

}  // namespace
}  // namespace plasmos::testing
