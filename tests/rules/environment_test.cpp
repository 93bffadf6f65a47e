// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/environment.h"

#include <gmock/gmock.h>

#include "questions/ask.h"
#include "questions/visit.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

class EnvironmentTest : public GameTest {
protected:
    /// Turn 1 of a game with clan 3 a person's: the card brings UV 6 and a drift to the right.
    static void Begin(int uv = 6, int drift = 1) {
        NewPosition(6);
        Person(3);
        game.Turn = 1;
        game.EnvDeck[1] = {uv, drift};
    }
};

TEST_F(EnvironmentTest, TheTurnsCardSetsUvAndDrift) {
    Begin(13, -5);
    game.EnvDeck[2] = {7, 0};
    EnvironmentPhase();
    EXPECT_EQ(game.UVLevel, 13);
    EXPECT_EQ(game.Drift, -5);
    game.Turn = 2;
    EnvironmentPhase();
    EXPECT_EQ(game.UVLevel, 7);
    EXPECT_EQ(game.Drift, 0);
}

TEST_F(EnvironmentTest, DirectionsHaveTheirWords) {
    NewPosition(3, 4, 6);
    const std::pair<int, std::string_view> rows[] = {{1, "Right"}, {6, "Down"},     {-1, "Left"},
                                                     {-6, "Up"},   {0, "in place"}, {-666, "where it wants"},
                                                     {5, ""},      {17, ""}};
    for (const auto& [direction, words] : rows) {
        EXPECT_EQ(DirectionText(direction), words) << direction;
    }
}

/// A computer clan with genes, BP and the UV level, and what it holds afterwards.
struct ComputerRow {
    std::string_view Name;
    std::vector<std::string_view> Genes;
    int BP;
    int UV;
    int BPAfter;
    std::string_view GenesAfter;
};

void PrintTo(const ComputerRow& row, std::ostream* out) {
    *out << row.Name;
}

class ComputersAdapt : public GameRows<ComputerRow> {};

TEST_P(ComputersAdapt, ToTheUvLevel) {
    NewPosition(6);
    game.Turn = 1;
    game.EnvDeck[1] = {GetParam().UV, 1};
    for (const auto code : GetParam().Genes) {
        Give(2, code);
    }
    game.BP[2] = GetParam().BP;
    EnvironmentPhase();
    EXPECT_EQ(game.BP[2], GetParam().BPAfter);
    EXPECT_EQ(HeldGenes(2), GetParam().GenesAfter);
}

const ComputerRow ComputerRows[] = {
    {"a_level_equal_to_uv_costs_nothing", {"int", "mv1", "spo"}, 9, 8, 9, "int mv1 spo"},
    {"a_level_below_uv_costs_nothing", {"int"}, 9, 8, 9, "int"},
    {"one_bp_more_than_the_excess_pays_it", {"int", "mv1", "spo"}, 3, 6, 1, "int mv1 spo"},
    {"exactly_the_excess_is_not_enough_to_pay", {"int", "mv1", "spo"}, 2, 6, 2, "mv1 spo"},
};
INSTANTIATE_TEST_SUITE_P(Environment, ComputersAdapt, ::testing::ValuesIn(ComputerRows), RowName());

TEST_F(EnvironmentTest, APersonWithinTheLevelIsNotAsked) {
    Begin(6);
    Give(3, {"int", "spo"});
    ScriptedBoard board;
    EnvironmentPhase();
    EXPECT_TRUE(board.Questions.empty());
}

TEST_F(EnvironmentTest, APersonSeesTheDifferenceAndItsBp) {
    Begin(6);
    Give(3, {"int", "spo", "mv1"});
    game.BP[3] = 7;
    ScriptedBoard board;
    board.Then(Do("look", [](Question& question) {
        auto& form = *As<GeneForm>(&question);
        EXPECT_EQ(game.DialogMode, "ENVIRONMENT");
        EXPECT_EQ(form.UVdiff, 2);
        EXPECT_EQ(form.UVdiffColour, 0x0000FF) << "red above 0";
        EXPECT_TRUE(form.UVdiffVisible);
        EXPECT_FALSE(form.BPlabelVisible);
        EXPECT_TRUE(form.EnvBPVisible);
        EXPECT_EQ(form.EnvBP, "0");
        EXPECT_EQ(form.ofLab, "of 7");
        EXPECT_FALSE(form.resetbVisible);
        EXPECT_TRUE(form.gcheck[1].Ticked && form.gcheck[1].Enabled);
        EXPECT_FALSE(form.gcheck[4].Ticked || form.gcheck[4].Enabled);
        EXPECT_EQ(form.gcheck[1].Caption, "Intelligence");
        form.EnvBP_Change("2");
        EXPECT_EQ(form.UVdiff, 0);
        EXPECT_EQ(form.UVdiffColour, 0xFF0000) << "blue at 0";
        EXPECT_TRUE(form.resetbVisible);
        form.doneb_Click();
    }));
    EnvironmentPhase();
    EXPECT_EQ(game.BP[3], 5);
    EXPECT_EQ(HeldGenes(3), "int mv1 spo");
    EXPECT_EQ(game.DialogMode, "");
    EXPECT_THAT(board.Messages,
                ::testing::Contains(::testing::StartsWith(
                    "The environment has changed.\nYou must pay the difference in BP between your "
                    "amoebas' mutation-point value and the environmental UV-level, and/or discard genes "
                    "until the difference is reduced to 0 or below.")));
    EXPECT_EQ(game.Message, "");
}

TEST_F(EnvironmentTest, APersonWithoutBpSeesNoFieldForIt) {
    Begin(6);
    Give(3, {"int", "lif"});
    ScriptedBoard board;
    board.Then(Do("look", [](Question& question) {
        auto& form = *As<GeneForm>(&question);
        EXPECT_FALSE(form.EnvBPVisible);
        EXPECT_FALSE(form.ofLabVisible);
        form.EnvBP_Change("2");
        EXPECT_EQ(form.UVdiff, 2) << "what cannot be seen cannot be typed into";
        form.gcheck_Click(1);
        form.doneb_Click();
    }));
    EnvironmentPhase();
    EXPECT_EQ(HeldGenes(3), "lif");
    EXPECT_EQ(game.Catalogue[1].Supply, 3) << "a gene given up goes back to the supply";
}

/// Texts typed as BP by a clan with 7 BP and a difference of 6, and the difference shown then.
struct TypedRow {
    std::string_view Name;
    std::string Typed;
    std::string Field;
    int Cost;
    int PaidWhenDone;
};

void PrintTo(const TypedRow& row, std::ostream* out) {
    *out << row.Name;
}

class TypedBP : public GameRows<TypedRow> {};

TEST_P(TypedBP, ChangesTheUvCost) {
    NewPosition(6);
    Person(3);
    game.Turn = 1;
    game.EnvDeck[1] = {2, 1};
    Give(3, {"int", "lif"});
    game.BP[3] = 7;
    ScriptedBoard board;
    board.Then(Do("type", [](Question& question) {
        auto& form = *As<GeneForm>(&question);
        form.EnvBP_Change(GetParam().Typed);
        EXPECT_EQ(form.EnvBP, GetParam().Field);
        EXPECT_EQ(form.UVdiff, GetParam().Cost);
        form.gcheck_Click(1);
        form.gcheck_Click(12);
        form.doneb_Click();
    }));
    EnvironmentPhase();
    EXPECT_EQ(game.BP[3], 7 - GetParam().PaidWhenDone);
    EXPECT_GE(game.BP[3], 0);
}

const TypedRow TypedRows[] = {
    {"a_number_lowers_the_cost", "4", "4", 2, 4},
    {"all_bp_may_be_paid", "7", "7", -1, 7},
    {"more_than_the_clan_has_becomes_0", "8", "0", 6, 0},
    {"letters_become_0", "many", "0", 6, 0},
    {"nothing_becomes_0", "", "0", 6, 0},
    {"a_fraction_is_cut_off", "3.9", "3.9", 3, 3},
    {"blanks_around_do_not_matter", " 5 ", " 5 ", 1, 5},
    {"a_plus_is_a_sign", "+2", "+2", 4, 2},
    {"a_negative_entry_is_neither_paid_nor_refunded", "-3", "-3", 9, 0},
    {"forty_digits_become_0", "1111111111111111111111111111111111111111", "0", 6, 0},
    {"two_points_become_0", "1.2.3", "0", 6, 0},
    {"an_exponent_becomes_0", "1e1", "0", 6, 0},
};
INSTANTIATE_TEST_SUITE_P(Environment, TypedBP, ::testing::ValuesIn(TypedRows), RowName());

TEST_F(EnvironmentTest, RayProtectionCounts4AndLeavesTheClanAboveTheLevel) {
    Begin(6);
    Give(3, {"int", "lif", "ray"});
    game.Players[3].MutationLevel += 0;
    Give(3, {"spo"});
    ScriptedBoard board;
    board.Then(Do("untick ray", [](Question& question) {
        auto& form = *As<GeneForm>(&question);
        EXPECT_EQ(form.UVdiff, 3);
        form.gcheck_Click(GeneId("ray"));
        EXPECT_EQ(form.UVdiff, -1) << "4 less, not 2 more";
        form.doneb_Click();
    }));
    EnvironmentPhase();
    EXPECT_EQ(HeldGenes(3), "int spo lif");
    EXPECT_EQ(game.Players[3].MutationLevel, 11)
        << "2 higher than before, above the level, and nothing checks it again";
}

TEST_F(EnvironmentTest, TypedBpAreForgottenByTheNextTickAndCountAgainWithTheNextText) {
    Begin(2);
    Give(3, {"int", "lif"});
    game.BP[3] = 9;
    ScriptedBoard board;
    board.Then(Do("type and tick", [](Question& question) {
        auto& form = *As<GeneForm>(&question);
        form.EnvBP_Change("2");
        EXPECT_EQ(form.UVdiff, 4);
        form.gcheck_Click(1);
        EXPECT_EQ(form.UVdiff, 3) << "8 - 2 - 3, the typed 2 do not count";
        form.EnvBP_Change("3");
        EXPECT_EQ(form.UVdiff, 0);
        form.doneb_Click();
    }));
    EnvironmentPhase();
    EXPECT_EQ(game.BP[3], 6);
    EXPECT_EQ(HeldGenes(3), "lif");
}

TEST_F(EnvironmentTest, DoneWithACostAbove0ShowsTheMessageAndStartsTheChoicesAfresh) {
    Begin(6);
    Give(3, {"int", "lif"});
    game.BP[3] = 2;
    ScriptedBoard board;
    board.Then(Do("done too early", [](Question& question) {
        auto& form = *As<GeneForm>(&question);
        form.EnvBP_Change("1");
        form.doneb_Click();
    }));
    board.Then(Do("then rightly", [](Question& question) {
        auto& form = *As<GeneForm>(&question);
        EXPECT_EQ(form.UVdiff, 2);
        EXPECT_EQ(form.EnvBP, "0");
        EXPECT_FALSE(form.resetbVisible);
        form.EnvBP_Change("2");
        form.Form_Close();
    }));
    EnvironmentPhase();
    EXPECT_THAT(board.Boxes,
                ::testing::ElementsAre(
                    "You must make up the difference between the current environmental UV-level and the sum "
                    "mutation-point value of your amoebas' genes by discarding genes and/or spending BP until the "
                    "difference (\"UV cost\") is 0"));
    EXPECT_EQ(game.BP[3], 0);
}

TEST_F(EnvironmentTest, ResetTicksEveryHeldGeneAgain) {
    Begin(6);
    Give(3, {"int", "lif"});
    game.BP[3] = 5;
    ScriptedBoard board;
    board.Then(Do("reset", [](Question& question) {
        auto& form = *As<GeneForm>(&question);
        form.gcheck_Click(1);
        form.EnvBP_Change("1");
        form.resetb_Click();
        EXPECT_TRUE(form.gcheck[1].Ticked);
        EXPECT_EQ(form.UVdiff, 2);
        EXPECT_EQ(game.DiscardedPoints, 0);
        EXPECT_FALSE(form.resetbVisible);
        form.gcheck_Click(4);
        EXPECT_FALSE(form.gcheck[4].Ticked) << "a gene that is not held cannot be ticked";
        form.gcheck_Click(12);
        form.doneb_Click();
    }));
    EnvironmentPhase();
    EXPECT_EQ(HeldGenes(3), "int");
    EXPECT_EQ(game.BP[3], 5);
}

TEST_F(EnvironmentTest, ATurnBeyondTheDeckEndsTheProgramWithOneRecord) {
    Begin();
    game.Turn = 11;
    ::testing::internal::CaptureStderr();
    EXPECT_THROW(EnvironmentPhase(), ProgramEnd);
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), ::testing::HasSubstr("Error #9: Subscript out of range"));
}

}  // namespace
}  // namespace plasmos::testing
