// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/gene_texts.h"

#include "files/text.h"

namespace plasmos {

namespace {

std::string NeededText(int gene) {
    const LowerGenes lower = LowerGenesOf(gene);
    return lower.OrElse == 0 ? Concat("needs ", GeneName(lower.First))
                             : Concat("needs ", GeneName(lower.First), " or ", GeneName(lower.OrElse));
}

std::string FamilyText(GeneBar bar, int gene) {
    return bar == GeneBar::NeedsLower    ? NeededText(gene)
           : bar == GeneBar::UpgradeHeld ? Concat("its upgrade ", GeneName(UpgradeOf(gene)), " is held")
                                         : std::string();
}

std::string SoldOutText(const GameState& state, int gene) {
    return StartingSupply(gene, state.NumPlayers) == 0 ? Concat("not in a game of ", state.NumPlayers, " clans")
                                                       : std::string("sold out");
}

// BP would not help a clan that its other genes keep from it.
std::string TooDearText(const GameState& state, int clan, int gene) {
    const std::string price = Concat("costs ", state.Catalogue[gene].Cost, " BP, you have ", state.BP[clan]);
    const std::string family = FamilyText(FamilyBar(state, clan, gene), gene);
    return family.empty() ? price : Concat(family, "; ", price);
}

}  // namespace

std::string GeneBarText(const GameState& state, int clan, int gene) {
    switch (WhyNotGene(state, clan, gene)) {
        case GeneBar::None: break;
        case GeneBar::Held: return "you hold it";
        case GeneBar::SoldOut: return SoldOutText(state, gene);
        case GeneBar::TooDear: return TooDearText(state, clan, gene);
        case GeneBar::UpgradeHeld:
        case GeneBar::NeedsLower: return FamilyText(WhyNotGene(state, clan, gene), gene);
    }
    return {};
}

std::string GenePrice(const GameState& state, int gene) {
    const GeneRecord& row = state.Catalogue[gene];
    return Concat(row.Cost, " BP, mutation ", row.MutationPoints > 0 ? "+" : "", row.MutationPoints);
}

}  // namespace plasmos
