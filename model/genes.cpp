// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/genes.h"

#include "model/narration.h"
#include "model/presentation.h"
#include "model/signature.h"

namespace plasmos {

namespace {

struct CatalogueEntry {
    std::string_view Name;
    int Cost;
    int PointsFew;   ///< mutation points with 3 or 4 clans
    int PointsMany;  ///< mutation points with 5 or 6 clans
    int Supply3, Supply4, Supply56;
};

constexpr Table<CatalogueEntry, 0, GeneCount> Entries = [] {
    constexpr CatalogueEntry rows[GeneCount] = {
        {"Intelligence", 2, 3, 3, 1, 2, 3}, {"Movement 1", 3, 2, 2, 2, 2, 3},
        {"Spores", 3, 3, 3, 1, 1, 2},       {"Speed", 4, 3, 3, 1, 2, 2},
        {"Defence", 4, 4, 4, 1, 1, 2},      {"Escape", 4, 4, 4, 1, 2, 2},
        {"Substitution", 4, 4, 4, 1, 1, 2}, {"Ray Protection", 5, -2, -2, 1, 2, 2},
        {"Streamlining", 5, 4, 5, 1, 1, 2}, {"Tentacle", 5, 4, 4, 1, 2, 2},
        {"Holding", 5, 4, 4, 1, 1, 1},      {"Life Expectancy", 5, 5, 5, 1, 2, 2},
        {"Frugality", 6, 5, 5, 0, 1, 2},    {"Struggle for Survival", 6, 4, 5, 2, 2, 3},
        {"Parasitism", 6, 5, 5, 0, 1, 2},   {"Division Rate", 6, 5, 5, 1, 2, 2},
        {"Persistence", 4, 4, 4, 1, 1, 1},  {"Movement 2", 5, 5, 5, 1, 2, 2},
        {"Aggression", 5, 5, 5, 1, 1, 1},   {"Armor", 6, 6, 6, 1, 1, 1},
    };
    Table<CatalogueEntry, 0, GeneCount> entries{};
    for (int gene = 1; gene <= GeneCount; ++gene) {
        entries[gene] = rows[gene - 1];
    }
    return entries;
}();

bool FamilyAllows(int clan, int gene) {
    switch (gene) {
        case GeneId("mv1"): return !HasGene(clan, "mv2");
        case GeneId("spe"): return !HasGene(clan, "per");
        case GeneId("sfs"): return !HasGene(clan, "agg");
        case GeneId("def"):
        case GeneId("esc"): return !HasGene(clan, "arm");
        case GeneId("per"): return HasGene(clan, "spe");
        case GeneId("mv2"): return HasGene(clan, "mv1");
        case GeneId("agg"): return HasGene(clan, "sfs");
        case GeneId("arm"): return HasGene(clan, "def") || HasGene(clan, "esc");
        default: return true;
    }
}

/// The gene that an upgrade replaces in the current clan; 0: none.
int ReplacedGene(int upgrade) {
    switch (upgrade) {
        case GeneId("per"): return GeneId("spe");
        case GeneId("mv2"): return GeneId("mv1");
        case GeneId("agg"): return GeneId("sfs");
        case GeneId("arm"): return HasGene(game.CurPlayer, "def") ? GeneId("def") : GeneId("esc");
        default: return 0;
    }
}

void LoseTentacle(int clan) {
    game.AutoFlags[clan][2] = false;
    Show(&Presentation::ShowAutoFlags, clan);
}

}  // namespace

std::string_view GeneName(int gene) {
    return gene >= 1 && gene <= GeneCount ? Entries[gene].Name : std::string_view{};
}

int CountGenes(const GameState& state, int clan) {
    int count = 0;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        count += state.Genes[gene][clan] ? 1 : 0;
    }
    return count;
}

bool CanBuyGene(int clan, int gene) {
    const GeneRecord& record = game.Catalogue[gene];
    if (game.Genes[gene][clan] || record.Supply < 1 || record.Cost > game.BP[clan]) {
        return false;
    }
    return FamilyAllows(clan, gene);
}

void BuyGene(int gene) {
    const int clan = game.CurPlayer;
    GeneRecord& record = game.Catalogue[gene];
    game.BP[clan] -= record.Cost;
    game.Players[clan].MutationLevel += record.MutationPoints;
    --record.Supply;
    game.Genes[gene][clan] = true;
    game.BoughtAs[gene][clan] = ++game.Purchases;
    Sign(SignedEvent::Purchase, clan, gene);
    Show(&Presentation::ShowGenes, clan);
    if (game.Players[clan].IsComputer) {
        Report(game.Players[clan].Name, " just bought: ", GeneName(gene));
    }
    Show(&Presentation::ShowBP, clan);
    if (const int replaced = ReplacedGene(gene); replaced != 0) {
        DiscardGene(replaced);
    }
    if (gene == GeneId("ten") && !game.Players[clan].IsComputer) {
        Show(&Presentation::ShowAutoFlags, clan);
    }
}

void DiscardGene(int gene) {
    const int clan = game.CurPlayer;
    game.Genes[gene][clan] = false;
    game.Players[clan].MutationLevel -= game.Catalogue[gene].MutationPoints;
    ++game.Catalogue[gene].Supply;
    Show(&Presentation::ShowGenes, clan);
    if (gene == GeneId("ten") && !game.Players[clan].IsComputer) {
        LoseTentacle(clan);
    }
}

int StartingSupply(int gene, int clans) {
    const CatalogueEntry& entry = Entries[gene];
    if (clans >= 5) {
        return entry.Supply56;
    }
    return clans == 4 ? entry.Supply4 : entry.Supply3;
}

void ResetGenes() {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        const CatalogueEntry& entry = Entries[gene];
        const int points = game.NumPlayers >= 5 ? entry.PointsMany : entry.PointsFew;
        game.Catalogue[gene] = {StartingSupply(gene, game.NumPlayers), entry.Cost, points};
        game.Genes[gene] = {};
    }
}

std::string MutationTip(const GameState& state, int clan) {
    return Concat("Mutation level: ", state.Players[clan].MutationLevel);
}

std::string GeneTip(const GameState& state, int gene) {
    const CatalogueEntry& entry = Entries[gene];
    const bool fewClans = state.NumPlayers == 3 || state.NumPlayers == 4;
    const int points = gene == GeneId("sfs") && fewClans ? entry.PointsFew : entry.PointsMany;
    return Concat(entry.Cost, " BP; UV ", points);
}

}  // namespace plasmos
