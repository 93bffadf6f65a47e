// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <ostream>
#include <string_view>
#include <vector>

#include "flow/scoring.h"
#include "model/bio_points.h"
#include "model/happening.h"
#include "rules/aggression.h"
#include "rules/division.h"
#include "rules/environment.h"
#include "rules/feeding.h"
#include "rules/fight.h"
#include "rules/menus.h"
#include "rules/move_amoeba.h"
#include "rules/movement.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {

using Kind = Happening::Kind;

/// A scene of A1 of clan 1 in square 13, with B1 of clan 2 beside it, and what happens in it.
struct SceneRow {
    std::string_view Name;
    std::function<void()> Happens;
    std::vector<int> Rolls;
    std::vector<Happening> Told;
    bool AsksAPerson = false;  ///< who says yes
};

inline void PrintTo(const SceneRow& row, std::ostream* out) {
    *out << row.Name;
}

inline void EatAPiece() {
    bool hungry = true;
    AttackToEat(2, 13, 1, hungry, 0);
}

inline const SceneRow SceneRows[] = {
    {"a_move", [] { MoveAmoeba(1, 1, 14); }, {9}, {{Kind::Moves, 1, 1, 13, 14, 0, 0, 9}}},
    {"a_move_to_where_it_is", [] { MoveAmoeba(1, 1, 13); }, {}, {{Kind::Stays, 1, 1, 0, 13}}},
    {"a_throw",
     [] {
         Person(1);
         MoveAmoeba(1, 1, FindPersonsDestination(1, 1, MoveKind::FirstAttempt));
     },
     {3, 9},
     {{Kind::Throws, 1, 1, 13, 12, 0, 0, 3}, {Kind::Moves, 1, 1, 13, 12, 0, 0, 9}},
     true},
    {"a_throw_that_stays",
     [] {
         Person(1);
         MoveAmoeba(1, 1, FindPersonsDestination(1, 1, MoveKind::FirstAttempt));
     },
     {5},
     {{Kind::Throws, 1, 1, 13, 13, 0, 0, 5}, {Kind::Stays, 1, 1, 0, 13}},
     true},
    {"a_throw_against_the_edge",
     [] {
         Person(1);
         Put(1, 2, 11);
         MoveAmoeba(1, 2, FindPersonsDestination(1, 2, MoveKind::FirstAttempt));
     },
     {3},
     {{Kind::Throws, 1, 2, 11, 11, 0, 0, 3}, {Kind::Stays, 1, 2, 0, 11}},
     true},
    {"two_throws",
     [] {
         Person(1);
         Give(1, "mv1");
         MoveAmoeba(1, 1, FindPersonsDestination(1, 1, MoveKind::SecondAttempt));
     },
     {2, 2, 9},
     {{Kind::Throws, 1, 1, 13, 18, 0, 0, 2},
      {Kind::Throws, 1, 1, 13, 18, 0, 0, 2},
      {Kind::Moves, 1, 1, 13, 18, 0, 0, 9}},
     true},
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

}  // namespace plasmos::testing
