// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/computer_clan.h"

#include <utility>

#include "ai/computer_genes.h"
#include "model/bio_points.h"
#include "model/genes.h"
#include "model/happening.h"
#include "model/narration.h"
#include "model/reasons.h"
#include "questions/ask.h"

namespace plasmos {

namespace {

constexpr int ScoreWithoutRay = 33;
/// What a clan close to the end keeps of its favourites; bits that stand for no gene go too.
constexpr std::int32_t AllButRay = AllGenes & ~GenesOf({"ray"});
constexpr int PayableExcess = 6;
constexpr int ComfortableBP = 5;

struct GeneList {
    Table<int, 0, GeneCount> Genes;
    int Count = 0;

    void Add(int gene) { Genes[++Count] = gene; }
};

class Adaptation {
public:
    explicit Adaptation(int clan) : clan_(clan) {}

    void Run() {
        ListGenes();
        if (!GiveUpFront()) {
            GiveUpProtected();
        }
    }

private:
    int Excess() const { return game.Players[clan_].MutationLevel - game.UVLevel - credit_; }

    void ListGenes() {
        for (int gene = 1; gene <= GeneCount; ++gene) {
            if (!game.Genes[gene][clan_]) {
                continue;
            }
            const bool favourite = IsFavourite(clan_, gene) && gene != GeneId("ray");
            if (gene != GeneId("div") && !favourite) {
                InsertByPrice(gene);
            }
        }
        if (HasGene(clan_, "div")) {
            protected_.Add(GeneId("div"));
        }
        for (int gene = 1; gene <= GeneCount; ++gene) {
            const bool favourite = IsFavourite(clan_, gene) && gene != GeneId("ray") && gene != GeneId("div");
            if (game.Genes[gene][clan_] && favourite) {
                protected_.Add(gene);
            }
        }
    }

    /// Cheapest first, equal prices in gene order.
    void InsertByPrice(int gene) {
        front_.Add(gene);
        const auto cost = [&](int place) { return game.Catalogue[front_.Genes[place]].Cost; };
        for (int place = front_.Count; place > 1 && cost(place) < cost(place - 1); --place) {
            std::swap(front_.Genes[place], front_.Genes[place - 1]);
        }
    }

    /// The credit for Ray Protection lowers the excess at once.
    void Discard(int gene) {
        DiscardGene(gene);
        credit_ += gene == GeneId("ray") ? RayCredit : 0;
    }

    /// True: the excess is settled.
    bool GiveUpFront() {
        for (int place = 1; place <= front_.Count; ++place) {
            const int gene = front_.Genes[place];
            Because(TheGene{gene}, " goes: at ", game.Catalogue[gene].Cost,
                    " BP it is the cheapest that is neither Division Rate nor a favourite",
                    Where{gene == GeneId("ray"), ", which Ray Protection never is here"}, ".");
            if (SomebodyFollows()) {
                ReportBox(Concat(game.Players[clan_].Name, " loses: ", GeneName(gene)));
            }
            Discard(gene);
            if (Excess() <= 0) {
                return true;
            }
            if (Excess() < PayableExcess && game.BP[clan_] > ComfortableBP) {
                Because("What is still above the UV level, ", Excess(), ", it pays: it is less than ", PayableExcess,
                        ", and it has more than ", ComfortableBP, " BP.");
                PayBP(clan_, Excess());
                return true;
            }
        }
        return false;
    }

    void GiveUpProtected() {
        for (int place = 1; place <= protected_.Count + 1; ++place) {
            if (Excess() <= 0) {
                return;
            }
            if (game.BP[clan_] >= Excess()) {
                Because("It keeps what is left, as its ", game.BP[clan_], " BP cover the ", Excess(),
                        " still above the UV level.");
                PayBP(clan_, Excess());
                return;
            }
            if (place > protected_.Count) {
                return;
            }
            const int gene = protected_.Genes[place];
            Because(TheGene{gene}, " goes: only Division Rate and favourites are left, and ", game.BP[clan_],
                    " BP do not cover the ", Excess(), " still above the UV level.");
            if (SomebodyFollows()) {
                ReportBox(Concat("Player ", clan_, " discards: ", GeneName(gene)));
            }
            Discard(gene);
        }
    }

    int clan_;
    int credit_ = 0;
    GeneList front_;
    GeneList protected_;
};

void TellOfRay(int clan) {
    if (ReasonsAreWanted() && IsFavourite(clan, GeneId("ray"))) {
        Because("With more than ", ScoreWithoutRay, " points Ray Protection is no favourite any more.");
    }
}

}  // namespace

void ComputerAdaptEnvironment() {
    const int clan = game.CurPlayer;
    if (game.Players[clan].Score > ScoreWithoutRay) {
        TellOfRay(clan);
        game.Players[clan].Personality &= AllButRay;
    }
    Adaptation(clan).Run();
}

}  // namespace plasmos
