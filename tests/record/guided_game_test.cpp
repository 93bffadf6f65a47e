// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/guided_game.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "flow/play_game.h"
#include "model/presentation.h"
#include "questions/ask.h"
#include "tests/support/game_fixture.h"
#include "tests/support/memory_files.h"

namespace plasmos::testing {
namespace {

using ::testing::IsEmpty;
using ::testing::Not;

/// What a lesson speaks of.
struct Moment {
    int Turn;
    int BP;
    int Amoebas;
};

/// Answers as it is recommended, until it is told to do otherwise or the lessons are over.
class Pupil : public Presentation {
public:
    explicit Pupil(GuidedGame& guided) : guided_(guided) { services.Window = this; }
    ~Pupil() override { services.Window = nullptr; }

    void Open(Question& question) override {
        const Advice advice = guided_.AdviceFor(question);
        EXPECT_THAT(advice.Note, Not(IsEmpty())) << question.Text;
        if (advice.Number > 0) {
            Moments.push_back({game.Turn, game.BP[3], game.AmoebaCount[3]});
        }
    }
    void Close(Question& /*question*/) override {}

    void Wait() override {
        Question& question = *TopQuestion();
        const Advice advice = guided_.AdviceFor(question);
        if (static_cast<int>(Moments.size()) == Until || !advice.Recommended) {
            if (!Otherwise) {
                throw GameLeft{};
            }
            question.Put(*Otherwise);
            Otherwise.reset();
            Until = 0;
            return;
        }
        const auto allowed = question.Allowed();
        EXPECT_NE(std::find(allowed.begin(), allowed.end(), *advice.Recommended), allowed.end())
            << question.Text << ": " << advice.Recommended->Text();
        question.Put(*advice.Recommended);
    }

    std::vector<Moment> Moments;
    int Until = 0;  ///< the lesson that is answered otherwise, from 1; 0: none
    std::optional<Answer> Otherwise;

private:
    GuidedGame& guided_;
};

class GuidedGameTest : public GameTest {
protected:
    void SetUp() override {
        GameTest::SetUp();
        NewPosition(4, 4, 9, "3:");
    }
};

TEST_F(GuidedGameTest, EveryLessonIsAskedAndItsRecommendationTaken) {
    GuidedGame guided;
    Pupil pupil(guided);
    PlayGame();
    EXPECT_TRUE(guided.OnPath());
    EXPECT_TRUE(guided.LessonsAreOver());
    EXPECT_EQ(pupil.Moments.size(), Lessons().size());
}

// The notes tell figures; these are the game's.
TEST_F(GuidedGameTest, TheNotesTellWhatIsSo) {
    GuidedGame guided;
    Pupil pupil(guided);
    PlayGame();
    ASSERT_EQ(pupil.Moments.size(), Lessons().size());
    const auto has = [&](std::string_view words, Moment moment) {
        for (std::size_t i = 0; i < Lessons().size(); ++i) {
            if (Lessons()[i].Note.find(words) != std::string_view::npos) {
                return pupil.Moments[i].Turn == moment.Turn && pupil.Moments[i].BP == moment.BP &&
                       pupil.Moments[i].Amoebas == moment.Amoebas;
            }
        }
        return false;
    };
    EXPECT_TRUE(has("For 1 of your 4 BP", {1, 4, 2}));
    EXPECT_TRUE(has("you have 3 BP", {1, 3, 2}));
    EXPECT_TRUE(has("The turn has been scored", {2, 4, 3}));
    EXPECT_TRUE(has("But 4 BP and the next 10", {2, 4, 3}));
    EXPECT_TRUE(has("You have 14 BP", {2, 14, 3}));
    EXPECT_TRUE(has("Both at once", {2, 14, 3}));
    EXPECT_EQ(ClanAtPlace(1), 3) << "you lead";
    EXPECT_EQ(game.AmoebaCount[3], 5);
    EXPECT_EQ(game.ScoreByAmoebaCount[3], 1);
    EXPECT_EQ(game.ScoreByAmoebaCount[5], 4);
}

TEST_F(GuidedGameTest, WhoAnswersOtherwiseIsToldButNotAdvised) {
    GuidedGame guided;
    Pupil pupil(guided);
    pupil.Until = 4;
    pupil.Otherwise = NoAnswer();
    PlayGame();
    EXPECT_FALSE(guided.OnPath());
    EXPECT_FALSE(guided.LessonsAreOver());
    EXPECT_EQ(pupil.Moments.size(), 4U);
}

TEST_F(GuidedGameTest, ARefusedAnswerIsNoOtherWay) {
    GuidedGame guided;
    Pupil pupil(guided);
    pupil.Until = 2;
    pupil.Otherwise = Numbered(Answer::Kind::Square, 7);
    PlayGame();
    EXPECT_TRUE(guided.OnPath()) << "an amoeba lies on square 7";
    EXPECT_TRUE(guided.LessonsAreOver());
}

TEST_F(GuidedGameTest, LeavesSetupFilesAndListenerAsTheyWere) {
    MemoryFiles files;
    game.Menu.twoplayermen = true;
    game.RequestedClans = 5;
    {
        GuidedGame guided;
        EXPECT_EQ(services.Listener, &guided);
        EXPECT_EQ(services.Files, nullptr);
        EXPECT_EQ(game.NumSquares, 25);
        EXPECT_FALSE(game.Menu.twoplayermen);
        game.FastMode = true;
        Pupil pupil(guided);
        PlayGame();
    }
    EXPECT_EQ(services.Listener, nullptr);
    EXPECT_EQ(services.Files, &files);
    EXPECT_EQ(game.NumCols, 9);
    EXPECT_TRUE(game.Blocked[3]);
    EXPECT_TRUE(game.Menu.twoplayermen);
    EXPECT_EQ(game.RequestedClans, 5);
    EXPECT_FALSE(game.HasRequestedReplay);
    EXPECT_TRUE(game.FastMode) << "what is switched meanwhile stays";
    EXPECT_EQ(game.NumPlayers, 0) << "no piece of another board";
}

}  // namespace
}  // namespace plasmos::testing
