// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/happening.h"

#include <gmock/gmock.h>

#include <functional>
#include <optional>

#include "flow/scoring.h"
#include "model/bio_points.h"
#include "model/narration.h"
#include "model/observer.h"
#include "rules/aggression.h"
#include "rules/division.h"
#include "rules/environment.h"
#include "rules/feeding.h"
#include "rules/fight.h"
#include "rules/menus.h"
#include "rules/move_amoeba.h"
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

using Kind = Happening::Kind;

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

/// A scene of A1 of clan 1 in square 13, with B1 of clan 2 beside it, and what happens in it.
struct SceneRow {
    std::string_view Name;
    std::function<void()> Happens;
    std::vector<int> Rolls;
    std::vector<Happening> Told;
    bool AsksAPerson = false;  ///< who says yes
};

void PrintTo(const SceneRow& row, std::ostream* out) {
    *out << row.Name;
}

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

void EatAPiece() {
    bool hungry = true;
    AttackToEat(2, 13, 1, hungry, 0);
}

const SceneRow SceneRows[] = {
    {"a_move", [] { MoveAmoeba(1, 1, 14); }, {9}, {{Kind::Moves, 1, 1, 13, 14, 0, 0, 9}}},
    {"a_move_to_where_it_is", [] { MoveAmoeba(1, 1, 13); }, {}, {}},
    {"a_ride",
     [] {
         Give(2, "hol");
         Feed(14, {3, 0, 3});
         MoveAmoeba(1, 1, 14);
     },
     {9, 10},
     {{Kind::Moves, 1, 1, 13, 14, 0, 0, 9}, {Kind::Rides, 2, 1, 13, 14, 1, 1, 10}}},
    {"a_piece_is_dragged_along",
     [] {
         Person(1);
         Give(1, "ten");
         Put(1, 2, 13);
         MoveAmoeba(1, 1, 14);
     },
     {9, 10},
     {{Kind::Moves, 1, 1, 13, 14, 0, 0, 9},
      {Kind::IsDragged, 1, 2, 13, 14, 1, 1, 10},
      {Kind::PaysBP, 1, 0, 0, 0, 0, 0, 1}},
     true},
    {"food_is_carried_along",
     [] {
         Give(1, "ten");
         Feed(13, {0, 2, 0});
         Feed(14, {0, 0, 1});
         MoveAmoeba(1, 1, 14);
     },
     {9},
     {{Kind::Moves, 1, 1, 13, 14, 0, 0, 9}, {Kind::CarriesFood, 1, 1, 13, 14, 2, 0, 2}}},
    {"a_change_of_spot", [] { MoveBeside(1, 1, 20); }, {}, {{Kind::ChangesSpot, 1, 1, 0, 13, 0, 0, 20}}},
    {"a_meal",
     [] {
         Feed(13, {0, 2, 1});
         EatSuggestion(SuggestMenu(13, 1), 13);
     },
     {},
     {{Kind::Eats, 1, 1, 0, 13, 0, 0, 21, 23}}},
    {"no_meal", [] { EatMenu(0, 13); }, {}, {}},
    {"a_parasites_meal",
     [] {
         Give(1, "par");
         Feed(13, {0, 2, 0});
         EatAsParasite(FindParasiteMeal(13, 1), 13);
     },
     {},
     {{Kind::PaysBP, 2, 0, 0, 0, 0, 0, 1},
      {Kind::Parasitizes, 1, 1, 0, 13, 2},
      {Kind::Eats, 1, 1, 0, 13, 2, 0, 21, 20}}},
    {"hunger", [] { Starve(13); }, {}, {{Kind::Starves, 1, 1, 0, 13, 0, 0, 1}}},
    {"a_birth",
     [] {
         game.Turn = 0;
         CreateAmoeba(3);
     },
     {7, 5},
     {{Kind::IsBorn, 3, 1, 0, 7, 0, 0, 5}}},
    {"a_death_of_hunger",
     [] {
         game.Amoeba[1][1].Damage = 2;
         AggressionPhase();
     },
     {},
     {{Kind::Dies, 1, 1, 0, 13, 0, 0, 2}}},
    {"a_piece_is_eaten",
     EatAPiece,
     {},
     {{Kind::ChangesSpot, 2, 1, 0, 13, 0, 0, 2},
      {Kind::AttacksToEat, 1, 1, 0, 13, 2, 1},
      {Kind::IsEaten, 2, 1, 0, 13, 1, 1, 1},
      {Kind::Dies, 2, 1, 0, 13}}},
    {"a_piece_is_torn",
     [] { AttackAmoeba(2, 13, 0); },
     {},
     {{Kind::ChangesSpot, 1, 1, 0, 13, 0, 0, 5},
      {Kind::Attacks, 1, 1, 0, 13, 2, 1},
      {Kind::IsTorn, 2, 1, 0, 13, 1, 1, 2},
      {Kind::Dies, 2, 1, 0, 13}}},
    {"a_wound",
     [] {
         Give(2, "arm");
         AttackAmoeba(2, 13, 0);
     },
     {},
     {{Kind::ChangesSpot, 1, 1, 0, 13, 0, 0, 5},
      {Kind::Attacks, 1, 1, 0, 13, 2, 1},
      {Kind::IsWounded, 2, 1, 0, 13, 1, 1, 1}}},
    {"an_escape",
     [] {
         Give(2, {"esc", "mv2"});
         EscapeAmoeba(2, 1);
     },
     {9},
     {{Kind::PaysBP, 2, 0, 0, 0, 0, 0, 1}, {Kind::Escapes, 2, 1, 13, 12, 1, 1, 9}}},
    {"no_escape",
     [] {
         Give(2, "esc");
         EscapeAmoeba(2, 1);
     },
     {5},
     {{Kind::PaysBP, 2, 0, 0, 0, 0, 0, 1}, {Kind::FailsToEscape, 2, 1, 0, 13, 1, 1}}},
    {"a_defence",
     [] { DefendAmoeba(2, 1); },
     {2, 4},
     {{Kind::PaysBP, 2, 0, 0, 0, 0, 0, 1}, {Kind::Defends, 2, 1, 0, 13, 1, 1}}},
    {"a_defence_that_fails",
     [] { DefendAmoeba(2, 1); },
     {4, 2},
     {{Kind::PaysBP, 2, 0, 0, 0, 0, 0, 1}, {Kind::FailsToDefend, 2, 1, 0, 13, 1, 1}}},
    {"a_purchase",
     [] { BuyGene(GeneId("mv1")); },
     {},
     {{Kind::BuysGene, 1, 0, 0, 0, 0, 0, GeneId("mv1")}, {Kind::PaysBP, 1, 0, 0, 0, 0, 0, 3}}},
    {"an_upgrade",
     [] {
         Give(1, "mv1");
         game.BP[1] = 9;
         BuyGene(GeneId("mv2"));
     },
     {},
     {{Kind::BuysGene, 1, 0, 0, 0, 0, 0, GeneId("mv2")},
      {Kind::PaysBP, 1, 0, 0, 0, 0, 0, 5},
      {Kind::LosesGene, 1, 0, 0, 0, 0, 0, GeneId("mv1")}}},
    {"a_loss",
     [] {
         Give(1, "arm");
         DiscardGene(GeneId("arm"));
     },
     {},
     {{Kind::LosesGene, 1, 0, 0, 0, 0, 0, GeneId("arm")}}},
    {"an_income", [] { GainBP(3, 10); }, {}, {{Kind::GainsBP, 3, 0, 0, 0, 0, 0, 10}}},
    {"a_card",
     [] {
         game.Turn = 4;
         game.EnvDeck[4] = {11, -1};
         EnvironmentPhase();
     },
     {},
     {{Kind::CardIsTurned, 0, 0, 0, 0, 0, 0, 11, -1}}},
    {"scores_and_order",
     [] {
         FillScoreTables();
         for (const auto code : {"mv1", "arm", "esc", "def"}) {
             Give(3, code);
         }
         ScorePhase();
     },
     {},
     {{Kind::ScoreMoves, 1, 0, 3, 0, 0, 0, 3},
      {Kind::ScoreMoves, 2, 0, 2, 0, 0, 0, 2},
      {Kind::ScoreMoves, 3, 0, 1, 0, 0, 0, 5},
      {Kind::OrderIsMade}}},
};

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
