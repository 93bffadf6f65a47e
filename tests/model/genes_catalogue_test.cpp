// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

/// One line of the catalogue.
struct CatalogueRow {
    std::string_view Name;  ///< the code
    int Number;
    std::string_view Shown;
    int Cost;
    int PointsFew;   ///< 3 or 4 clans
    int PointsMany;  ///< 5 or 6 clans
    int Supply3, Supply4, Supply56;
};

void PrintTo(const CatalogueRow& row, std::ostream* out) {
    *out << row.Shown;
}

class Catalogue : public GameRows<CatalogueRow> {};

TEST_P(Catalogue, CodeNumberAndNameBelongTogether) {
    const CatalogueRow& row = GetParam();
    EXPECT_EQ(GeneNumber(row.Name), row.Number);
    EXPECT_EQ(GeneCodes[row.Number], row.Name);
    EXPECT_EQ(GeneName(row.Number), row.Shown);
}

TEST_P(Catalogue, CostPointsAndSupplyFollowTheNumberOfClans) {
    const CatalogueRow& row = GetParam();
    for (int clans = 3; clans <= 6; ++clans) {
        NewPosition(clans);
        const GeneRecord& record = game.Catalogue[row.Number];
        const int supply = clans == 3 ? row.Supply3 : clans == 4 ? row.Supply4 : row.Supply56;
        EXPECT_EQ(record.Cost, row.Cost) << clans << " clans";
        EXPECT_EQ(record.MutationPoints, clans <= 4 ? row.PointsFew : row.PointsMany) << clans << " clans";
        EXPECT_EQ(record.Supply, supply) << clans << " clans";
        EXPECT_EQ(StartingSupply(row.Number, clans), supply) << clans << " clans";
    }
}

TEST_P(Catalogue, BuyingAndGivingBackKeepsTheSupplyAndTheLevel) {
    const CatalogueRow& row = GetParam();
    if (!GeneRows[row.Number - 1].Upgrades.empty()) {
        return;  // an upgrade takes the lower gene away
    }
    NewPosition(5);
    game.CurPlayer = 2;
    game.BP[2] = row.Cost + 1;
    BuyGene(row.Number);
    EXPECT_TRUE(game.Genes[row.Number][2]);
    EXPECT_EQ(game.BP[2], 1);
    EXPECT_EQ(game.Players[2].MutationLevel, row.PointsMany);
    EXPECT_EQ(game.Catalogue[row.Number].Supply, row.Supply56 - 1);
    DiscardGene(row.Number);
    EXPECT_FALSE(game.Genes[row.Number][2]);
    EXPECT_EQ(game.BP[2], 1) << "a gene given up is not paid back";
    EXPECT_EQ(game.Players[2].MutationLevel, 0);
    EXPECT_EQ(game.Catalogue[row.Number].Supply, row.Supply56);
}

constexpr CatalogueRow CatalogueRows[] = {
    {"int", 1, "Intelligence", 2, 3, 3, 1, 2, 3}, {"mv1", 2, "Movement 1", 3, 2, 2, 2, 2, 3},
    {"spo", 3, "Spores", 3, 3, 3, 1, 1, 2},       {"spe", 4, "Speed", 4, 3, 3, 1, 2, 2},
    {"def", 5, "Defence", 4, 4, 4, 1, 1, 2},      {"esc", 6, "Escape", 4, 4, 4, 1, 2, 2},
    {"sub", 7, "Substitution", 4, 4, 4, 1, 1, 2}, {"ray", 8, "Ray Protection", 5, -2, -2, 1, 2, 2},
    {"str", 9, "Streamlining", 5, 4, 5, 1, 1, 2}, {"ten", 10, "Tentacle", 5, 4, 4, 1, 2, 2},
    {"hol", 11, "Holding", 5, 4, 4, 1, 1, 1},     {"lif", 12, "Life Expectancy", 5, 5, 5, 1, 2, 2},
    {"fru", 13, "Frugality", 6, 5, 5, 0, 1, 2},   {"sfs", 14, "Struggle for Survival", 6, 4, 5, 2, 2, 3},
    {"par", 15, "Parasitism", 6, 5, 5, 0, 1, 2},  {"div", 16, "Division Rate", 6, 5, 5, 1, 2, 2},
    {"per", 17, "Persistence", 4, 4, 4, 1, 1, 1}, {"mv2", 18, "Movement 2", 5, 5, 5, 1, 2, 2},
    {"agg", 19, "Aggression", 5, 5, 5, 1, 1, 1},  {"arm", 20, "Armor", 6, 6, 6, 1, 1, 1},
};

static_assert(std::size(CatalogueRows) == GeneCount, "every gene has its row");

INSTANTIATE_TEST_SUITE_P(Genes, Catalogue, ::testing::ValuesIn(CatalogueRows), RowName());

TEST(GeneNames, AnUnknownCodeIsGeneZero) {
    EXPECT_EQ(GeneNumber(""), 0);
    EXPECT_EQ(GeneNumber("xyz"), 0);
    EXPECT_EQ(GeneNumber("MV1"), 0) << "codes are compared exactly";
    EXPECT_EQ(GeneNumber("mv1 "), 0);
}

TEST(GeneNames, ANumberOffTheCatalogueHasNoName) {
    EXPECT_EQ(GeneName(0), "");
    EXPECT_EQ(GeneName(GeneCount + 1), "");
    EXPECT_EQ(GeneName(-1), "");
}

class GeneTips : public GameTest {};

TEST_F(GeneTips, TellCostAndPointsOfAGameOfManyClans) {
    NewPosition(6);
    EXPECT_EQ(GeneTip(GeneNumber("int")), "2 BP; UV 3");
    EXPECT_EQ(GeneTip(GeneNumber("ray")), "5 BP; UV -2");
    EXPECT_EQ(GeneTip(GeneNumber("sfs")), "6 BP; UV 5");
    EXPECT_EQ(GeneTip(GeneNumber("str")), "5 BP; UV 5");
}

TEST_F(GeneTips, OnlyStruggleForSurvivalChangesWithFewClans) {
    for (const int clans : {3, 4}) {
        NewPosition(clans);
        EXPECT_EQ(GeneTip(GeneNumber("sfs")), "6 BP; UV 4");
        EXPECT_EQ(GeneTip(GeneNumber("str")), "5 BP; UV 5");
    }
}

TEST_F(GeneTips, TheListsTipTellsTheMutationLevel) {
    NewPosition(4);
    EXPECT_EQ(MutationTip(2), "Mutation level: 0");
    Give(2, "ray");
    EXPECT_EQ(MutationTip(2), "Mutation level: -2");
}

}  // namespace
}  // namespace plasmos::testing
