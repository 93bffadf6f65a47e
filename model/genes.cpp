// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/genes.h"

#include <algorithm>
#include <array>

#include "model/happening.h"
#include "model/presentation.h"

namespace plasmos {

namespace {

using Kind = Happening::Kind;

constexpr Table<GeneRow, 0, GeneCount> Rows = [] {
    Table<GeneRow, 0, GeneCount> rows{};
    for (int gene = 1; gene <= GeneCount; ++gene) {
        rows[gene] = GeneRows[gene - 1];
    }
    return rows;
}();

/// An upgrade and a gene that it replaces.
struct FamilyTie {
    int Upgrade = 0;
    int Lower = 0;
};

constexpr std::size_t TieCount = [] {
    std::size_t count = 0;
    for (const GeneRow& row : GeneRows) {
        count += row.Upgrades.empty() ? 0 : 1;
        count += row.OrElse.empty() ? 0 : 1;
    }
    return count;
}();

/// All ties; those of an upgrade in the order of its row.
constexpr std::array<FamilyTie, TieCount> FamilyTies = [] {
    std::array<FamilyTie, TieCount> ties;
    std::size_t count = 0;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        for (const auto code : {Rows[gene].Upgrades, Rows[gene].OrElse}) {
            if (!code.empty()) {
                ties[count++] = {gene, GeneNumber(code)};
            }
        }
    }
    return ties;
}();

static_assert(std::ranges::none_of(FamilyTies, [](const FamilyTie& tie) { return tie.Lower == 0; }),
              "an upgrade names a code that no gene has");

/// The gene that an upgrade replaces in a clan: the first that it holds, else the last of them; 0: none.
int ReplacedGene(const GameState& state, int clan, int upgrade) {
    int replaced = 0;
    for (const FamilyTie& tie : FamilyTies) {
        if (tie.Upgrade == upgrade && !(replaced != 0 && state.Genes[replaced][clan])) {
            replaced = tie.Lower;
        }
    }
    return replaced;
}

void LoseTentacle(int clan) {
    game.AutoFlags[clan][2] = false;
    Show(&Presentation::ShowAutoFlags, clan);
}

}  // namespace

std::string_view GeneName(int gene) {
    return gene >= 1 && gene <= GeneCount ? Rows[gene].Name : std::string_view{};
}

int CountGenes(const GameState& state, int clan) {
    int count = 0;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        count += state.Genes[gene][clan] ? 1 : 0;
    }
    return count;
}

GeneBar FamilyBar(const GameState& state, int clan, int gene) {
    bool needsLower = false;
    bool hasLower = false;
    for (const FamilyTie& tie : FamilyTies) {
        if (tie.Lower == gene && state.Genes[tie.Upgrade][clan]) {
            return GeneBar::UpgradeHeld;
        }
        needsLower = needsLower || tie.Upgrade == gene;
        hasLower = hasLower || (tie.Upgrade == gene && state.Genes[tie.Lower][clan]);
    }
    return hasLower || !needsLower ? GeneBar::None : GeneBar::NeedsLower;
}

GeneBar WhyNotGene(const GameState& state, int clan, int gene) {
    const GeneRecord& record = state.Catalogue[gene];
    if (state.Genes[gene][clan]) {
        return GeneBar::Held;
    }
    if (record.Supply < 1) {
        return GeneBar::SoldOut;
    }
    return record.Cost > state.BP[clan] ? GeneBar::TooDear : FamilyBar(state, clan, gene);
}

LowerGenes LowerGenesOf(int gene) {
    LowerGenes lower;
    for (const FamilyTie& tie : FamilyTies) {
        if (tie.Upgrade == gene) {
            (lower.First == 0 ? lower.First : lower.OrElse) = tie.Lower;
        }
    }
    return lower;
}

int UpgradeOf(int gene) {
    const auto* tie = std::ranges::find(FamilyTies, gene, &FamilyTie::Lower);
    return tie != FamilyTies.end() ? tie->Upgrade : 0;
}

int LevelWith(const GameState& state, int clan, int gene) {
    const int replaced = ReplacedGene(state, clan, gene);
    const bool loses = replaced != 0 && state.Genes[replaced][clan];
    return state.Players[clan].MutationLevel + state.Catalogue[gene].MutationPoints -
           (loses ? state.Catalogue[replaced].MutationPoints : 0);
}

void BuyGene(int gene) {
    const int clan = game.CurPlayer;
    GeneRecord& record = game.Catalogue[gene];
    game.BP[clan] -= record.Cost;
    game.Players[clan].MutationLevel += record.MutationPoints;
    --record.Supply;
    game.Genes[gene][clan] = true;
    game.BoughtAs[gene][clan] = ++game.Purchases;
    Happened({.What = Kind::BuysGene, .Clan = clan, .Number = gene});
    Happened({.What = Kind::PaysBP, .Clan = clan, .Number = record.Cost});
    if (const int replaced = ReplacedGene(game, clan, gene); replaced != 0) {
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
    Happened({.What = Kind::LosesGene, .Clan = clan, .Number = gene});
    if (gene == GeneId("ten") && !game.Players[clan].IsComputer) {
        LoseTentacle(clan);
    }
}

int StartingSupply(int gene, int clans) {
    const GeneRow& row = Rows[gene];
    if (clans >= 5) {
        return row.Supply56;
    }
    return clans == 4 ? row.Supply4 : row.Supply3;
}

void ResetGenes() {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        const GeneRow& row = Rows[gene];
        const int points = game.NumPlayers >= 5 ? row.PointsMany : row.PointsFew;
        game.Catalogue[gene] = {StartingSupply(gene, game.NumPlayers), row.Cost, points};
        game.Genes[gene] = {};
    }
}

std::string MutationTip(const GameState& state, int clan) {
    return Concat("Mutation level: ", state.Players[clan].MutationLevel);
}

std::string GeneTip(const GameState& state, int gene) {
    const GeneRow& row = Rows[gene];
    const bool fewClans = state.NumPlayers == 3 || state.NumPlayers == 4;
    const int points = gene == GeneId("sfs") && fewClans ? row.PointsFew : row.PointsMany;
    return Concat(row.Cost, " BP; UV ", points);
}

}  // namespace plasmos
