// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/movement.h"

#include "model/presentation.h"
#include "model/step.h"
#include "model/trace.h"
#include "rules/computer_clan.h"
#include "rules/feeding.h"

namespace plasmos {

namespace {

void FeedAfterMove(int clan, int amoeba) {
    const int square = game.Amoeba[amoeba][clan].Square;
    if (game.Players[clan].IsComputer || game.AutoFlags[clan][1]) {
        ComputerFeedAmoeba(clan, amoeba, square);
    } else {
        FeedAmoeba(square, clan);
    }
}

void ActAmoeba(int clan, int amoeba) {
    game.CurAmoeba = amoeba;
    Show(&Presentation::OutlinePiece, clan, amoeba, true);
    RunStep(Step::Move, clan, amoeba, [&] {
        if (game.Players[clan].IsComputer) {
            ComputerMoveAmoeba(clan, amoeba);
        } else {
            MovePersonsAmoeba(clan, amoeba);
        }
    });
    RunStep(Step::Feed, clan, amoeba, [&] { FeedAfterMove(clan, amoeba); });
    Show(&Presentation::OutlinePiece, clan, amoeba, false);
}

}  // namespace

void MovementPhase() {
    GuardPhase([] {
        BeginPhase("Movement");
        for (int place = game.NumPlayers; place >= 1; --place) {
            const int clan = ClanAtPlace(place);
            game.CurPlayer = clan;
            Show(&Presentation::ShowCurrentClan, clan);
            for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
                if (game.Amoeba[amoeba][clan].Square >= 1) {
                    ActAmoeba(clan, amoeba);
                }
            }
            Show(&Presentation::ShowCurrentClan, clan);
        }
    });
}

}  // namespace plasmos
