// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/play_record.h"

#include <gtest/gtest.h>

#include "tests/record/recorded_game.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

/// Goes on with whoever was window and listener before, as soon as a question is left open.
class PlayUpTo : public InputPlayer {
public:
    using InputPlayer::InputPlayer;

protected:
    void Exhausted(Question&) override { HandBack(); }
};

/// The rest of a game after its first inputs have been played from a file.
std::string PlayOn(const GameRecord& game, std::size_t cut) {
    GameRecord begun = game;
    begun.Inputs.resize(cut);
    const ReadRecord read = ParseRecord(RecordText(begun));
    EXPECT_EQ(read.Fault.Told(), "");
    Journal journal;
    journal.Start();
    BeginAs(read.Record.Head);
    InputPlayer person(game.Inputs, &journal, cut);
    PlayUpTo opened(read.Record.Inputs, &person);
    PlayOrLeave();
    return journal.Text();
}

TEST_F(Records, AreCutAnywhereAndGoneOnWith) {
    std::size_t cuts = 0;
    int refused = 0;
    for (int number = 1; number <= Scaled(120); ++number) {
        SCOPED_TRACE(number);
        std::string journal;
        const GameRecord record = Play(number, journal);
        for (const Input& input : record.Inputs) {
            refused += input.Refused ? 1 : 0;
        }
        for (std::size_t cut = static_cast<std::size_t>(number % 10); cut <= record.Inputs.size(); cut += 10, ++cuts) {
            ASSERT_EQ(FirstDifference(PlayOn(record, cut), journal), "") << cut;
            services = {};
        }
    }
    EXPECT_GT(cuts, static_cast<std::size_t>(Scaled(120)) * 5);
    EXPECT_GT(refused, Scaled(120));
}

TEST_F(Records, GrowLineByLineToTheirWholeText) {
    for (int number = 1; number <= Scaled(100); ++number) {
        std::string journal;
        GameRecord record = Play(number, journal);
        DropLeaving(record.Inputs);
        ASSERT_EQ(text_, RecordText(record)) << number;
    }
}

TEST_F(Records, ComeBackAsTheyWereWritten) {
    for (int number = 1; number <= Scaled(200); ++number) {
        std::string journal;
        const GameRecord record = Play(number, journal);
        const ReadRecord read = ParseRecord(RecordText(record));
        ASSERT_EQ(read.Fault.Told(), "");
        ASSERT_EQ(read.Record.Head, record.Head);
        ASSERT_EQ(read.Record.Inputs, record.Inputs);
    }
}

// Nobody reads the message line in a game without a window, nor when it is played again.
TEST_F(Records, AreWhatTheirJournalTells) {
    for (int number = 1; number <= Scaled(100); ++number) {
        SetUpRestlessGame(number);
        Journal journal;
        journal.Start();
        Robot robot(static_cast<std::uint64_t>(number), 1);
        GameRecorder recorder(&journal);
        services.Window = &robot;
        services.Listener = &recorder;
        PlayOrLeave();
        services = {};
        Journal again;
        again.Start();
        const PlayedRecord played = PlayRecord(recorder.Record(), &again);
        ASSERT_EQ(played.Fault, "");
        ASSERT_TRUE(played.Over);
        ASSERT_EQ(FirstDifference(again.Text(), journal.Text()), "") << number;
    }
}

TEST_F(Records, PlayedApartLeaveTheCurrentGameAlone) {
    std::string journal;
    const GameRecord record = Play(3, journal);
    SetUpRestlessGame(5);
    ResetTables();
    game.Turn = 7;
    const PlayedRecord played = PlayRecordApart(record);
    EXPECT_EQ(played.Sound, record.Inputs.size());
    EXPECT_EQ(played.State.NumPlayers, record.Head.Clans);
    EXPECT_EQ(game.Turn, 7);
    EXPECT_EQ(game.NumPlayers, 0);
}

TEST_F(Records, HaveTheNamesThatWereDealt) {
    std::string journal;
    GameRecord record = Play(2, journal);
    record.Head.Names.Clans[0].Name = "The \"Old\" Ones \\";
    record.Head.Names.Clans[0].Pieces[0] = "Ög \"the\" first";
    const ReadRecord read = ParseRecord(RecordText(record));
    EXPECT_EQ(read.Fault.Told(), "");
    const PlayedRecord played = PlayRecordApart(read.Record);
    EXPECT_EQ(played.State.Players[1].Name, "The \"Old\" Ones \\");
    EXPECT_EQ(played.State.Amoeba[1][1].Name, "Ög \"the\" first");
}

TEST_F(Records, ShowEveryMoment) {
    std::string journal;
    SetUpRestlessGame(6);
    std::vector<GameState> moments;
    RestlessRobot robot(6, nullptr);
    GameRecorder recorder(&robot);
    recorder.OnMoment = [&moments](int) { moments.push_back(game); };
    services.Window = &robot;
    services.Listener = &recorder;
    PlayOrLeave();
    services = {};
    ASSERT_GT(moments.size(), 300U);
    for (std::size_t moment = 1; moment <= moments.size(); moment += 7) {
        const GameState then = StateAt(recorder.Record(), static_cast<int>(moment));
        const GameState& was = moments[moment - 1];
        ASSERT_EQ(then.Signature, was.Signature) << moment;
        ASSERT_EQ(then.Turn, was.Turn);
        ASSERT_EQ(then.Phase, was.Phase);
        ASSERT_EQ(then.PlayOrder, was.PlayOrder);
        ASSERT_EQ(then.BP, was.BP);
        ASSERT_EQ(then.Food, was.Food);
        ASSERT_EQ(then.AmoebaCount, was.AmoebaCount);
    }
}

TEST_F(Records, KnowTheirChapters) {
    std::string journal;
    SetUpRestlessGame(6);
    RestlessRobot robot(6, nullptr);
    GameRecorder recorder(&robot);
    services.Window = &robot;
    services.Listener = &recorder;
    PlayOrLeave();
    const auto& chapters = recorder.Chapters();
    ASSERT_GT(chapters.size(), 12U);
    const std::string_view phases[] = {"Movement", "Environment", "New genes", "Division", "Aggression", "Scoring"};
    EXPECT_EQ(chapters[0].Turn, 0);
    for (std::size_t i = 1; i < chapters.size(); ++i) {
        EXPECT_EQ(chapters[i].Turn, static_cast<int>(i - 1) / 6 + 1) << i;
        EXPECT_EQ(chapters[i].Phase, phases[(i - 1) % 6]) << i;
        EXPECT_GT(chapters[i].Moment, chapters[i - 1].Moment);
    }
    services = {};
}

}  // namespace
}  // namespace plasmos::testing
