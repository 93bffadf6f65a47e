// SPDX-License-Identifier: GPL-3.0-or-later
#include "flow/new_game.h"

#include <gmock/gmock.h>

#include "files/settings_store.h"
#include "model/services.h"
#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "tests/flow/begin.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;

class NewGameTest : public GameTest {};

TEST_F(NewGameTest, TheDeckHasItsUvValuesAndDriftsByDie) {
    NewPosition(3, 4, 6);
    const Script rolls({1, 2, 3, 4, 5, 6, 1, 2, 3, 4, 5});
    BuildEnvDeck();
    std::vector<int> uv;
    std::vector<int> drift;
    for (int card = 0; card <= 10; ++card) {
        uv.push_back(game.EnvDeck[card].UV);
        drift.push_back(game.EnvDeck[card].DriftDirection);
    }
    EXPECT_THAT(uv, ElementsAre(6, 8, 9, 9, 10, 10, 10, 11, 12, 13, 14));
    EXPECT_THAT(drift, ElementsAre(1, 6, -1, -6, 0, -666, 1, 6, -1, -6, 0));
}

TEST_F(NewGameTest, UvAndDriftAreShuffledIndependently) {
    NewPosition(3);
    for (int card = 0; card <= 10; ++card) {
        game.EnvDeck[card] = {card, 100 + card};
    }
    // For each card in turn: a die of 11 for the UV value, another for the drift; here every UV value is
    // swapped with card 10's, every drift stays.
    std::vector<int> rolls;
    for (int card = 0; card <= 10; ++card) {
        rolls.push_back(11);
        rolls.push_back(card + 1);
    }
    const Script script(rolls);
    ShuffleEnvDeck();
    std::vector<int> uv;
    for (int card = 0; card <= 10; ++card) {
        uv.push_back(game.EnvDeck[card].UV);
        EXPECT_EQ(game.EnvDeck[card].DriftDirection, 100 + card);
    }
    EXPECT_THAT(uv, ElementsAre(10, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9));
    EXPECT_EQ(game.UVLevel, 10) << "card 0 is in force until the first environment step";
}

TEST_F(NewGameTest, EveryClanStartsAlike) {
    game.Menu.twoplayermen = true;
    for (int clans = 3; clans <= 6; ++clans) {
        SetBoard(5, 5, "7:12:");
        Begin(static_cast<float>(clans), clans);
        EXPECT_EQ(game.NumPlayers, clans);
        EXPECT_EQ(game.MaxAmoeba, clans <= 4 ? 7 : 6);
        EXPECT_EQ(game.Turn, 0);
        EXPECT_EQ(game.Drift, game.EnvDeck[0].DriftDirection);
        for (int place = 1; place <= clans; ++place) {
            const int clan = game.PlayOrder[place];
            EXPECT_EQ(game.Players[clan].Score, clans + place - 1) << "who moves first starts lowest";
            EXPECT_EQ(game.BP[clan], 4);
            EXPECT_EQ(game.AmoebaCount[clan], 2);
            EXPECT_TRUE(game.Players[clan].IsComputer) << "nobody is a person in an unattended game";
            EXPECT_EQ(game.Food[1][clan], 2);
            EXPECT_EQ(game.Food[7][clan], 0) << "a block has no food";
            EXPECT_NE(game.Amoeba[1][clan].Square, game.Amoeba[2][clan].Square);
        }
        EXPECT_EQ(game.Food[1][clans == 6 ? 0 : clans + 1], 0);
    }
}

TEST_F(NewGameTest, ColoursBelongToTheClanNumbers) {
    Begin(1, 6);
    constexpr std::int32_t colours[] = {0, 0xFF0000, 0xFF00FF, 0x00FFFF, 0x0000FF, 0x0BB000, 0x0080FF};
    for (int clan = 1; clan <= 6; ++clan) {
        EXPECT_EQ(game.Players[clan].Colour, colours[clan]);
    }
}

TEST_F(NewGameTest, ThePersonPlaysClan3AndWithTwoPersonsClan2Too) {
    for (const bool two : {false, true}) {
        game.Menu.twoplayermen = two;
        game.HasRequestedReplay = true;
        game.RequestedClans = 4;
        ScriptedBoard board;
        board.AnswerBy([](Question& question) { question.Put(question.Allowed().front()); });
        NewGame();
        EXPECT_FALSE(game.Players[3].IsComputer);
        EXPECT_EQ(game.Players[2].IsComputer, !two);
        EXPECT_TRUE(game.Players[1].IsComputer);
    }
}

TEST_F(NewGameTest, TheNumberOfClansIsAskedUntilItIsValid) {
    ScriptedBoard board;
    board.AnswerBy([](Question& question) { question.Put(question.Allowed().front()); });
    board.Then({CloseIt(), Do("two", [](Question& q) { q.Put(Numbered(Answer::Kind::Number, 2)); }), Number(5)});
    NewGame();
    EXPECT_EQ(game.NumPlayers, 5);
    ASSERT_GE(board.Questions.size(), 2U);
    EXPECT_EQ(board.Questions[0].Text, "How many players would you like for this game of Zymarra?");
    EXPECT_THAT(board.Questions[0].Offered, ElementsAre(3, 4, 5, 6));
    EXPECT_EQ(std::count(board.Messages.begin(), board.Messages.end(), "Invalid response!"), 1);
}

TEST_F(NewGameTest, ATypedReplayNumberSeedsTheGameAndStandsInTheCaption) {
    ScriptedBoard board;
    board.ReplayBox = " 4711.5 ";
    game.RequestedClans = 3;
    game.AutoPlay = true;
    NewGame();
    EXPECT_EQ(game.ReplayNo, 4711.5F);
    EXPECT_THAT(board.Captions, ElementsAre("The Puddle  (4711.5)"));
    const auto deck = game.EnvDeck[3];
    board.ReplayBox = "no number";
    NewGame();
    EXPECT_NE(game.ReplayNo, 4711.5F);
    EXPECT_GE(game.ReplayNo, 0);
    EXPECT_LT(game.ReplayNo, 86401);
    board.ReplayBox = "4711.5";
    NewGame();
    EXPECT_EQ(game.EnvDeck[3], deck);
}

TEST_F(NewGameTest, ClanNamesComeFromTheSettings) {
    MemorySettings settings;
    settings.Save("players", "name1", "Blue ones");
    settings.Save("players", "name2", "   ");
    settings.Save("players", "name4", "Thirty characters are too much");
    services.Settings = &settings;
    Begin(1, 4);
    EXPECT_EQ(game.Players[1].Name, "Blue ones");
    EXPECT_EQ(game.Players[2].Name, "Player 2");
    EXPECT_EQ(game.Players[3].Name, "Player 3");
    EXPECT_EQ(game.Players[4].Name, "Thirty characters ar");
    services.Settings = nullptr;
}

TEST_F(NewGameTest, TheStartingOrderIsShuffledByOneDieAPlace) {
    Begin(3, 4);
    std::vector<int> order(game.PlayOrder.begin() + 1, game.PlayOrder.begin() + 5);
    std::sort(order.begin(), order.end());
    EXPECT_THAT(order, ElementsAre(1, 2, 3, 4));
}

TEST_F(NewGameTest, NothingOfAnEarlierGameIsLeft) {
    Begin(1, 6);
    game.Genes[5][6] = true;
    game.FoodHistory[3][2][4] = 7;
    game.AutoFlags[3][1] = true;
    game.GameOver = true;
    Begin(2, 3);
    EXPECT_FALSE(game.Genes[5][6]);
    EXPECT_EQ(game.FoodHistory[3][2][4], 0);
    EXPECT_FALSE(game.AutoFlags[3][1]);
    EXPECT_FALSE(game.GameOver);
    EXPECT_EQ(game.Amoeba[1][6].Square, 0);
    EXPECT_EQ(game.Food[1][6], 0);
}

TEST_F(NewGameTest, SixClansOnTwelveSquaresTakeEverySquare) {
    SetBoard(3, 4);
    Begin(5, 6);
    for (int square = 1; square <= 12; ++square) {
        EXPECT_EQ(game.Occupancy[square][0], 1) << square;
    }
}

}  // namespace
}  // namespace plasmos::testing
