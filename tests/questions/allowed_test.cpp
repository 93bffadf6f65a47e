// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "flow/play_game.h"
#include "model/observer.h"
#include "model/pcg32.h"
#include "model/services.h"
#include "questions/visit.h"
#include "tests/support/game_fixture.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using ::testing::UnorderedElementsAre;

std::vector<std::string> Texts(const std::vector<Answer>& answers) {
    std::vector<std::string> texts;
    for (const Answer& answer : answers) {
        texts.push_back(answer.Text());
    }
    return texts;
}

/// A person in clan 3 of four, who looks at what it may answer.
class Allowed : public GameTest {
protected:
    Allowed() {
        NewPosition(4);
        Person(3);
        game.CurPlayer = 3;
        game.CurAmoeba = 1;
        Put(3, 1, 7);
    }
};

TEST_F(Allowed, ToEatIsEveryMealThatTheSquareHolds) {
    Give(3, "fru");
    Feed(7, {1, 3, 5, 1});
    FoodForm form(3, "", 7);
    form.LegalMenus = {111, 3, 11, 21};
    form.SuggestedMenu = 11;
    EXPECT_THAT(Texts(form.Allowed()), UnorderedElementsAre("eat 1,1,0,1", "eat 0,3,0,0", "eat 1,1,0,0", "eat 1,0,0,1",
                                                            "eat 0,1,0,1", "eat 1,2,0,0", "eat 0,2,0,1", "suggestion"));
}

TEST_F(Allowed, ToEatBesideALentPieceIsWhatItCompletes) {
    Feed(7, {1, 1, 5, 0});
    FoodForm form(3, "", 7);
    form.LegalMenus = {111};
    form.paroptEnabled = form.paroptValue = true;
    form.fdtxt[0].Visible = true;
    form.UpdateButtons();
    EXPECT_THAT(Texts(form.Allowed()), UnorderedElementsAre("eat 1,1,0,0", "parasitism", "victim"));
}

TEST_F(Allowed, ToCarryAreUpToTwoPiecesOfAnyColour) {
    Feed(7, {2, 0, 1, 0});
    FoodForm form(3, "TENTACLE", 7);
    form.CarryingLimit = 2;
    EXPECT_THAT(Texts(form.Allowed()), UnorderedElementsAre("carry 0,0,0,0", "carry 1,0,0,0", "carry 2,0,0,0",
                                                            "carry 0,0,1,0", "carry 1,0,1,0", "carry nothing"));
}

TEST_F(Allowed, IsWhatTheOptionsShow) {
    AmNumfrm form(3, "", "", -1, 0);
    game.BP[3] = 6;
    form.Activate(6);
    EXPECT_THAT(Texts(form.Allowed()), ElementsAre("number 0", "number 1", "number 2"));
}

TEST_F(Allowed, AreTheMarkedOnesOnceAFigureIsMarked) {
    Put(1, 4, 7);
    VictimForm form(3, "AGGRESS", "", 7);
    form.Allow(1, 4);
    EXPECT_THAT(Texts(form.Allowed()), ElementsAre("mark 0", "pick"));
    form.figure_Click(0);
    EXPECT_THAT(Texts(form.Allowed()), ElementsAre("mark 0", "done", "pick"));
}

TEST_F(Allowed, IsDoneOnlyWhereTheCostIsPaid) {
    Give(3, "int");
    game.BP[3] = 2;
    game.UVLevel = 2;
    GeneForm form(3, "");
    form.PrepareEnvironment();
    EXPECT_THAT(Texts(form.Allowed()), ElementsAre("untick 1", "pay 0", "pay 1", "pay 2"));
    form.EnvBP_Change("1");
    EXPECT_THAT(Texts(form.Allowed()), ElementsAre("untick 1", "pay 0", "pay 1", "pay 2", "reset", "done"));
    EXPECT_THAT(Texts(form.Allowed()), Not(Contains("tick 1")));
}

// ---- whole games ----

/// A person who gives any of the allowed answers, and hears whether one is refused.
class Obedient : public Presentation, public Observer {
public:
    explicit Obedient(std::uint64_t seed) {
        generator_.Seed(seed, 3);
        services.Window = this;
        services.Listener = this;
    }
    ~Obedient() override {
        services.Window = nullptr;
        services.Listener = nullptr;
    }

    bool WantsText() const override { return false; }
    void Open(Question&) override {}
    void Close(Question&) override {}
    void Wait() override {
        const auto allowed = TopQuestion()->Allowed();
        ASSERT_FALSE(allowed.empty()) << TopQuestion()->Text;
        last_ = allowed[generator_.Next() % allowed.size()];
        TopQuestion()->Put(last_);
        ++Answers;
    }
    void OnRoll(int, int) override {}
    void OnBegin(Step, int, int) override {}
    void OnEnd(Step, int, int) override {}
    void OnSay(std::string_view) override {}
    void OnBox(std::string_view) override {}
    void OnAsk(const Question&) override {}
    void OnAnswer(const Question& question, const Answer& answer, bool accepted) override {
        if (!accepted) {
            Refused.push_back(Concat(QuestionKindName(question.Kind), ": ", answer.Text(), " after ", last_.Text()));
        }
    }
    void OnOver() override {}

    std::vector<std::string> Refused;
    int Answers = 0;

private:
    Pcg32 generator_;
    Answer last_;
};

TEST_F(GameTest, NothingThatIsAllowedIsRefusedInWholeGames) {
    int answers = 0;
    for (int number = 1; number <= Scaled(600); ++number) {
        SetBoard(number % 2 == 0 ? 5 : 3, number % 3 == 0 ? 4 : 5);
        game.Menu = {true, false, number % 2 == 0};
        game.RequestedClans = number % 5 == 0 ? 0 : 3 + number % 4;
        game.HasRequestedReplay = true;
        game.RequestedReplay = static_cast<float>(number);
        game.FastMode = true;
        Obedient person(static_cast<std::uint64_t>(number));
        PlayOneGame();
        ASSERT_TRUE(person.Refused.empty()) << "game " << number << ": " << person.Refused.front();
        answers += person.Answers;
    }
    EXPECT_GT(answers, 50 * Scaled(600));
}

}  // namespace
}  // namespace plasmos::testing
