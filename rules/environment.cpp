// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/environment.h"

#include "model/genes.h"
#include "model/presentation.h"
#include "model/step.h"
#include "model/trace.h"
#include "questions/ask.h"
#include "questions/gene_form.h"
#include "rules/computer_clan.h"

namespace plasmos {

namespace {

void TurnCard() {
    game.TurnedCard = game.Turn;
    const EnvironmentCard& card = game.EnvDeck[game.TurnedCard];
    game.Drift = card.DriftDirection;
    game.UVLevel = card.UV;
    Show(&Presentation::ShowDrift);
    Show(&Presentation::ShowUV);
}

void AdaptPerson(int clan) {
    const std::string text =
        "The environment has changed.\n"
        "You must pay the difference in BP between your amoebas' mutation-point value and the environmental "
        "UV-level, and/or discard genes until the difference is reduced to 0 or below.";
    GeneForm form(clan, text);
    form.PrepareEnvironment();
    ShowQuestionText(text, clan);
    {
        OpenQuestion open(form);
        open.Wait();
        while (form.RefusalPending) {
            form.RefuseDone();
            Board().Refresh(form);
            open.Wait();
        }
    }
    ClearMessage();
}

void AdaptComputer(int clan, int excess) {
    if (game.BP[clan] > excess) {
        game.BP[clan] -= excess;
        Show(&Presentation::ShowBP, clan);
    } else {
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
