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

std::string SoldOutText(const GameState& state, int gene) {
    return StartingSupply(gene, state.NumPlayers) == 0 ? Concat("not in a game of ", state.NumPlayers, " clans")
                                                       : std::string("sold out");
}

}  // namespace

std::string GeneBarText(const GameState& state, int clan, int gene) {
    switch (WhyNotGene(state, clan, gene)) {
        case GeneBar::None: break;
        case GeneBar::Held: return "you hold it";
        case GeneBar::SoldOut: return SoldOutText(state, gene);
        case GeneBar::TooDear: return Concat("costs ", state.Catalogue[gene].Cost, " BP, you have ", state.BP[clan]);
        case GeneBar::UpgradeHeld: return Concat("its upgrade ", GeneName(UpgradeOf(gene)), " is held");
        case GeneBar::NeedsLower: return NeededText(gene);
    }
    return {};
}

}  // namespace plasmos
