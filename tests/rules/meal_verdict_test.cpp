// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the food dialog says of an entry is what pressing the button comes to.

#include <gmock/gmock.h>

#include "questions/visit.h"
#include "rules/feeding.h"
#include "rules/move_amoeba.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using Kind = EntryVerdict::Kind;

/// Clan 1 of four, a person's, before 2 pieces of clan 2, 3 of clan 3 and 1 of clan 4 in square 13.
class Verdicts : public GameTest {
protected:
    Verdicts() {
        NewPosition(4);
        Person(1);
        Put(1, 1, 13);
        game.CurPlayer = 1;
        game.CurAmoeba = 1;
        Feed(13, {4, 2, 3, 1});
    }
    /// Types amounts for the clans 2, 3 and 4.
    static void Type(FoodForm& form, int two, int three, int four) {
        form.fdtxt_Change(2, Concat(two));
        form.fdtxt_Change(3, Concat(three));
        form.fdtxt_Change(4, Concat(four));
    }

    ScriptedBoard board;
};

TEST_F(Verdicts, AreTheCheckThatTheButtonMakes) {
    Give(1, "fru");
    int legal = 0;
    for (int entry = 0; entry < 4 * 5 * 3; ++entry) {
        const auto before = game;
        Kind said{};
        board.Boxes.clear();
        board.Then(Do("types", [&](Question& question) {
            auto& form = *As<FoodForm>(&question);
            Type(form, entry % 4, entry / 4 % 5, entry / 20);
            const auto lists = std::pair(game.MenuAmounts, game.MenuColours);
            said = form.Judge(form).What;
            EXPECT_TRUE((lists == std::pair(game.MenuAmounts, game.MenuColours))) << "to look changes nothing";
            form.eatb_Click();
        }));
        board.AnswerBy([](Question& question) {
            auto& form = *As<FoodForm>(&question);
            form.suggest_Click();
            form.eatb_Click();
        });
        FeedAmoeba(13, 1);
        const std::string message = board.Boxes.empty() ? "" : board.Boxes.front();
        const std::string expected = said == Kind::TooMuch    ? "You cannot eat more food than"
                                     : said == Kind::NotLegal ? "The menu you chose was not le"
                                                              : "";
        EXPECT_EQ(message.substr(0, expected.size()), expected) << entry;
        EXPECT_EQ(message.empty(), said == Kind::Legal) << entry;
        legal += said == Kind::Legal ? 1 : 0;
        game = before;
    }
    EXPECT_EQ(legal, 1 + 1 + 3 + 2 + 2) << "111, 3, three of 11, two times 21 of each fuller colour";
}

TEST_F(Verdicts, SayThatNothingStarvesOrMustBeSomething) {
    board.Then(Do("looks", [](Question& question) {
        auto& form = *As<FoodForm>(&question);
        EXPECT_EQ(form.Judge(form).What, Kind::NotLegal);
        EXPECT_EQ(form.Judge(form).Menu, 0);
        Type(form, 1, 1, 1);
        EXPECT_EQ(form.Judge(form).What, Kind::Legal);
        EXPECT_EQ(form.Judge(form).Menu, 111);
        form.SuggestedMenu = 0;
        Type(form, 0, 0, 0);
        EXPECT_EQ(form.Judge(form).What, Kind::Starves);
        form.eatb_Click();
    }));
    FeedAmoeba(13, 1);
    EXPECT_EQ(game.Amoeba[1][1].Damage, 1);
}

TEST_F(Verdicts, WeighWhatATentacleCarries) {
    Give(1, "ten");
    board.Then(Do("looks", [](Question& question) {
        auto& form = *As<FoodForm>(&question);
        EXPECT_EQ(form.Judge(form).What, Kind::Legal);
        Type(form, 2, 1, 0);
        EXPECT_EQ(form.Judge(form).What, Kind::TooHeavy);
        Type(form, 0, 0, 2);
        EXPECT_EQ(form.Judge(form).What, Kind::TooMuch);
        Type(form, 1, 1, 0);
        EXPECT_EQ(form.Judge(form).What, Kind::Legal);
        form.eatb_Click();
    }));
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(FoodOn(14), (std::vector<int>{0, 1, 1, 0}));
}

TEST_F(Verdicts, EveryPossibleMealIsLegalOnceClicked) {
    Give(1, {"fru", "sub"});
    board.Then(Do("clicks", [](Question& question) {
        auto& form = *As<FoodForm>(&question);
        std::vector<int> menus;
        for (const PossibleMeal& meal : form.PossibleMeals()) {
            form.meal_Click(meal);
            EXPECT_EQ(form.Judge(form).What, Kind::Legal) << meal.Menu;
            EXPECT_EQ(form.Judge(form).Menu, meal.Menu);
            EXPECT_EQ(form.Entry(), meal.Amounts);
            menus.push_back(meal.Menu);
        }
        EXPECT_EQ(menus, (std::vector<int>{111, 22, 31, 3, 11, 21}));
        form.meal_Click(form.PossibleMeals()[2]);
        EXPECT_EQ(form.Entry(), (std::vector<int>{0, 1, 3, 0})) << "from where most lies";
        form.eatb_Click();
    }));
    FeedAmoeba(13, 1);
    EXPECT_EQ(FoodOn(13), (std::vector<int>{6, 1, 0, 1}));
}

TEST_F(Verdicts, OnlyMealsOfWhichTheSquareHoldsEnoughAreOffered) {
    Feed(13, {9, 1, 2, 0});
    Give(1, {"fru", "sub"});
    board.Then(Do("looks", [](Question& question) {
        auto& form = *As<FoodForm>(&question);
        std::vector<int> menus;
        for (const PossibleMeal& meal : form.PossibleMeals()) {
            menus.push_back(meal.Menu);
        }
        EXPECT_EQ(menus, (std::vector<int>{11, 21}));
        form.suggest_Click();
        form.eatb_Click();
    }));
    FeedAmoeba(13, 1);
}

}  // namespace
}  // namespace plasmos::testing
