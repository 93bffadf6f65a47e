// SPDX-License-Identifier: GPL-3.0-or-later
#include "flow/scoring.h"

#include <utility>

#include "model/happening.h"
#include "model/presentation.h"
#include "model/step.h"
#include "model/trace.h"
#include "model/turn_points.h"

namespace plasmos {

namespace {

constexpr int AmoebaPointsFew[8] = {0, 0, 0, 1, 2, 4, 5, 6};
constexpr int AmoebaPointsMany[8] = {0, 0, 1, 2, 4, 5, 6, 7};
constexpr int GenePoints[8] = {0, 0, 0, 1, 2, 3, 4, 4};

/// Whether another clan's marker stands on the clan's space.
bool SharesSpace(int clan) {
    for (int other = 1; other <= game.NumPlayers; ++other) {
        if (other != clan && game.Players[other].Score == game.Players[clan].Score) {
            return true;
        }
    }
    return false;
}

/// One space on, and over every space that is taken.
void AdvanceOne(int clan) {
    do {
        ++game.Players[clan].Score;
    } while (SharesSpace(clan));
}

/// One more pass over the other clans: each that shares the space moves the clan one on. The pass is
/// made again only when no other clan had a different score.
void LeaveSharedSpace(int clan) {
    bool differed = false;
    while (!differed) {
        for (int other = 1; other <= game.NumPlayers; ++other) {
            if (other == clan) {
                continue;
            }
            if (game.Players[other].Score == game.Players[clan].Score) {
                ++game.Players[clan].Score;
            } else {
                differed = true;
            }
        }
    }
}

void ScoreClan(int clan) {
    game.CurPlayer = clan;
    const int before = game.Players[clan].Score;
    const TurnPoints points = TurnPointsOf(game, clan);
    for (int step = 1; step <= points.ForAmoebas + points.ForGenes; ++step) {
        AdvanceOne(clan);
    }
    LeaveSharedSpace(clan);
    Happened({.What = Happening::Kind::ScoreMoves, .Clan = clan, .From = before, .Number = game.Players[clan].Score});
}

void SortPlayOrder() {
    const auto score = [](int place) { return game.Players[game.PlayOrder[place]].Score; };
    for (int place = 1; place <= game.NumPlayers - 1; ++place) {
        int best = place;
        for (int other = place + 1; other <= game.NumPlayers; ++other) {
            if (score(other) > score(best)) {
                best = other;
            }
        }
        if (best != place) {
            std::swap(game.PlayOrder[place], game.PlayOrder[best]);
        }
    }
    Happened({.What = Happening::Kind::OrderIsMade});
}

void TestVictory() {
    for (int clan = 1; clan <= game.NumPlayers && game.Menu.victorymen; ++clan) {
        if (game.Players[clan].Score >= VictoryScore) {
            game.GameOver = true;
        }
    }
}

}  // namespace

void FillScoreTables() {
    const bool many = game.NumPlayers >= 5;
    for (int count = 0; count <= 7; ++count) {
        game.ScoreByAmoebaCount[count] = many ? AmoebaPointsMany[count] : AmoebaPointsFew[count];
        game.ScoreByGenes[count] = GenePoints[count];
    }
}

void RecordFoodHistory() {
    for (int square = 1; square <= game.NumSquares; ++square) {
        const auto& food = game.Food[square];
        auto& history = game.FoodHistory[square];
        for (int clan = 1; clan <= game.NumPlayers; ++clan) {
            history[clan][game.Turn] = food[clan];
        }
    }
}

void ScorePhase() {
    GuardPhase([] {
        BeginPhase("Scoring");
        RunStep(Step::Score, 0, 0, [] {
            for (int place = 1; place <= game.NumPlayers; ++place) {
                ScoreClan(ClanAtPlace(place));
            }
            SortPlayOrder();
            TestVictory();
            RecordFoodHistory();
        });
    });
}

}  // namespace plasmos
