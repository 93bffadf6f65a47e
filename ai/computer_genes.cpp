// SPDX-License-Identifier: GPL-3.0-or-later
#include "ai/computer_genes.h"
#include "rules/computer_clan.h"

#include <algorithm>
#include <bit>

#include "model/dice.h"
#include "model/genes.h"
#include "model/reasons.h"
#include "rules/division.h"

namespace plasmos {

namespace {

constexpr int GenerousCap = 50;
constexpr int CloseToVictory = 5;
constexpr int FailedDraws = 5;
constexpr int LeastForDraws = 5;
constexpr int LeastForIntelligence = 2;
constexpr int FirstTurnForIntelligence = 6;

/// What a gene costs: "costs 3 of its 10 BP".
struct GenePrice {
    int Gene, Clan;
};
void AppendPiece(std::string& text, const GenePrice& price) {
    text += Concat("costs ", game.Catalogue[price.Gene].Cost, " of its ", game.BP[price.Clan], " BP");
}

/// What a clan keeps for divisions: "It has 15 BP, keeps 6 for each of the amoebas it could still divide (2)".
struct Reserve {
    int Clan, Each;
};
void AppendPiece(std::string& text, const Reserve& reserve) {
    text += Concat("It has ", game.BP[reserve.Clan], " BP");
    if (const int places = game.MaxAmoeba - game.AmoebaCount[reserve.Clan]; places > 0) {
        text += Concat(", keeps ", reserve.Each, " for each of the amoebas it could still divide (", places, ")");
    }
}

struct LevelOf {
    int Clan;
};
void AppendPiece(std::string& text, LevelOf level) {
    text += Concat("mutation level ", game.Players[level.Clan].MutationLevel);
}

/// Whose favourites are meant: "Player 2 (Mover)".
struct Fancier {
    int Clan;
};
void AppendPiece(std::string& text, Fancier fancier) {
    text += Concat(TheClan{fancier.Clan}, " (", game.Players[fancier.Clan].PersonalityName, ")");
}

std::string BarText(int clan, int gene) {
    switch (WhyNotGene(game, clan, gene)) {
        case GeneBar::SoldOut: return "sold out";
        case GeneBar::TooDear: return Concat(game.Catalogue[gene].Cost, " BP");
        case GeneBar::UpgradeHeld: return "it holds the upgrade";
        case GeneBar::NeedsLower: return "it needs the lower gene";
        default: return "";
    }
}

/// What is bought where no favourite helps, the first that may be.
constexpr GeneCode Fallback[] = {"per", "agg", "mv2", "arm"};

/// With difficulty "Normal" Movement 2 is left to those who fancy it.
bool IsFallback(GeneCode gene) {
    return gene.Number != GeneId("mv2") || !game.Menu.normmen;
}

struct FallbackList {};
void AppendPiece(std::string& text, FallbackList) {
    const auto count = static_cast<int>(std::count_if(std::begin(Fallback), std::end(Fallback), IsFallback));
    int place = 0;
    for (const GeneCode gene : Fallback) {
        if (IsFallback(gene)) {
            AppendSeparator(text, ++place, count);
            text += GeneName(gene.Number);
        }
    }
}

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
        } else {
            Because(Fancier{clan_}, " has all its favourites.");
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

    bool CanBuy(int gene) const { return CanBuyGene(clan_, gene); }
    void Buy(int gene) {
        BuyGene(gene);
        bought_ = true;
    }

    bool BelowCap() const { return game.Players[clan_].MutationLevel < cap_; }

    /// BP that are left when every amoeba the clan could still divide is set aside.
    int Spare() const { return game.BP[clan_] - reserve_ * (game.MaxAmoeba - game.AmoebaCount[clan_]); }

    void BuyFavourites() {
        for (int gene = NextFavourite(0); gene != 0; gene = NextFavourite(gene)) {
            if (!CanBuy(gene)) {
                continue;
            }
            if (!BelowCap()) {
                Because(TheGene{gene}, " would be a favourite, but at ", LevelOf{clan_}, " ", TheClan{clan_},
                        " buys none: this turn it stops at ", cap_, ".");
                return;
            }
            Because(TheGene{gene}, " is a favourite of ", Fancier{clan_}, " and ", GenePrice{gene, clan_}, ".");
            Buy(gene);
            if (game.Turn == 1) {
                Because("In turn 1 it buys one favourite at most.");
                return;
            }
        }
        if (ReasonsAreWanted()) [[unlikely]] {
            TellBars();
        }
    }

    /// The favourites that are left.
    [[gnu::cold]] void TellBars() const {
        std::string barred;
        for (int gene = NextFavourite(0); gene != 0; gene = NextFavourite(gene)) {
            if (const auto bar = BarText(clan_, gene); !bar.empty()) {
                barred += Concat(barred.empty() ? "" : ", ", TheGene{gene}, " (", bar, ")");
            }
        }
        if (!barred.empty()) {
            Because("Favourites that it cannot buy now: ", barred, ".");
        }
    }

    void BuyFallback() {
        for (const GeneCode gene : Fallback) {
            if (IsFallback(gene) && CanBuy(gene.Number)) {
                Because("Beside its favourites it takes the first it can of ", FallbackList{}, ": ",
                        TheGene{gene.Number}, ", which ", GenePrice{gene.Number, clan_}, ".");
                Buy(gene.Number);
                return;
            }
        }
    }

    /// Whether it draws for one more gene. The last reason of every shopping is why not.
    bool MayDraw(int failed) const {
        if (failed >= FailedDraws) {
            Because("A die over all genes threw ", FailedDraws, " in a row that it cannot buy.");
            return false;
        }
        if (Spare() < LeastForDraws) {
            Because(Reserve{clan_, reserve_}, " and draws for more genes only with ", LeastForDraws, " to spare.");
            return false;
        }
        if (!BelowCap()) {
            Because("It draws for no more genes at ", LevelOf{clan_}, ": this turn it stops at ", cap_, ".");
            return false;
        }
        return true;
    }

    void BuyByChance() {
        for (int failed = 0; MayDraw(failed);) {
            const int gene = RollDie(GeneCount);
            const bool refused = gene == GeneId("ray") && game.Turn == LastTurn;
            if (refused || !CanBuy(gene)) {
                ++failed;
                continue;
            }
            Because("The die over all genes threw ", gene, ": ", TheGene{gene}, ", which ", GenePrice{gene, clan_},
                    ".");
            Buy(gene);
            failed = 0;
        }
    }

    void BuyIntelligence() {
        if (game.Turn >= FirstTurnForIntelligence && Spare() >= LeastForIntelligence &&
            game.BP[clan_] % reserve_ >= LeastForIntelligence && CanBuy(GeneId("int"))) {
            Because("From turn ", FirstTurnForIntelligence,
                    " on BP that no division can use go into Intelligence, which ", GenePrice{GeneId("int"), clan_},
                    ".");
            Buy(GeneId("int"));
        }
    }

    void SpendAll() {
        for (int gene = 1; gene <= GeneCount && game.Catalogue[gene].Cost <= game.BP[clan_]; ++gene) {
            if (CanBuy(gene)) {
                Because("In turn ", LastTurn, " it buys whatever it can: ", TheGene{gene}, ", which ",
                        GenePrice{gene, clan_}, ".");
                Buy(gene);
            }
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
