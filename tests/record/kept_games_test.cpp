// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/kept_games.h"

#include <gmock/gmock.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "files/platform.h"
#include "record/play_record.h"
#include "record/record_file.h"
#include "tests/files/disk_trouble.h"
#include "tests/record/restless_robot.h"
#include "tests/support/game_fixture.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

class Kept : public GameTest {
protected:
    Kept() : folder_(fs::temp_directory_path() / Concat("plasmos-kept-", ProcessNumber())) {}
    ~Kept() override { fs::remove_all(folder_); }

    std::string Folder() const { return (folder_ / "Games").string(); }
    static std::string TextOf(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    fs::path folder_;
};

TEST_F(Kept, LineByLineAndGoneWhenItIsOver) {
    GameKeeper keeper(Folder());
    keeper.Begin("head\n");
    const std::string path = keeper.Path();
    EXPECT_EQ(TextOf(path), "head\n");
    keeper.Add("one\n");
    keeper.Add("two\nthree\n");
    EXPECT_EQ(TextOf(path), "head\none\ntwo\nthree\n");
    EXPECT_TRUE(keeper.IsKept());
    keeper.Remove();
    EXPECT_FALSE(fs::exists(path));
    EXPECT_FALSE(keeper.IsKept());
}

TEST_F(Kept, TheLatestTenAndNotTheOneThatIsPlayed) {
    GameKeeper played(Folder());
    played.Begin("played\n");
    GameKeeper keeper(Folder());
    for (int number = 1; number <= 14; ++number) {
        keeper.Begin(Concat("game ", number, "\n"));
    }
    EXPECT_EQ(KeptGames(Folder()).size(), MostKeptGames) << "the last one is still played";
    keeper.LetGo();
    const auto games = KeptGames(Folder());
    ASSERT_EQ(games.size(), MostKeptGames);
    EXPECT_EQ(TextOf(games.front().Path), "game 14\n");
    EXPECT_TRUE(IsPlayedElsewhere(played.Path()));
    EXPECT_TRUE(fs::exists(played.Path()));
}

// One that is gone on with is the oldest of eleven for a moment.
TEST_F(Kept, TheOneThatIsGoneOnWithStays) {
    GameKeeper keeper(Folder());
    for (int number = 1; number <= 11; ++number) {
        keeper.Begin(Concat("game ", number, "\n"));
    }
    const auto games = KeptGames(Folder());
    ASSERT_EQ(games.size(), MostKeptGames);
    const std::string oldest = games.back().Path;
    ASSERT_EQ(TextOf(oldest), "game 1\n");
    keeper.LetGo(oldest);
    EXPECT_EQ(TextOf(oldest), "game 1\n");
    keeper.GoOn(oldest, "game 1\n");
    EXPECT_EQ(TextOf(oldest), "game 1\n");
}

TEST_F(Kept, GoesOnInItsFile) {
    GameKeeper keeper(Folder());
    keeper.Begin("head\none\ncut of");
    const std::string path = keeper.Path();
    keeper.LetGo();
    keeper.GoOn(path, "head\none\n");
    keeper.Add("two\n");
    EXPECT_EQ(TextOf(path), "head\none\ntwo\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(Folder()), fs::directory_iterator()), 1);
}

struct Trouble {
    std::string_view Name;
    std::string Before, After;  ///< shell commands with $GAMES
    std::string Told;
};

void PrintTo(const Trouble& row, std::ostream* out) {
    *out << row.Name;
}

class Troubled : public Kept, public ::testing::WithParamInterface<Trouble> {
protected:
    void Shell(const std::string& command) const {
        ASSERT_EQ(std::system(Concat("GAMES='", Folder(), "'; ", command).c_str()), 0);
    }
};

TEST_P(Troubled, IsToldOnceAndKeptAgainWhenItCan) {
    fs::create_directories(fs::path(Folder()).parent_path());
    GameKeeper keeper(Folder());
    std::vector<std::string> told;
    keeper.OnFault = [&told](const std::string& fault) { told.push_back(fault); };
    Shell(GetParam().Before);
    keeper.Begin("head\n");
    keeper.Add("one\n");
    keeper.Add("two\n");
    ASSERT_EQ(told.size(), 1U);
    EXPECT_THAT(told.front(), HasSubstr(GetParam().Told));
    EXPECT_FALSE(keeper.IsKept());
    Shell(GetParam().After);
    keeper.Add("three\n");
    EXPECT_TRUE(keeper.IsKept());
    EXPECT_EQ(TextOf(keeper.Path()), "head\none\ntwo\nthree\n");
    EXPECT_EQ(told.size(), 1U);
}

const Trouble Troubles[] = {
    {"a_file_in_the_way", "echo mine >\"$GAMES\"", "rm \"$GAMES\"", "cannot be kept in"},
    {"a_link_to_nowhere", "ln -s /nowhere/at/all \"$GAMES\"", "rm \"$GAMES\"", "cannot be kept in"},
};
INSTANTIATE_TEST_SUITE_P(Games, Troubled, ::testing::ValuesIn(Troubles), RowName());

TEST_F(Kept, AFolderThatIsTakenAwayIsMadeAgain) {
    GameKeeper keeper(Folder());
    keeper.Begin("head\n");
    fs::remove_all(Folder());
    keeper.Add("one\n");
    EXPECT_EQ(TextOf(keeper.Path()), "head\none\n");
    fs::remove(keeper.Path());
    keeper.Add("two\n");
    EXPECT_EQ(TextOf(keeper.Path()), "head\none\ntwo\n");
}

TEST_F(Kept, AFullDiskLeavesWholeLinesAndIsCaughtUpWith) {
    GameKeeper keeper(Folder());
    int told = 0;
    keeper.OnFault = [&told](const std::string&) { ++told; };
    keeper.Begin("head\n");
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &usual), 0);
    const rlimit full{20, usual.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &full), 0);
    keeper.Add("one\n");
    const std::string path = keeper.Path();
    for (int input = 0; input < 5; ++input) {
        keeper.Add("an input that is too long\n");
        EXPECT_EQ(TextOf(path), "head\none\n") << "no half a line, and nothing is lost";
    }
    EXPECT_EQ(told, 1);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &usual), 0);
    std::signal(SIGXFSZ, before);
    keeper.Add("two\n");
    EXPECT_TRUE(keeper.IsKept());
    EXPECT_EQ(TextOf(keeper.Path()).size(), 5 + 4 + 5 * 26 + 4U);
}

TEST_F(Kept, AFolderThatMayNotBeWrittenToIsCaughtUpWith) {
    fs::create_directories(Folder());
    fs::permissions(fs::path(Folder()).parent_path(), fs::perms(0755));
    fs::permissions(Folder(), fs::perms(0555));
    GameKeeper keeper(Folder());
    std::vector<std::string> told;
    keeper.OnFault = [&told](const std::string& fault) { told.push_back(fault); };
    {
        const AsNobody nobody;
        keeper.Begin("head\n");
        keeper.Add("one\n");
    }
    ASSERT_EQ(told.size(), 1U);
    EXPECT_THAT(told.front(), HasSubstr("Permission denied"));
    fs::permissions(Folder(), fs::perms(0777));
    {
        const AsNobody nobody;
        keeper.Add("two\n");
    }
    EXPECT_TRUE(keeper.IsKept());
    EXPECT_EQ(TextOf(keeper.Path()), "head\none\ntwo\n");
}

// ---- a process that is killed ----

/// What a game has come to, where another process can read it.
struct Progress {
    std::atomic<int> Given = 0;  ///< inputs that were written down
};

/// Plays games and keeps them, until somebody kills it.
[[noreturn]] void PlayUntilKilled(const std::string& folder, int number, Progress& progress) {
    GameKeeper keeper(folder);
    for (;; number += 1000) {
        SetUpRestlessGame(number);
        Robot robot(static_cast<std::uint64_t>(number), 1);
        GameRecorder recorder;
        bool begun = false;
        recorder.OnText = [&](std::string_view lines) {
            if (begun) {
                keeper.Add(lines);
            } else {
                keeper.Begin(std::string(lines));
            }
            begun = true;
            progress.Given = static_cast<int>(recorder.Inputs.size());
        };
        services.Window = &robot;
        services.Listener = &recorder;
        progress.Given = 0;
        PlayOrLeave();
        progress.Given = 0;
        keeper.Remove();
    }
}

TEST_F(Kept, KilledAtAnyMomentLosesTheInputInHandAtMost) {
    auto* progress =
        new (::mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)) Progress;
    Pcg32 chance;
    chance.Seed(3, 5);
    int resumed = 0;
    for (int kill = 1; kill <= Scaled(500); ++kill) {
        SCOPED_TRACE(kill);
        progress->Given = 0;
        const pid_t child = ::fork();
        if (child == 0) {
            PlayUntilKilled(Folder(), kill, *progress);
        }
        ::usleep(500 + chance.Next() % 12000);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const int given = progress->Given;
        const auto games = KeptGames(Folder());
        ASSERT_TRUE(given == 0 || games.size() == 1U) << given << ": what has been put in is in a file";
        for (const KeptGame& kept : games) {
            ReadRecord read = ReadRecordFile(kept.Path);
            if (!read.HasHead) {
                ASSERT_EQ(given, 0) << read.Fault.Told() << ": nothing had been put in yet";
            } else {
                const PlayedRecord played = PlayRecordApart(read.Record);
                ASSERT_EQ(played.Fault, "");
                ASSERT_GE(played.Sound + 1, static_cast<std::size_t>(given));
                ++resumed;
            }
            fs::remove(kept.Path);
        }
    }
    EXPECT_GT(resumed, Scaled(500) / 10);
    ::munmap(progress, sizeof(Progress));
}

}  // namespace
}  // namespace plasmos::testing
