// SPDX-License-Identifier: GPL-3.0-or-later
#include "ai/computer_genes.h"
#include "rules/computer_clan.h"

#include <bit>

#include "model/dice.h"
#include "model/genes.h"
#include "rules/division.h"

namespace plasmos {

namespace {

constexpr int GenerousCap = 50;
constexpr int CloseToVictory = 5;
constexpr int FailedDraws = 5;
constexpr int LeastForDraws = 5;
constexpr int LeastForIntelligence = 2;
constexpr int FirstTurnForIntelligence = 6;

/// One computer clan at the shop.
class Shopping {
public:
    explicit Shopping(int clan)
        : clan_(clan), reserve_(DivisionPrice(clan)), cap_(SpendingCap()), ownedAll_(OwnsAllFavourites()) {}

    void Run() {
        if (!ownedAll_) {
            BuyFavourites();
            if (game.Turn != 1 || !bought_) {
                BuyFallback();
            }
        }
        BuyByChance();
        BuyIntelligence();
        if (game.Turn == LastTurn) {
            SpendAll();
        }
    }

private:
    bool OwnsAllFavourites() const {
        for (int gene = NextFavourite(0); gene != 0; gene = NextFavourite(gene)) {
            if (!game.Genes[gene][clan_]) {
                return false;
            }
        }
        return true;
    }

    /// The clan's next favourite after a gene in number order; 0: there is none.
    int NextFavourite(int gene) const {
        const auto left = static_cast<std::uint32_t>(game.Players[clan_].Personality) & std::uint32_t{AllGenes} &
                          (~0U << static_cast<unsigned>(gene));
        return left == 0 ? 0 : std::countr_zero(left) + 1;
    }

    bool Buy(int gene) {
        if (!CanBuyGene(clan_, gene)) {
            return false;
        }
        BuyGene(gene);
        bought_ = true;
        return true;
    }

    bool BelowCap() const { return game.Players[clan_].MutationLevel < cap_; }

    /// BP that are left when every amoeba the clan could still divide is set aside.
    int Spare() const { return game.BP[clan_] - reserve_ * (game.MaxAmoeba - game.AmoebaCount[clan_]); }

    void BuyFavourites() {
        for (int gene = NextFavourite(0); gene != 0; gene = NextFavourite(gene)) {
            if (!CanBuyGene(clan_, gene)) {
                continue;
            }
            if (!BelowCap()) {
                return;
            }
            Buy(gene);
            if (game.Turn == 1) {
                return;
            }
        }
    }

    void BuyFallback() {
        for (const GeneCode gene : {GeneCode("per"), GeneCode("agg"), GeneCode("mv2"), GeneCode("arm")}) {
            const bool tooHard = gene.Number == GeneId("mv2") && game.Menu.normmen;
            if (!tooHard && Buy(gene.Number)) {
                return;
            }
        }
    }

    void BuyByChance() {
        for (int failed = 0; failed < FailedDraws && Spare() >= LeastForDraws && BelowCap();) {
            const int gene = RollDie(GeneCount);
            const bool refused = gene == GeneId("ray") && game.Turn == LastTurn;
            failed = !refused && Buy(gene) ? 0 : failed + 1;
        }
    }

    void BuyIntelligence() {
        if (game.Turn >= FirstTurnForIntelligence && Spare() >= LeastForIntelligence &&
            game.BP[clan_] % reserve_ >= LeastForIntelligence) {
            Buy(GeneId("int"));
        }
    }

    void SpendAll() {
        for (int gene = 1; gene <= GeneCount && game.Catalogue[gene].Cost <= game.BP[clan_]; ++gene) {
            Buy(gene);
        }
    }

    int clan_;
    int reserve_;
    int cap_;
    bool ownedAll_;
    bool bought_ = false;
};

}  // namespace

bool IsFavourite(int clan, int gene) {
    return (static_cast<std::uint32_t>(game.Players[clan].Personality) >> static_cast<unsigned>(gene - 1) & 1U) != 0;
}

int SpendingCap() {
    const int leader = game.Players[game.PlayOrder[1]].Score;
    if (game.Turn == LastTurn || (game.Menu.victorymen && VictoryScore - leader < CloseToVictory)) {
        return GenerousCap;
    }
    int sum = 0;
    for (int card = 1; card <= LastCard; ++card) {
        sum += game.EnvDeck[card].UV;
    }
    return sum / (LastTurn + 1 - game.Turn);
}

void ComputerBuyGenes() {
    Shopping(game.CurPlayer).Run();
}

}  // namespace plasmos
