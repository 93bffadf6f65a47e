// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/new_genes.h"

#include "model/bio_points.h"
#include "model/genes.h"
#include "model/presentation.h"
#include "model/step.h"
#include "model/trace.h"
#include "questions/ask.h"
#include "questions/gene_form.h"
#include "rules/computer_clan.h"
#include "rules/hints.h"

namespace plasmos {

namespace {

constexpr int LastOfferedGene = 10;

/// The box of a gene was clicked: a gene that is not held is bought, one that was bought in this visit goes back
/// for its price.
void BuyOrGiveBack(int gene, int clan) {
    if (!game.Genes[gene][clan]) {
        BuyGene(gene);
        return;
    }
    DiscardGene(gene);
    GainBP(clan, game.Catalogue[gene].Cost);
}

void BuyPerson(int clan) {
    if (!OffersGenes(clan)) {
        return;
    }
    const auto text = Concat("Clan ", game.Players[clan].Name, ", you have ", game.BP[clan],
                             " BP.\nWould you like to buy new Genes?");
    if (AskYesNo(clan, text, 0, GenesOfferHint())) {
        GeneForm form(clan, text);
        form.Hint = BuyingHint();
        form.PrepareNewGenes();
        OpenQuestion open(form);
        for (open.Wait(); form.Pressed == GeneForm::Button::Box; open.Wait()) {
            BuyOrGiveBack(form.PressedBox, clan);
            form.ShowHeld();
            form.Resume();
            Board().Refresh(form);
        }
    }
    ClearMessage();
}

}  // namespace

bool OffersGenes(int clan) {
    for (int gene = 1; gene <= LastOfferedGene; ++gene) {
        const GeneRecord& record = game.Catalogue[gene];
        if (record.Cost > game.BP[clan]) {
            return false;
        }
        if (!game.Genes[gene][clan] && record.Supply >= 1) {
            return true;
        }
    }
    return true;
}

void NewGenesPhase() {
    GuardPhase([] {
        BeginPhase("New genes");
        for (int place = 1; place <= game.NumPlayers; ++place) {
            const int clan = ClanAtPlace(place);
            game.CurPlayer = clan;
            RunStep(Step::BuyGenes, clan, 0, [&] {
                Show(&Presentation::ShowCurrentClan, clan);
                if (game.Players[clan].IsComputer) {
                    ComputerBuyGenes();
                } else {
                    BuyPerson(clan);
                }
            });
        }
    });
}

}  // namespace plasmos
