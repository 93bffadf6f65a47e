// SPDX-License-Identifier: GPL-3.0-or-later
#include "flow/play_game.h"

#include <cstdio>
#include <exception>

#include "files/game_files.h"
#include "files/platform.h"
#include "flow/new_game.h"
#include "flow/scoring.h"
#include "flow/start.h"
#include "model/dice.h"
#include "model/happening.h"
#include "model/message_line.h"
#include "model/narration.h"
#include "model/observer.h"
#include "model/presentation.h"
#include "model/services.h"
#include "model/trace.h"
#include "questions/ask.h"
#include "rules/aggression.h"
#include "rules/division.h"
#include "rules/environment.h"
#include "rules/movement.h"
#include "rules/new_genes.h"

namespace plasmos {

namespace {

void WriteHeader() {
    if (!TracesAreKept() && services.Window == nullptr) {
        return;
    }
    const auto header = Concat("Game: ", ReplayText(game.ReplayNo), " ", DateAndTime());
    WriteTrace(Concat("\n\n", header, "\n"), "");
    Board().StartLog(header);
}

void TellInABox(const std::string& text) {
    BoxQuestion box(0, text);
    OpenQuestion open(box);
    open.Wait();
}

/// Without its data folder no game begins.
void RefuseGame(const std::string& fault) {
    if (services.Window == nullptr) {
        std::fprintf(stderr, "%s\n", fault.c_str());
        throw ProgramEnd{1};
    }
    TellInABox(fault);
}

/// Ends this game and tells the person what happened and where; the window stays usable.
void EndBrokenGame(const RuntimeError& error) {
    const int clan = game.CurPlayer;
    AppendErrorRecord(error, clan, game.CurAmoeba);
    if (services.Window == nullptr) {
        throw ProgramEnd{1};
    }
    const auto name = game.Players[clan].Name.String();
    const auto where = clan != 0 ? Concat("\nClan ", clan, " (", name, ")") : std::string();
    game.AutoPlay = false;
    Show(&Presentation::DisableAutoEating);
    TellInABox(Concat("This game cannot go on.\nError #", error.Number, ": ", std::string_view(error.what()), where));
}

/// Plays; an error ends the game. The person may leave it while its last box is open, too.
template <class Game>
void PlayToTheEnd(Game&& play) {
    try {
        play();
    } catch (const std::exception&) {
        EndBrokenGame(CurrentError());
    }
}

template <class Game>
void PlayGuarded(Game&& play) {
    try {
        if (const auto fault = PrepareDataFolder(); fault.empty()) {
            PlayToTheEnd(play);
        } else {
            RefuseGame(fault);
        }
    } catch (const GameLeft&) {
        game.AutoPlay = false;
        Show(&Presentation::DisableAutoEating);
    }
}

}  // namespace

void PlayRound() {
    MovementPhase();
    EnvironmentPhase();
    NewGenesPhase();
    DivisionPhase();
    AggressionPhase();
    ScorePhase();
}

void AnnounceWinner() {
    Show(&Presentation::DisableAutoEating);
    const auto& winner = game.Players[ClanAtPlace(1)].Name;
    if (SomebodyFollows()) {
        ShowBox(0, Concat("Clan ", winner, " wins!"));
    }
}

void PlayOneGame() {
    NewGame();
    WriteHeader();
    for (game.Turn = 1; game.Turn <= LastTurn; ++game.Turn) {
        Show(&Presentation::ShowTurn);
        PlayRound();
        if (game.GameOver) {
            break;
        }
    }
    LetMessageBeRead();
    AnnounceWinner();
    if (services.Listener != nullptr) {
        services.Listener->OnOver();
    }
}

void PlayGame() {
    PlayGuarded([] {
        game.AutoPlay = false;
        do {
            PlayOneGame();
        } while (game.AutoPlay);
    });
}

void PlayAsSetUp() {
    PlayGuarded([] { PlayOneGame(); });
    game.AutoPlay = false;
}

void PlayUnattended() {
    game.AutoPlay = true;
    PlayAsSetUp();
}

}  // namespace plasmos
