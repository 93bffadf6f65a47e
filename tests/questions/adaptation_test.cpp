// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/adaptation.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "model/pcg32.h"
#include "questions/gene_form.h"
#include "tests/support/game_fixture.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

/// What is suggested to clan 3 of four under a UV level.
struct SuggestionRow {
    std::string_view Name;
    std::vector<std::string_view> Held;
    int UV;
    int BP;
    std::string GivenUp;
    int Paid;
};

void PrintTo(const SuggestionRow& row, std::ostream* out) {
    *out << row.Name;
}

class Adaptations : public GameRows<SuggestionRow> {};

std::string CodesOf(const std::vector<int>& genes) {
    std::string codes;
    for (const int gene : genes) {
        codes += Concat(codes.empty() ? "" : " ", GeneCodes[gene]);
    }
    return codes;
}

TEST_P(Adaptations, AreTheCheapest) {
    const SuggestionRow& row = GetParam();
    NewPosition(4);
    for (const auto code : row.Held) {
        Give(3, code);
    }
    game.UVLevel = row.UV;
    game.BP[3] = row.BP;
    const Adaptation suggested = CheapestAdaptation(game, 3);
    EXPECT_EQ(CodesOf(suggested.GivenUp), row.GivenUp);
    EXPECT_EQ(suggested.Paid, row.Paid);
}

const SuggestionRow SuggestionRows[] = {
    {"nothing_where_the_level_fits", {"def", "sub"}, 8, 5, "", 0},
    {"BP_where_they_are_enough", {"def", "sub"}, 6, 2, "", 2},
    {"a_gene_that_costs_less_than_its_points", {"int", "def"}, 4, 9, "int", 0},
    {"a_gene_without_BP", {"def", "sub"}, 6, 0, "def", 0},
    {"the_cheapest_gene_without_BP", {"mv1", "lif"}, 6, 0, "mv1", 0},
    {"a_gene_and_the_rest_in_BP", {"def", "esc", "sub"}, 6, 2, "def", 2},
    {"as_cheap_but_more_genes_are_kept", {"def", "esc"}, 4, 9, "", 4},
    {"never_Ray_Protection", {"ray", "def", "esc"}, 3, 0, "def", 0},
};

INSTANTIATE_TEST_SUITE_P(Persons, Adaptations, ::testing::ValuesIn(SuggestionRows), RowName());

class AnySuggestion : public GameTest {};

/// The least that any set of the held genes and the BP for the rest are worth.
int LeastWorth(int clan, int difference) {
    int least = 1000;
    for (std::int32_t set = 0; set < (1 << GeneCount); ++set) {
        int worth = 0;
        int points = 0;
        bool possible = (set & (1 << (GeneId("ray") - 1))) == 0;
        for (int gene = 1; gene <= GeneCount && possible; ++gene) {
            if ((set >> (gene - 1) & 1) != 0) {
                possible = game.Genes[gene][clan];
                worth += game.Catalogue[gene].Cost;
                points += game.Catalogue[gene].MutationPoints;
            }
        }
        const int paid = std::max(difference - points, 0);
        if (possible && paid <= game.BP[clan]) {
            least = std::min(least, worth + paid);
        }
    }
    return least;
}

TEST_F(AnySuggestion, IsTakenByTheDialogAndNothingIsCheaper) {
    Pcg32 generator;
    generator.Seed(7, 3);
    for (int deal = 0; deal < 12; ++deal) {
        NewPosition(3 + deal % 4);
        for (int gene = 1; gene <= GeneCount; ++gene) {
            if (generator.Next() % 2 == 0 && game.Catalogue[gene].Supply >= 1) {
                Give(3, GeneCodes[gene]);
            }
        }
        game.UVLevel = 6 + static_cast<int>(generator.Next() % 9);
        game.BP[3] = static_cast<int>(generator.Next() % 12);
        const int difference = std::max(game.Players[3].MutationLevel - game.UVLevel, 0);
        GeneForm form(3, "");
        form.PrepareEnvironment();
        form.adaptb_Click();
        ASSERT_LE(form.UVdiff, 0) << "deal " << deal;
        ASSERT_TRUE(form.ShowsSuggestion());
        int worth = form.PaidBP();
        for (const int gene : form.Suggestion().GivenUp) {
            worth += game.Catalogue[gene].Cost;
        }
        ASSERT_EQ(worth, LeastWorth(3, difference)) << "deal " << deal;
        form.doneb_Click();
        ASSERT_EQ(form.Pressed, GeneForm::Button::Done);
    }
}

TEST_F(AnySuggestion, ReplacesWhatWasChosenBefore) {
    NewPosition(4);
    Give(3, {"def", "esc", "sub"});
    game.UVLevel = 6;
    game.BP[3] = 2;
    GeneForm form(3, "");
    form.PrepareEnvironment();
    form.EnvBP_Change("1");
    form.gcheck_Click(GeneNumber("sub"));
    EXPECT_EQ(form.UncountedBP(), 1) << "the box was clicked after they had been typed";
    form.adaptb_Click();
    EXPECT_TRUE(form.IsGivenUp(GeneNumber("def")));
    EXPECT_FALSE(form.IsGivenUp(GeneNumber("sub")));
    EXPECT_EQ(form.EnvBP, "2");
    EXPECT_EQ(form.UVdiff, 0);
    EXPECT_EQ(form.UncountedBP(), 0);
}

}  // namespace
}  // namespace plasmos::testing
