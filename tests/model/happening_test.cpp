// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/happening.h"

#include <gmock/gmock.h>

#include <optional>

#include "model/narration.h"
#include "model/observer.h"
#include "rules/fight.h"
#include "tests/model/happening_scenes.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos {

/// "Eats clan 1 amoeba 1 square 13 number 21", with the fields that are not 0.
void PrintTo(const Happening& happening, std::ostream* out) {
    const auto& [what, clan, amoeba, from, square, otherClan, otherAmoeba, number, second] = happening;
    *out << KindName(what);
    const auto put = [out](std::string_view name, int value) {
        if (value != 0) {
            *out << ' ' << name << ' ' << value;
        }
    };
    put("clan", clan), put("amoeba", amoeba), put("from", from), put("square", square), put("other clan", otherClan);
    put("other amoeba", otherAmoeba), put("number", number), put("second", second);
}

}  // namespace plasmos

namespace plasmos::testing {
namespace {

/// Writes down what happens, and what is said of it.
class HappeningEar : public Observer {
public:
    HappeningEar() { services.Listener = this; }
    ~HappeningEar() override { services.Listener = nullptr; }
    void OnRoll(int, int) override {}
    void OnBegin(Step, int, int) override {}
    void OnEnd(Step, int, int) override {}
    void OnHappening(const Happening& happening) override {
        Heard.push_back(happening);
        Told.emplace_back(KindName(happening.What));
    }
    void OnSay(std::string_view line) override { Told.emplace_back(line); }
    void OnBox(std::string_view) override {}
    void OnAsk(const Question&) override {}
    void OnAnswer(const Question&, const Answer&, bool) override {}
    void OnOver() override {}

    std::vector<Happening> Heard;
    std::vector<std::string> Told;  ///< kinds and lines, as they came
};

class HappeningScene : public GameRows<SceneRow> {
protected:
    HappeningScene() {
        NewPosition(3);
        Put(1, 1, 13, 3);
        Put(2, 1, 13, 4);
        game.CurPlayer = game.CurAmoeba = 1;
        game.BP[1] = game.BP[2] = 3;
    }
};

/// Remembers what it is shown; its person says yes.
class Window : public ScriptedBoard {
public:
    Window() {
        AnswerBy([](Question& question) { question.Put(YesAnswer()); });
    }
    void ShowHappening(const Happening& happening) override { Shown.push_back(happening); }
    std::vector<Happening> Shown;
};

TEST_P(HappeningScene, IsToldAndShownOnce) {
    HappeningEar ear;
    Window window;
    Script script(GetParam().Rolls);
    GetParam().Happens();
    EXPECT_THAT(ear.Heard, ::testing::ElementsAreArray(GetParam().Told));
    EXPECT_THAT(window.Shown, ::testing::ElementsAreArray(GetParam().Told));
}

TEST_P(HappeningScene, CountsInTheSignatureWhetherHeardOrNot) {
    std::optional<Window> window;
    if (GetParam().AsksAPerson) {
        window.emplace();
    }
    const GameState before = game;
    {
        Script script(GetParam().Rolls);
        GetParam().Happens();
    }
    const auto signature = game.Signature;
    game = before;
    HappeningEar ear;
    Script script(GetParam().Rolls);
    GetParam().Happens();
    EXPECT_EQ(game.Signature, signature);
}

INSTANTIATE_TEST_SUITE_P(Each, HappeningScene, ::testing::ValuesIn(SceneRows), RowName());

// ---- the happening first, then its words ----

class Telling : public GameTest {};

TEST_F(Telling, IsBeforeTheWords) {
    NewPosition(3);
    Put(1, 1, 13);
    Put(2, 1, 13);
    game.CurPlayer = game.CurAmoeba = 1;
    HappeningEar ear;
    AttackAmoeba(2, 13, 0);
    EXPECT_THAT(ear.Told, ::testing::ElementsAre("ChangesSpot", "Attacks", "A1 picking a fight with B1 in 13", "IsTorn",
                                                 "B1 torn viciously to pieces!!!", "Dies"));
}

TEST_F(Telling, EveryKindHasANameOfItsOwn) {
    for (int kind = 0; kind <= static_cast<int>(Kind::OrderIsMade); ++kind) {
        EXPECT_NE(KindName(static_cast<Kind>(kind)), "") << kind;
    }
    EXPECT_EQ(KindName(Kind::Moves), "Moves");
    EXPECT_EQ(KindName(Kind::Attacks), "Attacks");
    EXPECT_EQ(KindName(Kind::OrderIsMade), "OrderIsMade");
}

}  // namespace
}  // namespace plasmos::testing
