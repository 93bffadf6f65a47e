// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/environment.h"

#include "model/bio_points.h"
#include "model/genes.h"
#include "model/happening.h"
#include "model/presentation.h"
#include "model/reasons.h"
#include "model/step.h"
#include "model/trace.h"
#include "questions/ask.h"
#include "questions/gene_form.h"
#include "rules/computer_clan.h"
#include "rules/hints.h"

namespace plasmos {

namespace {

void TurnCard() {
    game.TurnedCard = game.Turn;
    const EnvironmentCard& card = game.EnvDeck[game.TurnedCard];
    game.Drift = card.DriftDirection;
    game.UVLevel = card.UV;
    Happened({.What = Happening::Kind::CardIsTurned, .Number = game.UVLevel, .Second = game.Drift});
}

/// Shows why "done" was refused; the choices begin afresh.
void RefuseDone(GeneForm& form) {
    form.Resume();
    ShowBox(form.Clan,
            "You must make up the difference between the current environmental UV-level "
            "and the sum mutation-point value of your amoebas' genes by discarding genes "
            "and/or spending BP until the difference (\"UV cost\") is 0");
    form.Reset();
}

/// What the person has chosen is carried out.
void GiveUpAndPay(const GeneForm& form) {
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (game.Genes[gene][form.Clan] && !form.gcheck[gene].Ticked) {
            DiscardGene(gene);
        }
    }
    if (const int paid = form.PaidBP(); paid >= 1) {
        PayBP(form.Clan, paid);
    }
}

void AdaptPerson(int clan) {
    const std::string text =
        "The environment has changed.\n"
        "You must pay the difference in BP between your amoebas' mutation-point value and the environmental "
        "UV-level, and/or discard genes until the difference is reduced to 0 or below.";
    GeneForm form(clan, text);
    form.PrepareEnvironment();
    form.Hint = AdaptingHint(clan);
    ShowQuestionText(text, clan);
    {
        OpenQuestion open(form);
        for (open.Wait(); form.Pressed == GeneForm::Button::Refused; open.Wait()) {
            RefuseDone(form);
            Board().Refresh(form);
        }
    }
    GiveUpAndPay(form);
    ClearMessage();
}

void AdaptComputer(int clan, int excess) {
    if (game.BP[clan] > excess) {
        Because(TheClan{clan}, " is ", excess, " above the UV level and pays, as its ", game.BP[clan],
                " BP are more than that.");
        PayBP(clan, excess);
    } else {
        Because(TheClan{clan}, " is ", excess, " above the UV level and gives up genes, as its ", game.BP[clan],
                " BP are not more than that.");
        ComputerAdaptEnvironment();
    }
}

void Adapt(int clan) {
    game.CurPlayer = clan;
    const int excess = game.Players[clan].MutationLevel - game.UVLevel;
    if (excess <= 0) {
        return;
    }
    RunStep(Step::Adapt, clan, 0, [&] {
        Show(&Presentation::ShowCurrentClan, clan);
        if (game.Players[clan].IsComputer) {
            AdaptComputer(clan, excess);
        } else {
            AdaptPerson(clan);
        }
        game.DialogMode = "";
    });
}

}  // namespace

std::string_view DirectionText(const GameState& state, int direction) {
    if (direction == 1)
        return "Right";
    if (direction == state.NumCols)
        return "Down";
    if (direction == -1)
        return "Left";
    if (direction == -state.NumCols)
        return "Up";
    if (direction == 0)
        return "in place";
    return direction == WhereItWants ? "where it wants" : "";
}

void EnvironmentPhase() {
    GuardPhase([] {
        BeginPhase("Environment");
        RunStep(Step::Environment, 0, 0, [] { TurnCard(); });
        for (int place = 1; place <= game.NumPlayers; ++place) {
            Adapt(ClanAtPlace(place));
        }
    });
}

}  // namespace plasmos
