// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "model/consistency.h"
#include "rules/move_amoeba.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What a computer amoeba of clan 1 carries from square 13 to 14: the food before and after.
struct LoadRow {
    std::string_view Name;
    int Clans;
    std::vector<std::string_view> Genes;
    std::vector<int> From, To;
    std::vector<int> FromAfter, ToAfter;
};

void PrintTo(const LoadRow& row, std::ostream* out) {
    *out << row.Name;
}

class TentacleLoads : public GameRows<LoadRow> {
protected:
    static void Lay(int square, const std::vector<int>& food) {
        for (std::size_t i = 0; i < food.size(); ++i) {
            game.Food[square][static_cast<int>(i) + 1] = food[i];
        }
    }
    void Position() {
        const LoadRow& row = GetParam();
        NewPosition(row.Clans);
        for (const auto code : row.Genes) {
            Give(1, code);
        }
        Put(1, 1, 13);
        Lay(13, row.From);
        Lay(14, row.To);
    }
};

TEST_P(TentacleLoads, AreTheFewestForeignPiecesForAMeal) {
    Position();
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(FoodOn(13), GetParam().FromAfter);
    EXPECT_EQ(FoodOn(14), GetParam().ToAfter);
    EXPECT_EQ(game.BP[1], 0) << "it costs nothing";
}

TEST_P(TentacleLoads, AreWorkedOutForAPersonWithAutomaticTentacle) {
    Position();
    Person(1);
    Put(1, 2, 13);
    game.AutoFlags[1][2] = true;
    ScriptedBoard board;
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(FoodOn(13), GetParam().FromAfter);
    EXPECT_EQ(FoodOn(14), GetParam().ToAfter);
    EXPECT_THAT(board.Questions, IsEmpty());
}

// clang-format off
const LoadRow LoadRows[] = {
    {"without_a_tentacle_nothing", 4, {}, {0, 2, 0, 0}, {0, 0, 1, 1}, {0, 2, 0, 0}, {0, 0, 1, 1}},
    {"one_piece_that_is_missing", 4, {"ten"}, {0, 2, 0, 0}, {0, 0, 1, 1}, {0, 1, 0, 0}, {0, 1, 1, 1}},
    {"nothing_where_it_can_eat_already", 4, {"ten"}, {0, 2, 2, 2}, {0, 1, 1, 1}, {0, 2, 2, 2}, {0, 1, 1, 1}},
    {"the_lowest_colour_that_helps", 4, {"ten"}, {0, 2, 2, 2}, {0, 1, 1, 0}, {0, 2, 2, 1}, {0, 1, 1, 1}},
    {"two_pieces_where_one_is_not_enough", 4, {"ten"}, {0, 1, 1, 1}, {0, 1, 0, 0}, {0, 1, 0, 0}, {0, 1, 1, 1}},
    {"the_first_pair_that_helps", 4, {"ten", "sub"}, {0, 2, 2, 2}, {0, 2, 0, 0}, {0, 1, 1, 2}, {0, 3, 1, 0}},
    {"a_single_piece_before_any_pair", 4, {"ten", "sub"}, {0, 2, 2, 2}, {0, 1, 2, 0}, {0, 1, 2, 2}, {0, 2, 2, 0}},
    {"two_of_one_colour", 3, {"ten"}, {0, 2, 0}, {0, 0, 1}, {0, 0, 0}, {0, 2, 1}},
    {"not_two_where_there_is_one", 3, {"ten"}, {0, 1, 0}, {0, 0, 1}, {0, 1, 0}, {0, 0, 1}},
    {"never_three", 4, {"ten"}, {0, 1, 1, 1}, {0, 0, 0, 0}, {0, 1, 1, 1}, {0, 0, 0, 0}},
    {"never_its_own_colour", 4, {"ten"}, {5, 0, 0, 0}, {0, 1, 1, 0}, {5, 0, 0, 0}, {0, 1, 1, 0}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Tentacle, TentacleLoads, ::testing::ValuesIn(LoadRows), RowName());

class Tentacles : public GameTest {
protected:
    Tentacles() {
        NewPosition(4);
        Person(1);
        Give(1, "ten");
        Put(1, 1, 13);
        Feed(13, {2, 2, 2, 0});
    }
    ~Tentacles() override { EXPECT_EQ(CheckConsistency(), ""); }
    ScriptedBoard board;
};

TEST_F(Tentacles, APersonSaysWhatItCarries) {
    board.Then(Eat({0, 1, 1, 0}));
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(board.Questions[0].Mode, "TENTACLE");
    EXPECT_THAT(FoodOn(13), ElementsAre(2, 1, 1, 0));
    EXPECT_THAT(FoodOn(14), ElementsAre(0, 1, 1, 0));
}

TEST_F(Tentacles, ItsOwnColourMayComeAlong) {
    board.Then(Eat({2, 0, 0, 0}));
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_THAT(FoodOn(14), ElementsAre(2, 0, 0, 0));
}

TEST_F(Tentacles, NothingIsALegalAnswer) {
    board.Then(Eat({0, 0, 0, 0}));
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_THAT(FoodOn(14), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(board.Boxes, IsEmpty());
}

TEST_F(Tentacles, ThreePiecesAreTooMany) {
    board.Then({Eat({1, 1, 1, 0}), Eat({1, 1, 0, 0})});
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_THAT(board.Boxes, ElementsAre("You may not carry more than 2 food."));
    EXPECT_THAT(board.Messages, ::testing::Contains("Please try again."));
    EXPECT_THAT(FoodOn(14), ElementsAre(1, 1, 0, 0));
}

TEST_F(Tentacles, WhatIsNotThereCannotBeCarriedOut) {
    board.Then({Eat({0, 0, 0, 1}), Eat({0, 0, 0, 0})});
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_THAT(board.Boxes, ElementsAre("You may not carry out more food than there is in the square!"));
}

TEST_F(Tentacles, WhereThereIsNoFoodNobodyIsAsked) {
    Feed(13, {0, 0, 0, 0});
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_THAT(board.Questions, IsEmpty());
}

TEST_F(Tentacles, StayingCarriesNothing) {
    Script script({});
    MoveAmoeba(1, 1, 13);
    EXPECT_THAT(board.Questions, IsEmpty());
}

class Dragging : public Tentacles {
protected:
    Dragging() {
        Feed(13, {0, 0, 0, 0});
        Put(1, 3, 13);
        game.BP[1] = 2;
    }
};

TEST_F(Dragging, ACompanionIsDraggedFor1BP) {
    board.Then(Yes());
    Script script({9, 10});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(board.Questions[0].Kind, QuestionKind::YesNo);
    EXPECT_EQ(game.Amoeba[3][1].Square, 14);
    EXPECT_EQ(game.Amoeba[3][1].Slot, 10);
    EXPECT_EQ(game.BP[1], 1);
}

TEST_F(Dragging, NoLeavesItThereUnpaid) {
    board.Then(No());
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Amoeba[3][1].Square, 13);
    EXPECT_EQ(game.BP[1], 2);
}

TEST_F(Dragging, WithoutBPNobodyIsAsked) {
    game.BP[1] = 0;
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_THAT(board.Questions, IsEmpty());
}

TEST_F(Dragging, AmongSeveralOneIsPicked) {
    Put(1, 2, 13);
    Put(1, 4, 12);
    Put(2, 1, 13);
    board.Then({Yes(), Amoeba(2)});
    Script script({9, 10});
    MoveAmoeba(1, 1, 14);
    EXPECT_THAT(board.Questions[1].Offered, ElementsAre(2, 3)) << "its own clan's other pieces in the square";
    EXPECT_EQ(game.Amoeba[2][1].Square, 14);
    EXPECT_EQ(game.Amoeba[3][1].Square, 13);
}

TEST_F(Dragging, AWithdrawnPickCostsNothing) {
    Put(1, 2, 13);
    board.Then({Yes(), Nobody()});
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.BP[1], 2);
    EXPECT_EQ(game.Occupancy[13][1], 2);
}

TEST_F(Dragging, FoodIsAskedForFirst) {
    Feed(13, {0, 1, 0, 0});
    board.Then({Eat({0, 1, 0, 0}), Yes()});
    Script script({9, 10});
    MoveAmoeba(1, 1, 14);
    EXPECT_THAT(FoodOn(14), ElementsAre(0, 1, 0, 0));
    EXPECT_EQ(game.Occupancy[14][1], 2) << "the dragged piece's own tentacle takes nothing";
}

TEST_F(Dragging, ComputerClansDoNotDrag) {
    game.Players[1].IsComputer = true;
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Amoeba[3][1].Square, 13);
    EXPECT_EQ(game.BP[1], 2);
}

}  // namespace
}  // namespace plasmos::testing
