// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "model/game_state.h"

namespace plasmos {

/// The twenty genes by number. Rules ask for them by their three-letter codes.
inline constexpr std::string_view GeneCodes[GeneCount + 1] = {"",    "int", "mv1", "spo", "spe", "def", "esc",
                                                              "sub", "ray", "str", "ten", "hol", "lif", "fru",
                                                              "sfs", "par", "div", "per", "mv2", "agg", "arm"};

/// Gene number 1..20 of a three-letter code (lower case, exact); 0 for any other text.
constexpr int GeneNumber(std::string_view code) {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (GeneCodes[gene] == code) {
            return gene;
        }
    }
    return 0;
}

/// A gene code written in the source, turned into its number by the compiler.
struct GeneCode {
    consteval GeneCode(const char* code) : Number(GeneNumber(code)) {}

    int Number;
};

/// The number of a gene code written in the source.
consteval int GeneId(const char* code) {
    return GeneNumber(code);
}

/// Display name of gene 1..20; an empty text for any other number.
std::string_view GeneName(int gene);

/// Whether a clan holds a gene.
inline bool HasGene(const GameState& state, int clan, GeneCode code) {
    return state.Genes[code.Number][clan];
}
inline bool HasGene(int clan, GeneCode code) {
    return HasGene(game, clan, code);
}

/// How many genes a clan holds, Ray Protection included.
int CountGenes(const GameState& state, int clan);
inline int CountGenes(int clan) {
    return CountGenes(game, clan);
}

/// Whether a clan may buy a gene now: it does not hold it, a copy is left, it has the BP, and the
/// family rule allows it (an upgrade needs the lower gene, a lower gene is refused beside its upgrade).
bool CanBuyGene(int clan, int gene);

/// Gives a gene to the current clan and charges it. An upgrade discards the gene it replaces;
/// armour takes "def" if the clan holds it and otherwise "esc".
void BuyGene(int gene);

/// Takes a gene from the current clan and returns it to the supply.
void DiscardGene(int gene);

/// Fills the catalogue for the number of clans in play and takes every gene from every clan.
void ResetGenes();

/// The supply of a gene at the start of a game with a number of clans.
int StartingSupply(int gene, int clans);

/// "Mutation level: " and a clan's level, the tool tip of its gene list.
std::string MutationTip(const GameState& state, int clan);
inline std::string MutationTip(int clan) {
    return MutationTip(game, clan);
}

/// "2 BP; UV 3": cost and mutation points of a gene as the gene dialog shows them. They are those of
/// a game of 5 or 6 clans; with fewer clans only "Struggle for Survival" is shown with its 4 points,
/// "Streamlining" keeps its 5.
std::string GeneTip(const GameState& state, int gene);
inline std::string GeneTip(int gene) {
    return GeneTip(game, gene);
}

}  // namespace plasmos
