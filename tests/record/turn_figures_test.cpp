// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/turn_figures.h"

#include <gmock/gmock.h>

#include "flow/play_game.h"
#include "record/input_list.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Notes a game's figures as it is played, and the states they were taken from.
class Noting : public PassingObserver {
public:
    Noting() : PassingObserver(services.Listener), before_(services.Listener) { services.Listener = this; }
    ~Noting() override { services.Listener = before_; }

    void OnEnd(Step step, int clan, int amoeba) override {
        PassingObserver::OnEnd(step, clan, amoeba);
        Keeper.Note(step, game);
        if (step == Step::NewGame || step == Step::Score) {
            States.push_back(game);
        }
    }

    FigureKeeper Keeper;
    std::vector<GameState> States;

private:
    Observer* before_;
};

std::vector<int> TurnsOf(const FigureKeeper& keeper) {
    std::vector<int> turns;
    for (const TurnFigures& figures : keeper.Kept()) {
        turns.push_back(figures.Turn);
    }
    return turns;
}

void PlayQuickly(int clans, float replay) {
    game.RequestedClans = clans;
    game.HasRequestedReplay = true;
    game.RequestedReplay = replay;
    PlayUnattended();
}

TEST(TurnFigures, APositionIsCounted) {
    NewPosition(3);
    game.Turn = 4;
    game.UVLevel = 9;
    game.BP[2] = 17;
    game.Players[2].Score = 12;
    Put(2, 1, 7);
    Put(2, 3, 8);
    Give(2, {"mv1", "ray"});
    Feed(7, {2, 1, 0});
    Feed(25, {0, 4, 3});
    const TurnFigures figures = FiguresOf(game);
    EXPECT_EQ(figures.Turn, 4);
    EXPECT_EQ(figures.UV, 9);
    EXPECT_EQ(figures.Food, 10);
    const ClanFigures second{12, 2, 2, 17, 5, game.Players[2].MutationLevel};
    EXPECT_EQ(figures.Clans[2], second);
    EXPECT_EQ(figures.Clans[1].Food, 2);
    EXPECT_EQ(figures.Clans[3].Food, 3);
    EXPECT_EQ(figures.Clans[4], ClanFigures());
}

TEST(TurnFigures, FoodOfColoursOutOfPlayIsNone) {
    NewPosition(3);
    game.Food[7][5] = 3;
    EXPECT_EQ(FiguresOf(game).Food, 0);
}

TEST(TurnFigures, AGameIsKeptFromItsSetupToItsLastTurn) {
    Noting noting;
    EXPECT_THAT(noting.Keeper.Kept(), IsEmpty());
    PlayQuickly(4, 3);
    EXPECT_THAT(TurnsOf(noting.Keeper), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10));
    ASSERT_THAT(noting.States, SizeIs(noting.Keeper.Kept().size()));
    for (std::size_t i = 0; i < noting.States.size(); ++i) {
        EXPECT_EQ(noting.Keeper.Kept()[i], FiguresOf(noting.States[i]));
    }
    for (int clan = 1; clan <= 4; ++clan) {
        EXPECT_EQ(noting.Keeper.Kept().front().Clans[clan].Score, noting.States.front().Players[clan].Score);
        EXPECT_EQ(noting.Keeper.Kept().back().Clans[clan].Score, game.Players[clan].Score);
        EXPECT_EQ(noting.Keeper.Kept().back().Clans[clan].Amoebas, game.AmoebaCount[clan]);
    }
}

TEST(TurnFigures, AnotherGameBeginsThemAnew) {
    Noting noting;
    PlayQuickly(3, 3);
    PlayQuickly(5, 7);
    EXPECT_THAT(noting.Keeper.Kept(), SizeIs(LastTurn + 1));
    EXPECT_EQ(noting.Keeper.Kept().back(), FiguresOf(noting.States.back()));
}

TEST(TurnFigures, OtherStepsAddNothing) {
    NewPosition(3);
    FigureKeeper keeper;
    for (const Step step : {Step::Move, Step::Feed, Step::Environment, Step::Adapt, Step::BuyGenes, Step::Divide,
                            Step::Deaths, Step::Attack}) {
        keeper.Note(step, game);
    }
    EXPECT_THAT(keeper.Kept(), IsEmpty());
}

}  // namespace
}  // namespace plasmos::testing
