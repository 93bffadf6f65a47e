// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>

#include "flow/play_game.h"
#include "model/consistency.h"
#include "model/observer.h"
#include "model/services.h"
#include "questions/question.h"
#include "tests/support/game_fixture.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

/// Looks through the whole state after every step of a game.
class StateWatcher : public Observer {
public:
    StateWatcher() { services.Listener = this; }
    ~StateWatcher() override { services.Listener = nullptr; }

    void OnRoll(int n, int face) override {
        if (n >= 1 && (face < 1 || face > n)) {
            Note(Concat("a die of ", n, " shows ", face));
        }
    }
    void OnBegin(Step, int, int) override { ++Open; }
    void OnEnd(Step step, int clan, int amoeba) override {
        --Open;
        ++Steps;
        if (const auto fault = CheckConsistency(step == Step::Score); !fault.empty()) {
            Note(Concat("turn ", game.Turn, ", ", StepName(step), " of ", clan, ",", amoeba, ": ", fault));
        }
    }
    void OnSay(std::string_view) override {}
    void OnBox(std::string_view text) override { Note(Concat("a box: ", text)); }
    void OnAsk(const Question& question) override { Note("a question: " + question.Text); }
    void OnAnswer(const Question&, const Answer&, bool) override {}
    void OnOver() override { ++Overs; }

    std::string Fault;  ///< the first one
    int Steps = 0;
    int Open = 0;
    int Overs = 0;

private:
    void Note(const std::string& fault) {
        if (Fault.empty()) {
            Fault = fault;
        }
    }
};

/// A board and the number of clans that play on it; 0: rolled.
struct GameRow {
    std::string_view Name;
    int Clans;
    int Rows;
    int Cols;
    std::string_view Blocks;
    bool Victory;
    bool Easy = false;
};

void PrintTo(const GameRow& row, std::ostream* out) {
    *out << row.Name;
}

class WholeGames : public GameRows<GameRow> {
protected:
    void Play(float replay) {
        game.HasRequestedReplay = true;
        game.RequestedReplay = replay;
        game.RequestedClans = GetParam().Clans;
        game.FastMode = true;
        game.Menu.victorymen = GetParam().Victory;
        game.Menu.normmen = !GetParam().Easy;
        PlayUnattended();
    }
};

TEST_P(WholeGames, KeepTheStateSoundAfterEveryStep) {
    SetBoard(GetParam().Rows, GetParam().Cols, GetParam().Blocks);
    for (int replay = 1; replay <= Scaled(200); ++replay) {
        StateWatcher watcher;
        Play(static_cast<float>(replay));
        ASSERT_EQ(watcher.Fault, "") << "replay number " << replay;
        ASSERT_GT(watcher.Steps, 0);
        ASSERT_EQ(watcher.Open, 0) << "a step without end";
        ASSERT_EQ(watcher.Overs, 1);
        ASSERT_TRUE(game.Turn == LastTurn + 1 || game.GameOver) << "replay number " << replay;
        if (GetParam().Clans != 0) {
            ASSERT_EQ(game.NumPlayers, GetParam().Clans);
        }
    }
}

TEST_P(WholeGames, AreTheSameAgain) {
    SetBoard(GetParam().Rows, GetParam().Cols, GetParam().Blocks);
    for (int replay = 1; replay <= Scaled(50); ++replay) {
        Play(static_cast<float>(replay));
        const auto signature = game.Signature;
        Play(static_cast<float>(replay) + 0.5F);
        ASSERT_NE(game.Signature, signature) << "another replay number is another game";
        Play(static_cast<float>(replay));
        ASSERT_EQ(game.Signature, signature) << "replay number " << replay;
    }
}

constexpr GameRow GameRowList[] = {
    {"three_clans", 3, 5, 5, "", false},
    {"four_clans", 4, 5, 5, "", false},
    {"five_clans", 5, 5, 5, "", false},
    {"six_clans", 6, 5, 5, "", false},
    {"clans_by_die", 0, 5, 5, "", false},
    {"on_easy", 0, 5, 5, "", false, true},
    {"on_easy_with_blocks_to_42_points", 0, 4, 9, "7:12:", true, true},
    {"to_42_points", 4, 5, 5, "", true},
    {"eight_blocks", 4, 5, 5, "1:3:7:9:13:17:19:25:", false},
    {"the_smallest_board_and_six_clans", 6, 3, 4, "", false},
    {"the_largest_board", 6, 6, 6, "", false},
    {"nine_columns", 5, 3, 9, "5:14:", false},
    {"nine_rows", 3, 9, 4, "24:19:", false},
    {"twelve_free_squares", 6, 4, 5, "1:5:16:20:7:9:12:14:", false},
};

INSTANTIATE_TEST_SUITE_P(Boards, WholeGames, ::testing::ValuesIn(GameRowList), RowName());

}  // namespace
}  // namespace plasmos::testing
