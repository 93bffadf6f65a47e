// SPDX-License-Identifier: GPL-3.0-or-later
#include "flow/play_game.h"

#include <gmock/gmock.h>

#include "flow/scoring.h"
#include "flow/start.h"
#include "model/consistency.h"
#include "model/services.h"
#include "questions/ask.h"
#include "rules/aggression.h"
#include "rules/division.h"
#include "rules/environment.h"
#include "rules/movement.h"
#include "rules/new_genes.h"
#include "sim/robot.h"
#include "tests/support/game_fixture.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class PlayGameTest : public GameTest {
protected:
    PlayGameTest() {
        game.FastMode = true;
        game.HasRequestedReplay = true;
        game.RequestedReplay = 4711;
        game.RequestedClans = 3;
    }
    std::string WithoutDates(const std::string& text) const {
        constexpr std::string_view header = "Game: 4711 ";
        constexpr std::size_t dateAndTime = std::string_view("2000-01-01 00:00:00").size();
        std::string without = text;
        if (const auto found = text.find(header); found != std::string::npos) {
            without.replace(found + header.size(), dateAndTime, "DATE");
        }
        return without;
    }

    MemoryFiles files_;
};

TEST_F(PlayGameTest, TheMoveFileBeginsWithTheGamesHeader) {
    files_.Files["movefil.txt"] = "an earlier game";
    PlayUnattended();
    EXPECT_THAT(WithoutDates(files_.Files["movefil.txt"]),
                ::testing::AnyOf(::testing::StartsWith("\n\nGame: 4711 DATE\n\nposition "),
                                 ::testing::StartsWith("\n\nGame: 4711 DATE\n\nTurn: 1   Amoeba ")));
}

TEST_F(PlayGameTest, TwoGamesWithTheSameReplayNumberGiveEqualMoveFilesButForTheDate) {
    std::vector<std::string> moves;
    for (int time = 0; time < 2; ++time) {
        PlayUnattended();
        moves.push_back(WithoutDates(files_.Files["movefil.txt"]));
    }
    EXPECT_EQ(moves[0], moves[1]);
    EXPECT_GT(moves[0].size(), 1000U);
}

TEST_F(PlayGameTest, TwoGamesWithTheSameAnswersGiveEqualMoveFilesToo) {
    std::vector<std::string> moves;
    for (int time = 0; time < 2; ++time) {
        Robot robot(7, 1);
        services.Window = &robot;
        PlayGame();
        services.Window = nullptr;
        moves.push_back(WithoutDates(files_.Files["movefil.txt"]));
    }
    EXPECT_EQ(moves[0], moves[1]);
}

TEST_F(PlayGameTest, AGameHasTenTurnsAndLeavesTurnAt11) {
    ScriptedBoard board;
    PlayUnattended();
    EXPECT_EQ(game.Turn, 11);
    EXPECT_EQ(board.Phases.size(), 60U);
    EXPECT_THAT(std::vector<std::string>(board.Phases.begin(), board.Phases.begin() + 6),
                ElementsAre("Movement", "Environment", "New genes", "Division", "Aggression", "Scoring"));
    EXPECT_THAT(board.LogLines.front(), HasSubstr("Game: 4711 "));
    EXPECT_THAT(board.LogLines.back(), ::testing::EndsWith(" wins!"));
}

TEST_F(PlayGameTest, WithTheVictoryLimitItEndsAtTheTurnIn42Points) {
    game.Menu.victorymen = true;
    int early = 0;
    for (int replay = 1; replay <= 30; ++replay) {
        game.RequestedReplay = static_cast<float>(replay);
        PlayUnattended();
        const int leader = game.Players[game.PlayOrder[1]].Score;
        EXPECT_EQ(game.GameOver, leader >= 42);
        early += game.Turn <= 9 ? 1 : 0;
        EXPECT_TRUE(game.GameOver || game.Turn == 11);
    }
    EXPECT_GT(early, 0);
}

/// A fault forced in each phase: what the phase reads is put out of its bounds.
struct FaultRow {
    std::string_view Name;
    void (*Phase)();
    void (*Break)();
};
void PrintTo(const FaultRow& row, std::ostream* out) {
    *out << row.Name;
}
class PhaseFaults : public GameRows<FaultRow> {};

TEST_P(PhaseFaults, GiveOneRecordAndEndTheProgram) {
    NewPosition(4);
    MemoryFiles files;
    game.Turn = 3;
    game.ReplayNo = 12.5F;
    GetParam().Break();
    try {
        GetParam().Phase();
        FAIL() << "nothing happened";
    } catch (const ProgramEnd& end) {
        EXPECT_EQ(end.ExitCode, 1);
    }
    const auto record = files.Files["errfile.txt"];
    EXPECT_THAT(record, ::testing::MatchesRegex(
                            "ReplayNo: 12.5\nPlayer: [0-9]+ \\([^\n]*\\)  Moeba: [0-9]+\nTurn: [0-9]+   No. "
                            "Players: 4\nError #9: Subscript out of range\n\n\n"));
}

const FaultRow FaultRows[] = {
    {"Movement", MovementPhase, [] { game.PlayOrder[4] = 99; }},
    {"Environment", EnvironmentPhase, [] { game.Turn = 11; }},
    {"NewGenes", NewGenesPhase, [] { game.PlayOrder[1] = 8; }},
    {"Division", DivisionPhase, [] { game.PlayOrder[1] = 7; }},
    {"Aggression", AggressionPhase, [] { game.PlayOrder[3] = 1000; }},
    {"Scoring", ScorePhase, [] { game.AmoebaCount[2] = 8; }},
};
INSTANTIATE_TEST_SUITE_P(Phases, PhaseFaults, ::testing::ValuesIn(FaultRows), RowName());

TEST_F(PlayGameTest, AFaultUnderTheDriverIsToldAndTheNextGameWorks) {
    files_.Files["zynames.txt"] = "1 - Only one\n";
    ScriptedBoard board;
    board.AnswerBy([](Question& question) { question.Put(Plain(Answer::Kind::Acknowledge)); });
    PlayUnattended();
    ASSERT_EQ(board.Boxes.size(), 1U);
    EXPECT_THAT(board.Boxes[0], HasSubstr("memory/zynames.txt has 1 names for clan 1 and must have 7"));
    EXPECT_THAT(board.Boxes[0], HasSubstr("Clan 1 (Player 1)"));
    EXPECT_THAT(files_.Files["errfile.txt"], HasSubstr("Error #5"));
    EXPECT_EQ(files_.Files["zynames.txt"], "1 - Only one\n") << "an existing names file is never repaired";
    files_.Files.erase("zynames.txt");
    PlayUnattended();
    EXPECT_EQ(game.Turn, 11);
    EXPECT_EQ(board.Boxes.size(), 1U);
}

TEST_F(PlayGameTest, AnEnvelopeOfLinesForClan6NamesNobodyInAGameOfFive) {
    game.RequestedClans = 5;
    files_.Files["zynames.txt"] = "6 - A\n6 - B\n6 - C\n6 - D\n6 - E\n6 - F\n6 - G\n";
    ScriptedBoard board;
    PlayUnattended();
    EXPECT_THAT(board.Boxes[0], HasSubstr("has 0 names for clan 1"));
}

TEST_F(PlayGameTest, WithoutItsFolderAGameIsRefused) {
    files_.FolderFails = true;
    EXPECT_THAT(PrepareDataFolder(), HasSubstr("Permission denied: memory"));
    ScriptedBoard board;
    PlayGame();
    EXPECT_THAT(board.Boxes, ::testing::ElementsAre(PrepareDataFolder())) << "the same message as at the start";
    EXPECT_EQ(game.Turn, 0);
    EXPECT_EQ(files_.Files.count("errfile.txt"), 0U);
}

TEST_F(PlayGameTest, ATraceLineIsTriedThreeTimes) {
    NewPosition(3);
    services.Files = &files_;
    game.Turn = 2;
    game.Drift = 1;
    Put(1, 1, 7);
    files_.Failures = 2;
    {
        const Script rolls({5});
        EXPECT_NO_THROW(MovementPhase());
    }
    EXPECT_EQ(files_.Files.count("errfile.txt"), 0U);
}

TEST_F(PlayGameTest, ADiskThatIsFullInTheMiddleOfMovesLeavesEveryPieceWhereItIs) {
    NewPosition(3);
    services.Files = &files_;
    game.Turn = 2;
    game.Drift = 1;
    Put(1, 1, 7);
    Put(2, 1, 9);
    files_.Refused = "moving to square";
    MovementPhase();
    EXPECT_EQ(game.Amoeba[1][1].Square, 7);
    EXPECT_EQ(game.Amoeba[1][2].Square, 9);
    EXPECT_EQ(CheckConsistency(), "");
    const auto& errors = files_.Files["errfile.txt"];
    EXPECT_THAT(errors, HasSubstr("Player: 1 (Player 1)  Moeba: 1\n"));
    EXPECT_THAT(errors, HasSubstr("Error #61: Disk full: memory/movefil.txt"));
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '#'), 2) << "one record for each piece";
}

TEST_F(PlayGameTest, LeavingAGameEndsItQuietly) {
    ScriptedBoard board;
    game.RequestedClans = 0;
    board.Then(Do("leave", [](Question&) { throw GameLeft{}; }));
    EXPECT_NO_THROW(PlayGame());
    EXPECT_TRUE(board.Boxes.empty());
    EXPECT_EQ(files_.Files.count("errfile.txt"), 0U);
}

TEST_F(PlayGameTest, ABrokenGameMayBeLeftWhileItIsTold) {
    files_.Files["zynames.txt"] = "1 - Only one\n";
    ScriptedBoard board;
    board.DismissBoxes(false);
    board.Then(Do("leave", [](Question&) { throw GameLeft{}; }));
    EXPECT_NO_THROW(PlayUnattended());
    EXPECT_EQ(board.Boxes.size(), 1U);
    EXPECT_FALSE(game.AutoPlay);
}

TEST_F(PlayGameTest, TheProgramsEndIsNoError) {
    ScriptedBoard board;
    game.RequestedClans = 0;
    board.Then(EndTheProgram());
    EXPECT_THROW(PlayGame(), ProgramEnd);
    EXPECT_EQ(files_.Files.count("errfile.txt"), 0U);
}

}  // namespace
}  // namespace plasmos::testing
