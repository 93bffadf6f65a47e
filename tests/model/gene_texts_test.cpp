// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/gene_texts.h"

#include <gmock/gmock.h>

#include "model/pcg32.h"
#include "tests/support/game_fixture.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;

/// What clan 3 of a game is told of a gene, holding some others and BP.
struct BarRow {
    std::string_view Name;
    int Clans;
    std::vector<std::string_view> Held;
    int BP;
    std::string_view Gene;
    GeneBar Bar;
    std::string Text;
    std::vector<std::string_view> OthersHold = {};
};

void PrintTo(const BarRow& row, std::ostream* out) {
    *out << row.Name;
}

class GeneBars : public GameRows<BarRow> {};

TEST_P(GeneBars, AreToldInWords) {
    const BarRow& row = GetParam();
    NewPosition(row.Clans);
    for (const auto code : row.Held) {
        Give(3, code);
    }
    for (const auto code : row.OthersHold) {
        Give(1, code);
    }
    game.BP[3] = row.BP;
    const int gene = GeneNumber(row.Gene);
    EXPECT_EQ(WhyNotGene(game, 3, gene), row.Bar);
    EXPECT_EQ(GeneBarText(game, 3, gene), row.Text);
    EXPECT_EQ(CanBuyGene(3, gene), row.Text.empty());
}

const BarRow BarRows[] = {
    {"nothing_bars_it", 4, {}, 3, "mv1", GeneBar::None, ""},
    {"held", 4, {"int"}, 9, "int", GeneBar::Held, "you hold it"},
    {"held_and_too_dear", 4, {"int"}, 0, "int", GeneBar::Held, "you hold it"},
    {"the_last_copy_is_gone", 4, {}, 9, "hol", GeneBar::SoldOut, "sold out", {"hol"}},
    {"in_no_game_of_three", 3, {}, 9, "fru", GeneBar::SoldOut, "not in a game of 3 clans"},
    {"one_BP_too_few", 4, {}, 4, "ten", GeneBar::TooDear, "costs 5 BP, you have 4"},
    {"exactly_enough", 4, {}, 5, "ten", GeneBar::None, ""},
    {"too_dear_and_without_the_lower_gene",
     4,
     {},
     3,
     "mv2",
     GeneBar::TooDear,
     "needs Movement 1; costs 5 BP, you have 3"},
    {"too_dear_with_the_lower_gene", 4, {"mv1"}, 3, "mv2", GeneBar::TooDear, "costs 5 BP, you have 3"},
    {"too_dear_beside_its_upgrade",
     4,
     {"mv2"},
     2,
     "mv1",
     GeneBar::TooDear,
     "its upgrade Movement 2 is held; costs 3 BP, you have 2"},
    {"an_upgrade", 4, {}, 9, "mv2", GeneBar::NeedsLower, "needs Movement 1"},
    {"an_upgrade_of_either", 4, {}, 9, "arm", GeneBar::NeedsLower, "needs Defence or Escape"},
    {"an_upgrade_of_the_second", 4, {"esc"}, 9, "arm", GeneBar::None, ""},
    {"beside_its_upgrade", 4, {"mv2"}, 9, "mv1", GeneBar::UpgradeHeld, "its upgrade Movement 2 is held"},
    {"the_other_beside_the_upgrade", 4, {"arm"}, 9, "esc", GeneBar::UpgradeHeld, "its upgrade Armor is held"},
};

INSTANTIATE_TEST_SUITE_P(Genes, GeneBars, ::testing::ValuesIn(BarRows), RowName());

TEST(GeneTexts, TellOfTheFamilies) {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        const LowerGenes lower = LowerGenesOf(gene);
        for (const int needed : {lower.First, lower.OrElse}) {
            if (needed != 0) {
                EXPECT_THAT(std::string(GeneText(gene)), HasSubstr(std::string(GeneName(needed)))) << GeneName(gene);
                EXPECT_THAT(std::string(GeneText(needed)), HasSubstr(std::string(GeneName(gene)))) << GeneName(needed);
                EXPECT_EQ(UpgradeOf(needed), gene);
            }
        }
        EXPECT_THAT(std::string(GeneText(gene)), EndsWith(".")) << GeneName(gene);
    }
    EXPECT_EQ(GeneText(0), "");
    EXPECT_EQ(GeneText(GeneCount + 1), "");
}

/// Clans that hold any genes and any BP.
class AnyHolders : public GameTest {
protected:
    explicit AnyHolders() { generator_.Seed(4711, 3); }

    int Draw(int below) { return static_cast<int>(generator_.Next() % static_cast<unsigned>(below)); }
    void Deal() {
        NewPosition(3 + Draw(4));
        for (int clan = 1; clan <= game.NumPlayers; ++clan) {
            game.BP[clan] = Draw(9);
            for (int gene = 1; gene <= GeneCount; ++gene) {
                if (Draw(4) == 0 && game.Catalogue[gene].Supply >= 1) {
                    Give(clan, GeneCodes[gene]);
                }
            }
        }
    }

private:
    Pcg32 generator_;
};

/// The rule of the purchase, step by step.
bool MayBuy(int clan, int gene) {
    const auto holds = [clan](const char* code) { return game.Genes[GeneNumber(code)][clan]; };
    const std::string_view code = GeneCodes[gene];
    if (game.Genes[gene][clan] || game.Catalogue[gene].Supply < 1 || game.Catalogue[gene].Cost > game.BP[clan]) {
        return false;
    }
    return !((code == "mv1" && holds("mv2")) || (code == "spe" && holds("per")) || (code == "def" && holds("arm")) ||
             (code == "esc" && holds("arm")) || (code == "sfs" && holds("agg")) || (code == "per" && !holds("spe")) ||
             (code == "mv2" && !holds("mv1")) || (code == "agg" && !holds("sfs")) ||
             (code == "arm" && !holds("def") && !holds("esc")));
}

TEST_F(AnyHolders, AreToldWhyWhereverTheyMayNotBuy) {
    int bought = 0;
    for (int deal = 0; deal < Scaled(2000); ++deal) {
        Deal();
        for (int gene = 1; gene <= GeneCount; ++gene) {
            const int clan = 1 + deal % game.NumPlayers;
            ASSERT_EQ(CanBuyGene(clan, gene), MayBuy(clan, gene)) << GeneName(gene) << " in deal " << deal;
            ASSERT_EQ(CanBuyGene(clan, gene), GeneBarText(game, clan, gene).empty()) << GeneName(gene);
            bought += CanBuyGene(clan, gene) ? 1 : 0;
        }
    }
    EXPECT_GT(bought, Scaled(2000));
}

TEST_F(AnyHolders, AreToldTheLevelThatTheyWillHave) {
    for (int deal = 0; deal < Scaled(1000); ++deal) {
        Deal();
        game.CurPlayer = 1 + deal % game.NumPlayers;
        for (int gene = 1; gene <= GeneCount; ++gene) {
            if (CanBuyGene(game.CurPlayer, gene)) {
                const int level = LevelWith(game, game.CurPlayer, gene);
                BuyGene(gene);
                ASSERT_EQ(game.Players[game.CurPlayer].MutationLevel, level) << GeneName(gene);
            }
        }
    }
}

}  // namespace
}  // namespace plasmos::testing
