// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "model/happening.h"
#include "model/presentation.h"
#include "model/services.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

/// Whether a clan that holds some genes may buy another, with BP enough for every gene.
struct FamilyRow {
    std::string_view Name;
    std::vector<std::string_view> Held;
    std::string_view Wanted;
    bool Allowed;
};

void PrintTo(const FamilyRow& row, std::ostream* out) {
    *out << row.Name;
}

class Families : public GameRows<FamilyRow> {};

TEST_P(Families, DecideWhatMayBeBought) {
    NewPosition(6);
    game.BP[3] = 6;
    for (const auto code : GetParam().Held) {
        Give(3, code);
    }
    EXPECT_EQ(CanBuyGene(3, GeneNumber(GetParam().Wanted)), GetParam().Allowed);
}

const FamilyRow FamilyRows[] = {
    {"Movement2_needs_Movement1", {}, "mv2", false},
    {"Movement2_upgrades_Movement1", {"mv1"}, "mv2", true},
    {"Movement1_is_refused_beside_Movement2", {"mv2"}, "mv1", false},
    {"Movement1_is_free_for_a_clan_with_neither", {}, "mv1", true},
    {"Persistence_needs_Speed", {}, "per", false},
    {"Persistence_upgrades_Speed", {"spe"}, "per", true},
    {"Speed_is_refused_beside_Persistence", {"per"}, "spe", false},
    {"Aggression_needs_Struggle", {}, "agg", false},
    {"Aggression_upgrades_Struggle", {"sfs"}, "agg", true},
    {"Struggle_is_refused_beside_Aggression", {"agg"}, "sfs", false},
    {"Armor_needs_Defence_or_Escape", {}, "arm", false},
    {"Armor_upgrades_Defence", {"def"}, "arm", true},
    {"Armor_upgrades_Escape", {"esc"}, "arm", true},
    {"Armor_with_both", {"def", "esc"}, "arm", true},
    {"Defence_is_refused_beside_Armor", {"arm"}, "def", false},
    {"Escape_is_refused_beside_Armor", {"arm"}, "esc", false},
    {"Defence_and_Escape_go_together", {"def"}, "esc", true},
    {"another_familys_upgrade_does_not_matter", {"mv2", "per", "agg"}, "def", true},
    {"a_gene_is_bought_once", {"ten"}, "ten", false},
    {"Ray_Protection_is_like_any_other", {}, "ray", true},
};

INSTANTIATE_TEST_SUITE_P(Genes, Families, ::testing::ValuesIn(FamilyRows), RowName());

/// What a clan holds after buying, and what becomes of the supply of the gene it replaces.
struct UpgradeRow {
    std::string_view Name;
    std::vector<std::string_view> Held;
    std::string_view Bought;
    std::string Left;           ///< codes held afterwards, in gene order
    int LevelRise;              ///< of the mutation level, with 4 clans
    std::string_view Returned;  ///< the gene that goes back to the supply; "": none
};

void PrintTo(const UpgradeRow& row, std::ostream* out) {
    *out << row.Name;
}

class Upgrades : public GameRows<UpgradeRow> {};

TEST_P(Upgrades, ReplaceTheLowerGene) {
    const UpgradeRow& row = GetParam();
    NewPosition(4);
    for (const auto code : row.Held) {
        Give(4, code);
    }
    game.CurPlayer = 4;
    game.BP[4] = 20;
    const int level = game.Players[4].MutationLevel;
    const int gene = GeneNumber(row.Bought);
    BuyGene(gene);
    EXPECT_EQ(HeldGenes(4), row.Left);
    EXPECT_EQ(game.Players[4].MutationLevel - level, row.LevelRise);
    EXPECT_EQ(game.BP[4], 20 - game.Catalogue[gene].Cost);
    EXPECT_EQ(game.Catalogue[gene].Supply, StartingSupply(gene, 4) - 1);
    if (!row.Returned.empty()) {
        const int returned = GeneNumber(row.Returned);
        EXPECT_EQ(game.Catalogue[returned].Supply, StartingSupply(returned, 4));
    }
}

const UpgradeRow UpgradeRows[] = {
    {"Movement2_takes_Movement1", {"mv1"}, "mv2", "mv2", 5 - 2, "mv1"},
    {"Persistence_takes_Speed", {"spe"}, "per", "per", 4 - 3, "spe"},
    {"Aggression_takes_Struggle", {"sfs"}, "agg", "agg", 5 - 4, "sfs"},
    {"Armor_takes_Defence", {"def"}, "arm", "arm", 6 - 4, "def"},
    {"Armor_takes_Escape_where_there_is_no_Defence", {"esc"}, "arm", "arm", 6 - 4, "esc"},
    {"Armor_takes_Defence_and_leaves_Escape", {"def", "esc"}, "arm", "esc arm", 6 - 4, "def"},
    {"Ray_Protection_lowers_the_level", {"int"}, "ray", "int ray", -2, ""},
    {"a_gene_without_family_takes_nothing", {"mv1", "spe"}, "hol", "mv1 spe hol", 4, ""},
};

INSTANTIATE_TEST_SUITE_P(Genes, Upgrades, ::testing::ValuesIn(UpgradeRows), RowName());

class BuyingGenes : public GameTest {};

TEST_F(BuyingGenes, FrugalityAndParasitismDoNotExistWithThreeClans) {
    NewPosition(3);
    game.BP[1] = 100;
    EXPECT_FALSE(CanBuyGene(1, GeneNumber("fru")));
    EXPECT_FALSE(CanBuyGene(1, GeneNumber("par")));
    NewPosition(4);
    game.BP[1] = 100;
    EXPECT_TRUE(CanBuyGene(1, GeneNumber("fru")));
    EXPECT_TRUE(CanBuyGene(1, GeneNumber("par")));
}

TEST_F(BuyingGenes, ExactlyEnoughBPIsEnough) {
    NewPosition(4);
    game.BP[2] = 5;
    EXPECT_TRUE(CanBuyGene(2, GeneNumber("ten")));
    game.BP[2] = 4;
    EXPECT_FALSE(CanBuyGene(2, GeneNumber("ten")));
}

TEST_F(BuyingGenes, TheLastCopyIsGoneForEveryOtherClan) {
    NewPosition(3);
    Give(1, "hol");
    game.BP[2] = 100;
    EXPECT_FALSE(CanBuyGene(2, GeneNumber("hol")));
}

TEST_F(BuyingGenes, AnUpgradedMovementCanBeBoughtByOthersOnly) {
    NewPosition(3);
    Give(1, "mv1");
    Give(2, "mv1");
    game.BP[1] = game.BP[3] = 20;
    EXPECT_FALSE(CanBuyGene(3, GeneNumber("mv1"))) << "both copies are held";
    game.CurPlayer = 1;
    BuyGene(GeneNumber("mv2"));
    EXPECT_TRUE(CanBuyGene(3, GeneNumber("mv1")));
    EXPECT_FALSE(CanBuyGene(1, GeneNumber("mv1")));
}

TEST_F(BuyingGenes, RayProtectionAloneGivesALevelBelowZero) {
    NewPosition(5);
    Give(3, "ray");
    EXPECT_EQ(game.Players[3].MutationLevel, -2);
    game.CurPlayer = 3;
    DiscardGene(GeneNumber("ray"));
    EXPECT_EQ(game.Players[3].MutationLevel, 0);
}

TEST_F(BuyingGenes, CountIncludesRayProtection) {
    NewPosition(5);
    EXPECT_EQ(CountGenes(3), 0);
    Give(3, {"ray", "mv1", "arm"});
    EXPECT_EQ(CountGenes(3), 3);
    EXPECT_EQ(CountGenes(2), 0);
}

TEST_F(BuyingGenes, AGeneOffTheCatalogueIsASubscriptError) {
    NewPosition(4);
    for (const int gene : {GeneCount + 1, -1}) {
        try {
            CanBuyGene(1, gene);
            FAIL() << "gene " << gene;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number, 9);
        }
    }
    EXPECT_FALSE(game.Genes[0][1]) << "gene 0 is held by nobody";
}

TEST_F(BuyingGenes, ANewGameTakesEveryGeneBack) {
    NewPosition(6);
    for (int clan = 1; clan <= 6; ++clan) {
        game.Genes[GeneNumber("mv1")][clan] = true;
    }
    ResetGenes();
    for (int clan = 0; clan <= 6; ++clan) {
        EXPECT_FALSE(game.Genes[GeneNumber("mv1")][clan]) << clan;
    }
}

/// Hears what is said and shown while genes change hands.
class GeneEar : public Presentation {
public:
    GeneEar() { services.Window = this; }
    ~GeneEar() override { services.Window = nullptr; }
    void ShowMessage(std::string_view text, int) override { Shown.emplace_back(text); }
    void Log(std::string_view line, int) override { Logged.emplace_back(line); }
    void ShowHappening(const Happening& happening) override {
        Steps.push_back(Concat(KindName(happening.What), " ", happening.Clan));
    }
    void ShowAutoFlags(int clan) override { Steps.push_back(Concat("auto ", clan)); }
    void Open(Question&) override {}
    void Close(Question&) override {}
    void Wait() override {}

    std::vector<std::string> Shown, Logged, Steps;
};

TEST_F(BuyingGenes, AComputerClanReportsWhatItBought) {
    NewPosition(4);
    GeneEar ear;
    game.CurPlayer = 2;
    game.BP[2] = 9;
    BuyGene(GeneNumber("sub"));
    EXPECT_THAT(ear.Logged, ::testing::ElementsAre("Player 2 just bought: Substitution"));
    EXPECT_THAT(ear.Shown, ::testing::ElementsAre("Player 2 just bought: Substitution"));
    EXPECT_THAT(ear.Steps, ::testing::ElementsAre("BuysGene 2", "PaysBP 2"));
}

TEST_F(BuyingGenes, InFastModeTheReportGoesToTheLogAlone) {
    NewPosition(4);
    GeneEar ear;
    game.FastMode = true;
    game.CurPlayer = 2;
    game.BP[2] = 9;
    BuyGene(GeneNumber("sub"));
    EXPECT_THAT(ear.Logged, ::testing::ElementsAre("Player 2 just bought: Substitution"));
    EXPECT_THAT(ear.Shown, ::testing::IsEmpty());
}

TEST_F(BuyingGenes, APersonsPurchaseIsNotReported) {
    NewPosition(4);
    Person(3);
    GeneEar ear;
    game.CurPlayer = 3;
    game.BP[3] = 9;
    BuyGene(GeneNumber("sub"));
    EXPECT_THAT(ear.Logged, ::testing::IsEmpty());
}

TEST_F(BuyingGenes, TheTentacleBringsAPersonsMenuEntryAndTakesItAway) {
    NewPosition(4);
    Person(3);
    GeneEar ear;
    game.CurPlayer = 3;
    game.BP[3] = 9;
    BuyGene(GeneNumber("ten"));
    EXPECT_THAT(ear.Steps, ::testing::Contains("auto 3"));
    ear.Steps.clear();
    game.AutoFlags[3][2] = true;
    DiscardGene(GeneNumber("ten"));
    EXPECT_FALSE(game.AutoFlags[3][2]);
    EXPECT_THAT(ear.Steps, ::testing::Contains("auto 3"));
}

}  // namespace
}  // namespace plasmos::testing
