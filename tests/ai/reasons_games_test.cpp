// SPDX-License-Identifier: GPL-3.0-or-later
// The reasons of whole games: every decision has one, and none changes anything.
#include <regex>
#include <set>

#include "flow/play_game.h"
#include "record/input_list.h"
#include "sim/robot.h"
#include "sim/simulate.h"
#include "tests/support/game_fixture.h"
#include "tests/support/reason_ear.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

/// The squares that a sentence names.
std::vector<int> SquaresIn(const std::string& sentence) {
    static const std::regex named(
        R"((?:squares?|in|into|from|took|found|takes|jumps to|way:|was|decides:) (\d+(?:(?: \(\w+\)| \(\w+ times\))?(?:, | and )\d+)*))");
    static const std::regex number(R"(\d+)");
    std::vector<int> squares;
    for (std::sregex_iterator list(sentence.begin(), sentence.end(), named), end; list != end; ++list) {
        const std::string text = (*list)[1];
        for (std::sregex_iterator one(text.begin(), text.end(), number); one != end; ++one) {
            squares.push_back(std::stoi(one->str()));
        }
    }
    return squares;
}

/// What is wrong with a sentence, or nothing.
std::string FaultOf(const std::string& sentence) {
    if (sentence.empty() || sentence.back() != '.') {
        return "no sentence";
    }
    if (sentence.find("  ") != std::string::npos || sentence.find(" .") != std::string::npos ||
        sentence.find(" ,") != std::string::npos || sentence.find("..") != std::string::npos) {
        return "blanks or stops astray";
    }
    const std::string die = "over squares 1 to 24";
    std::string rest = sentence;
    if (const auto at = rest.find(die); at != std::string::npos) {
        rest.erase(at, die.size());
    }
    for (const int square : SquaresIn(rest)) {
        if (!IsValidSquare(square)) {
            return Concat("square ", square, " is none of the board");
        }
    }
    return "";
}

/// Whether a computer clan decides something in a step that begins.
bool IsDecidedByAComputer(Step step, int clan) {
    if (step == Step::Attack) {
        for (int other = 1; other <= game.NumPlayers; ++other) {
            if (HasGene(other, "agg") && game.BP[other] >= 1) {
                return game.Players[other].IsComputer;
            }
        }
        return false;
    }
    const std::set<Step> decisions{Step::Move, Step::Feed, Step::Adapt, Step::BuyGenes, Step::Divide};
    return decisions.count(step) > 0 && game.Players[clan].IsComputer;
}

/// Looks at every sentence, and that every decision has one.
class Judge : public ReasonEar {
public:
    void OnBegin(Step step, int clan, int) override {
        decided_ = IsDecidedByAComputer(step, clan);
        open_ = true;
        inStep_ = 0;
    }
    void OnEnd(Step step, int clan, int amoeba) override {
        if (decided_ && inStep_ == 0) {
            Note(Concat("turn ", game.Turn, ", ", StepName(step), " of ", clan, ",", amoeba, " has no reason"));
        }
        open_ = false;
    }
    void OnReason(std::string_view sentence) override {
        const std::string text(sentence);
        if (const auto fault = FaultOf(text); !fault.empty()) {
            Note(fault + ": " + text);
        }
        if (!open_) {
            Note("outside a step: " + text);
        }
        ++inStep_;
        ++Count;
    }

    std::string Fault;  ///< the first one
    int Count = 0;

private:
    void Note(const std::string& fault) {
        if (Fault.empty()) {
            Fault = fault;
        }
    }

    bool decided_ = false;
    bool open_ = false;
    int inStep_ = 0;
};

struct GameRow {
    std::string_view Name;
    int Clans;
    int Persons;
    int Rows;
    int Cols;
    std::string_view Blocks;
    bool Easy = false;
};

void PrintTo(const GameRow& row, std::ostream* out) {
    *out << row.Name;
}

class ReasonsOfGames : public GameRows<GameRow> {
protected:
    static SimOptions Options(int replay) {
        SimOptions options;
        options.FirstReplay = static_cast<float>(replay);
        options.Clans = GetParam().Clans;
        options.Persons = GetParam().Persons;
        options.Rows = GetParam().Rows;
        options.Cols = GetParam().Cols;
        options.Blocks = GetParam().Blocks;
        options.Normal = !GetParam().Easy;
        return options;
    }

    /// Plays a game; whoever listens is set up before.
    static void Play(int replay) {
        PrepareThread(Options(replay), nullptr);
        game.RequestedReplay = static_cast<float>(replay);
        game.AutoPlay = GetParam().Persons == 0;
        Robot robot(1, static_cast<std::uint64_t>(replay));
        services.Window = GetParam().Persons == 0 ? nullptr : &robot;
        PlayOneGame();
        services.Window = nullptr;
    }
};

TEST_P(ReasonsOfGames, AreThereForEveryDecisionAndChangeNothing) {
    for (int replay = 1; replay <= Scaled(60); ++replay) {
        SCOPED_TRACE(replay);
        Play(replay);
        const auto signature = game.Signature;
        Judge judge;
        Play(replay);
        ASSERT_EQ(judge.Fault, "");
        ASSERT_GT(judge.Count, 100);
        ASSERT_EQ(game.Signature, signature);
    }
}

TEST_P(ReasonsOfGames, LeaveTheJournalAsItIs) {
    for (int replay = 1; replay <= Scaled(8); ++replay) {
        SimOptions options = Options(replay);
        options.Journal = "wanted";
        PrepareThread(options, nullptr);
        const std::string plain = SimulateGame(options, 0).Journal;
        options.Why = true;
        const std::string told = SimulateGame(options, 0).Journal;
        std::string rest;
        for (std::size_t at = 0; at < told.size();) {
            const auto next = told.find('\n', at) + 1;
            rest += told.compare(at, 10, R"({"t":"why")") == 0 ? "" : told.substr(at, next - at);
            at = next;
        }
        ASSERT_TRUE(rest == plain) << "replay number " << replay;
        ASSERT_GT(told.size(), plain.size());
    }
}

constexpr GameRow Games[] = {
    {"three_clans", 3, 0, 5, 5, ""},
    {"four_clans_and_a_person", 4, 1, 5, 5, ""},
    {"five_clans_on_easy", 5, 0, 5, 5, "", true},
    {"six_clans_on_the_smallest_board", 6, 0, 3, 4, ""},
    {"six_clans_and_two_persons_on_easy", 6, 2, 6, 6, "", true},
    {"eight_blocks", 4, 1, 5, 5, "1:3:7:9:13:17:19:25:", true},
    {"nine_columns", 5, 0, 3, 9, "5:14:"},
};

INSTANTIATE_TEST_SUITE_P(Boards, ReasonsOfGames, ::testing::ValuesIn(Games), RowName());

class ReasonsHeard : public GameTest {
protected:
    static void Play() {
        SetBoard(5, 5);
        game.FastMode = game.HasRequestedReplay = true;
        game.RequestedReplay = 7;
        PlayUnattended();
    }
};

TEST_F(ReasonsHeard, ArePassedOnByWhoeverStandsBetween) {
    ReasonEar alone;
    Play();
    ReasonEar behind;
    InputRecorder between(&behind);
    services.Listener = &between;
    Play();
    EXPECT_FALSE(alone.Told.empty());
    EXPECT_EQ(behind.Told, alone.Told);
}

TEST_F(ReasonsHeard, AreNotToldToWhoDoesNotWantThem) {
    class Deaf : public ReasonEar {
        bool WantsReasons() const override { return false; }
    };
    {
        ReasonEar first;
        Play();
    }
    Deaf deaf;
    Play();
    EXPECT_TRUE(deaf.Told.empty());
    InputRecorder nobodyBehind;
    EXPECT_FALSE(nobodyBehind.WantsReasons());
}

}  // namespace
}  // namespace plasmos::testing
