// SPDX-License-Identifier: GPL-3.0-or-later
//
// Records of games in which the disk or the rules failed, and records that do not fit their games.
#include <gmock/gmock.h>

#include <stdexcept>
#include <utility>

#include "tests/record/recorded_game.h"
#include "tests/support/memory_files.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

using ::testing::HasSubstr;
using RecordFaults = Records;

// ---- the disk ----

/// A disk on which many a line of a move finds no room: its first line or its second.
class SometimesFull : public MemoryFiles {
public:
    int Lost = 0;

    void Append(std::string_view name, std::string_view text) override {
        if (Failures == 0 && NextIsLost(text)) {
            Failures = 3;
            ++Lost;
        }
        MemoryFiles::Append(name, text);
    }

private:
    bool NextIsLost(std::string_view text) {
        const bool begins = text.find(" moving to square ") != std::string_view::npos;
        const bool follows = std::exchange(begun_, begins);
        return (begins && ++moves_ % 41 == 0) || (follows && moves_ % 29 == 0);
    }

    int moves_ = 0;
    bool begun_ = false;
};

// A piece whose line cannot be written stays where it is; played again it stays there on a sound disk, and without one.
TEST_F(RecordFaults, LoseTheLinesThatTheDiskLost) {
    int lost = 0;
    for (int number = 1; number <= Scaled(8); ++number) {
        SetUpRestlessGame(number);
        Journal journal;
        journal.Start();
        Robot robot(static_cast<std::uint64_t>(number), 1);
        GameRecorder recorder(&journal);
        {
            SometimesFull disk;
            services.Window = &robot;
            services.Listener = &recorder;
            PlayOrLeave();
            lost += disk.Lost;
            services = {};
        }
        const ReadRecord read = ParseRecord(RecordText(recorder.Record()));
        ASSERT_EQ(read.Fault.Told(), "");
        for (const bool files : {false, true}) {
            MemoryFiles disk;
            services.Files = files ? &disk : nullptr;
            Journal again;
            again.Start();
            const PlayedRecord played = PlayRecord(read.Record, &again);
            ASSERT_EQ(played.Fault, "");
            ASSERT_EQ(FirstDifference(again.Text(), journal.Text()), "") << number;
            ASSERT_EQ(disk.Errors(), "") << "what was lost then has been recorded then";
        }
    }
    EXPECT_GT(lost, Scaled(8));
}

// ---- the rules ----

/// A game in which something breaks down after a number of inputs, as by a fault in the rules.
class Breaking : public PassingObserver {
public:
    explicit Breaking(std::size_t inputs) : PassingObserver(nullptr), left_(inputs) {}

    bool WantsText() const override { return true; }
    void OnInput(const Question&, const Answer&) override { left_ -= left_ > 0 ? 1 : 0; }
    void OnHappening(const Happening&) override {
        if (left_ == 0) {
            throw std::logic_error("a wheel has come off");
        }
    }

private:
    std::size_t left_;
};

// What led to it is not put in again, so that whoever opens the game stands before it.
TEST_F(RecordFaults, ThatBreakDownAreSoundUpToTheInputBefore) {
    std::string journal;
    const GameRecord record = Play(4, journal);
    ::testing::internal::CaptureStderr();
    Breaking listener(20);
    const PlayedRecord played = PlayRecord(record, &listener);
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), HasSubstr("a wheel has come off"));
    EXPECT_TRUE(played.Broken);
    EXPECT_TRUE(played.HeadFits);
    EXPECT_GE(played.Sound, 19U);
    EXPECT_LT(played.Sound, record.Inputs.size());
    EXPECT_THAT(played.Fault, HasSubstr("the game cannot go on behind this line"));
    GameRecord sound = record;
    sound.Inputs.resize(played.Sound);
    Breaking again(20);
    EXPECT_FALSE(PlayRecord(sound, &again).Broken);
}

TEST_F(RecordFaults, ThatBreakDownAtOnceAreNotOpened) {
    std::string journal;
    const GameRecord record = Play(4, journal);
    ::testing::internal::CaptureStderr();
    Breaking listener(0);
    const PlayedRecord played = PlayRecord(record, &listener);
    ::testing::internal::GetCapturedStderr();
    EXPECT_TRUE(played.Broken);
    EXPECT_FALSE(played.HeadFits);
    EXPECT_EQ(played.Sound, 0U);
}

// ---- records that do not fit ----

TEST_F(RecordFaults, SayWhereTheyDoNotFit) {
    std::string journal;
    const GameRecord record = Play(4, journal);
    const auto signature = PlayRecordApart(record).State.Signature;
    std::size_t found = 0;
    std::size_t tried = 0;
    for (std::size_t missing = 0; missing + 1 < record.Inputs.size(); ++missing, ++tried) {
        GameRecord other = record;
        other.Inputs.erase(other.Inputs.begin() + static_cast<std::ptrdiff_t>(missing));
        const PlayedRecord played = PlayRecordApart(other);
        EXPECT_LE(played.Sound, other.Inputs.size());
        EXPECT_GE(played.Sound, missing) << "what stands above is sound";
        found += played.Fault.empty() ? 0U : 1U;
        EXPECT_TRUE(!played.Fault.empty() || played.State.Signature == signature)
            << missing << ": what was missing changed nothing, such as a mark that was taken away again";
    }
    EXPECT_GT(found, tried / 2);
}

TEST_F(RecordFaults, OfOtherClansAreRefused) {
    std::string journal;
    GameRecord record = Play(4, journal);
    record.Head.How = RecordHead::ClansAre::Asked;
    record.Inputs.insert(record.Inputs.begin(),
                         InputOf(Numbered(Answer::Kind::Number, record.Head.Clans == 4 ? 3 : 4)));
    const PlayedRecord played = PlayRecordApart(record);
    EXPECT_FALSE(played.HeadFits);
    EXPECT_THAT(played.Fault, HasSubstr("clans, and"));
}

}  // namespace
}  // namespace plasmos::testing
