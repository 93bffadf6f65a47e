// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "model/game_state.h"

namespace plasmos {

/// The codes of the genes by number, out of their rows. Rules ask for genes by their codes.
inline constexpr Table<std::string_view, 0, GeneCount> GeneCodes = [] {
    Table<std::string_view, 0, GeneCount> codes;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        codes[gene] = GeneRows[gene - 1].Code;
    }
    return codes;
}();

/// Gene number 1..GeneCount of a three-letter code (lower case, exact); 0 for any other text.
constexpr int GeneNumber(std::string_view code) {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (GeneCodes[gene] == code) {
            return gene;
        }
    }
    return 0;
}

/// The number of a gene code written in the source; a code that no gene has does not compile.
consteval int GeneId(const char* code) {
    const int gene = GeneNumber(code);
    return gene != 0 ? gene : throw code;  // NOLINT(misc-throw-by-value-catch-by-reference): never thrown
}

/// A gene code written in the source, turned into its number by the compiler.
struct GeneCode {
    consteval GeneCode(const char* code) : Number(GeneId(code)) {}

    int Number;
};

/// Every gene as a set of bits: bit (gene - 1) stands for a gene.
inline constexpr std::int32_t AllGenes = (1 << GeneCount) - 1;
static_assert(GeneCount <= 31, "a set of genes has a bit for each");

/// The same for some genes.
consteval std::int32_t GenesOf(std::initializer_list<GeneCode> genes) {
    std::int32_t bits = 0;
    for (const GeneCode gene : genes) {
        bits |= 1 << (gene.Number - 1);
    }
    return bits;
}

/// Display name of a gene; an empty text for any other number.
std::string_view GeneName(int gene);

/// Whether a clan holds a gene.
inline bool HasGene(const GameState& state, int clan, GeneCode code) {
    return state.Genes[code.Number][clan];
}
inline bool HasGene(int clan, GeneCode code) {
    return HasGene(game, clan, code);
}

/// What Ray Protection counts while a clan adapts to the UV level; it really holds -2 points.
inline constexpr int RayCredit = 4;

/// How many genes a clan holds, Ray Protection included.
int CountGenes(const GameState& state, int clan);
inline int CountGenes(int clan) {
    return CountGenes(game, clan);
}

/// What keeps a clan from buying a gene.
enum class GeneBar : std::uint8_t {
    None,         ///< it may buy it
    Held,         ///< it holds the gene
    SoldOut,      ///< no copy is left
    TooDear,      ///< it has not the BP
    UpgradeHeld,  ///< a lower gene is refused beside its upgrade
    NeedsLower    ///< an upgrade needs a lower gene
};

/// The first of the bars, in the order above, between a clan and a gene now.
GeneBar WhyNotGene(const GameState& state, int clan, int gene);

/// What the other genes of a clan have against a gene, whatever it costs: UpgradeHeld, NeedsLower or None.
GeneBar FamilyBar(const GameState& state, int clan, int gene);

/// Whether a clan may buy a gene now: nothing bars it.
inline bool CanBuyGene(const GameState& state, int clan, int gene) {
    return WhyNotGene(state, clan, gene) == GeneBar::None;
}
inline bool CanBuyGene(int clan, int gene) {
    return CanBuyGene(game, clan, gene);
}

/// The lower genes of an upgrade, in the order in which they are looked for; 0: no more.
struct LowerGenes {
    int First = 0;
    int OrElse = 0;
};
LowerGenes LowerGenesOf(int gene);

/// The upgrade that replaces a gene; 0: none.
int UpgradeOf(int gene);

/// The mutation level that a clan would have after buying a gene, without the gene that it replaces.
int LevelWith(const GameState& state, int clan, int gene);

/// Gives a gene to the current clan and charges it. An upgrade discards the gene it replaces,
/// the first lower one of its row that the clan holds.
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
