// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/consistency.h"

#include <gmock/gmock.h>

#include <functional>

#include "model/step.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

/// A sound position of four clans with pieces, food and genes.
void SoundPosition() {
    NewPosition(4, 5, 5, "13:");
    for (int clan = 1; clan <= 4; ++clan) {
        Put(clan, 1, 7);
        Put(clan, 2, 6 + clan);
        game.BP[clan] = 4;
    }
    Feed(7, {2, 2, 2, 2});
    Give(2, {"ray", "mv1"});
}

/// One thing that is wrong, and a piece of what the check says of it.
struct FaultRow {
    std::string_view Name;
    std::function<void()> Spoil;
    std::string Said;
};

void PrintTo(const FaultRow& row, std::ostream* out) {
    *out << row.Name;
}

class Faults : public GameRows<FaultRow> {};

TEST_P(Faults, AreFound) {
    SoundPosition();
    ASSERT_EQ(CheckConsistency(true), "");
    GetParam().Spoil();
    EXPECT_THAT(CheckConsistency(), ::testing::HasSubstr(GetParam().Said));
    EXPECT_NE(CheckConsistency(), "");
}

const FaultRow FaultRows[] = {
    {"BP_below_zero", [] { game.BP[3] = -1; }, "clan 3"},
    {"mutation_level_above_the_genes", [] { ++game.Players[2].MutationLevel; }, "clan 2"},
    {"a_gene_without_its_points", [] { game.Genes[1][4] = true; }, "clan 4"},
    {"a_gene_copy_too_many", [] { ++game.Catalogue[5].Supply; }, "def"},
    {"a_gene_copy_lost", [] { --game.Catalogue[20].Supply; }, "arm"},
    {"a_supply_below_zero",
     [] {
         game.Catalogue[2].Supply = -1;
         game.Genes[2] = {};
         game.Players[2].MutationLevel = -2;
     },
     "mv1"},
    {"an_amoeba_too_many_counted", [] { ++game.AmoebaCount[1]; }, "clan 1"},
    {"an_amoeba_too_few_counted", [] { --game.AmoebaCount[4]; }, "clan 4"},
    {"food_of_a_colour_that_is_not_in_play", [] { game.Food[7][5] = 1; }, "square 7 holds food of colour 5"},
    {"a_piece_on_a_block",
     [] {
         LiftPiece(1, 2);
         PutPiece(1, 2, 13, 1);
     },
     "piece 1,2"},
    {"a_piece_off_the_board",
     [] {
         LiftPiece(1, 2);
         PutPiece(1, 2, 26, 1);
     },
     "piece 1,2"},
    {"a_piece_below_the_board", [] { game.Amoeba[2][1].Square = -1; }, "piece 1,2"},
    {"damage_below_zero", [] { game.Amoeba[1][2].Damage = -1; }, "piece 2,1"},
    {"a_spot_without_a_square", [] { game.Amoeba[5][2].Slot = 3; }, "piece 2,5"},
    {"an_eighth_piece_of_six_clans",
     [] {
         game.MaxAmoeba = 6;
         PutPiece(3, 7, 2, 1);
         ++game.AmoebaCount[3];
     },
     "piece 3,7"},
    {"a_square_that_counts_a_piece_too_many", [] { ++game.Occupancy[7][1]; }, "square 7"},
    {"a_square_whose_sum_is_wrong", [] { --game.Occupancy[8][0]; }, "square 8"},
    {"a_piece_moved_behind_the_counts", [] { game.Amoeba[1][1].Square = 9; }, "square"},
    {"two_pieces_in_one_spot", [] { game.Amoeba[1][2].Slot = game.Amoeba[1][1].Slot; }, "square 7"},
    {"a_taken_spot_that_is_empty", [] { game.SpotsTaken[20] = 2; }, "square 20"},
    {"food_below_zero", [] { game.Food[9][2] = -1; }, "square 9"},
    {"food_on_a_block", [] { game.Food[13][2] = 1; }, "square 13"},
    {"a_clan_twice_in_the_order", [] { game.PlayOrder[2] = 1; }, "order of play"},
    {"no_clan_in_the_order", [] { game.PlayOrder[4] = 0; }, "order of play"},
    {"a_clan_not_in_play_in_the_order", [] { game.PlayOrder[4] = 5; }, "order of play"},
};

INSTANTIATE_TEST_SUITE_P(State, Faults, ::testing::ValuesIn(FaultRows), RowName());

class Consistency : public GameTest {};

TEST_F(Consistency, AStateWithoutAGameIsSound) {
    EXPECT_EQ(CheckConsistency(), "");
    EXPECT_EQ(CheckConsistency(true), "");
}

TEST_F(Consistency, EveryClanCountIsSound) {
    for (int clans = 3; clans <= 6; ++clans) {
        NewPosition(clans);
        EXPECT_EQ(CheckConsistency(true), "") << clans;
    }
}

TEST_F(Consistency, APieceThatIsNotDrawnIsSound) {
    SoundPosition();
    PutPiece(3, 5, 7, 0);
    ++game.AmoebaCount[3];
    PutPiece(3, 6, 7, 0);
    ++game.AmoebaCount[3];
    EXPECT_EQ(CheckConsistency(), "");
}

TEST_F(Consistency, EqualScoresAreAFaultOnlyAfterScoring) {
    SoundPosition();
    game.Players[2].Score = game.Players[1].Score;
    EXPECT_EQ(CheckConsistency(), "");
    EXPECT_NE(CheckConsistency(true), "");
}

TEST_F(Consistency, AnOrderThatDoesNotFollowTheScoresIsAFaultAfterScoring) {
    SoundPosition();
    std::swap(game.PlayOrder[1], game.PlayOrder[2]);
    EXPECT_EQ(CheckConsistency(), "");
    EXPECT_NE(CheckConsistency(true), "");
}

TEST_F(Consistency, DecisionsAreCountedWhereTheyBegin) {
    SoundPosition();
    for (const Step step : {Step::NewGame, Step::Environment, Step::Deaths, Step::Score}) {
        RunStep(step, 0, 0, [] {});
    }
    EXPECT_EQ(game.Decisions, 0);
    for (const Step step : {Step::Move, Step::Feed, Step::Adapt, Step::BuyGenes, Step::Divide, Step::Attack}) {
        RunStep(step, 1, 1, [] {});
    }
    EXPECT_EQ(game.Decisions, 6);
}

}  // namespace
}  // namespace plasmos::testing
