// SPDX-License-Identifier: GPL-3.0-or-later
#include "flow/new_game.h"

#include <utility>

#include "files/platform.h"
#include "flow/clan_names.h"
#include "flow/names.h"
#include "flow/personalities.h"
#include "flow/scoring.h"
#include "model/dealt_names.h"
#include "model/dice.h"
#include "model/genes.h"
#include "model/happening.h"
#include "model/presentation.h"
#include "model/services.h"
#include "model/step.h"
#include "model/trace.h"
#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "rules/directions.h"
#include "rules/division.h"
#include "rules/hints.h"

namespace plasmos {

namespace {

constexpr int StartingBP = 4;
constexpr int StartingFood = 2;
constexpr int UVValues[LastCard + 1] = {6, 8, 9, 9, 10, 10, 10, 11, 12, 13, 14};
constexpr std::int32_t ClanColours[MaxClans + 1] = {0, 0xFF0000, 0xFF00FF, 0x00FFFF, 0x0000FF, 0x0BB000, 0x0080FF};

void ChooseReplayNumber() {
    const std::string typed = Board().TakeReplayText();
    if (game.HasRequestedReplay) {
        game.ReplayNo = game.RequestedReplay;
    } else if (!ParseReplayNumber(typed, game.ReplayNo)) {
        game.ReplayNo = static_cast<float>(SecondsSinceMidnight());
    }
    SeedRandom(game.ReplayNo);
    if (services.Window != nullptr) {
        Board().ShowCaption(Concat("The Puddle  (", ReplayText(game.ReplayNo), ")"));
    }
}

bool IsClanCount(int count) {
    return count >= MinClans && count <= MaxClans;
}

int GetPlayerCount() {
    if (game.RequestedClans != 0) {
        return game.RequestedClans;
    }
    if (game.AutoPlay) {
        return RollDie(MaxClans - MinClans + 1) + MinClans - 1;
    }
    for (;;) {
        const int count = AskPlayerCount();
        if (IsClanCount(count)) {
            ClearMessage();
            return count;
        }
        ShowQuestionText("Invalid response!", 0);
    }
}

std::string ClanName(int clan) {
    if (services.Dealt != nullptr && services.Dealt->AreFor(game.NumPlayers)) {
        return services.Dealt->Of(clan).Name;
    }
    return services.Settings != nullptr ? SavedClanName(*services.Settings, clan) : DefaultClanName(clan);
}

void SetUpClan(int clan) {
    game.AmoebaCount[clan] = 0;
    game.BP[clan] = StartingBP;
    game.Players[clan].IsComputer = true;
    game.Players[clan].Name = ClanName(clan);
    for (int square = 1; square <= game.NumSquares; ++square) {
        game.Food[square][clan] = game.Blocked[square] ? 0 : StartingFood;
    }
}

void SeatPersons() {
    if (game.AutoPlay) {
        return;
    }
    game.Players[3].IsComputer = false;
    if (game.Menu.twoplayermen) {
        game.Players[2].IsComputer = false;
    }
}

void ShufflePlayOrder() {
    for (int place = 1; place <= game.NumPlayers; ++place) {
        game.PlayOrder[place] = place;
    }
    for (int place = 1; place <= game.NumPlayers; ++place) {
        std::swap(game.PlayOrder[place], game.PlayOrder[RollDie(game.NumPlayers)]);
    }
    game.StartOrder = game.PlayOrder;
}

void PlaceOne(int place) {
    game.CurPlayer = ClanAtPlace(place);
    Show(&Presentation::ShowCurrentClan, game.CurPlayer);
    CreateAmoeba(game.CurPlayer);
}

void SetUpGame() {
    EmptyMoveFile();
    ChooseReplayNumber();
    BuildEnvDeck();
    ShuffleEnvDeck();
    game.Drift = game.EnvDeck[0].DriftDirection;
    Happened({.What = Happening::Kind::CardIsTurned, .Number = game.UVLevel, .Second = game.Drift});
    Show(&Presentation::ShowAutoFlags, 0);
    game.NumPlayers = GetPlayerCount();
    game.MaxAmoeba = game.NumPlayers >= 5 ? 6 : 7;
    FillScoreTables();
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        SetUpClan(clan);
    }
    SeatPersons();
    DealPersonalities();
    ResetGenes();
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        Show(&Presentation::ShowClan, clan);
        Show(&Presentation::ShowAutoFlags, clan);
    }
    PlaceStartPieces();
    game.GameOver = false;
}

}  // namespace

void BuildEnvDeck() {
    for (int card = 0; card <= LastCard; ++card) {
        game.EnvDeck[card] = {UVValues[card], DirectionFromDie(RollDie(6))};
    }
}

void ShuffleEnvDeck() {
    for (int card = 0; card <= LastCard; ++card) {
        const int uv = RollDie(LastCard + 1) - 1;
        std::swap(game.EnvDeck[card].UV, game.EnvDeck[uv].UV);
        const int drift = RollDie(LastCard + 1) - 1;
        std::swap(game.EnvDeck[card].DriftDirection, game.EnvDeck[drift].DriftDirection);
    }
    game.UVLevel = game.EnvDeck[0].UV;
}

int AskPlayerCount() {
    AmNumfrm form(0, "Choose 3 to 6 players", "How many players would you like for this game of Zymarra?", 0, -1);
    for (int count = MinClans; count <= MaxClans; ++count) {
        form.amopt[count].Visible = form.amopt[count].Enabled = true;
    }
    form.Hint = ClansHint(game.Menu.twoplayermen ? 2 : 1);
    OpenQuestion open(form);
    open.Wait();
    const int count = form.Chosen();
    NoteAnswer(form, Numbered(Answer::Kind::Number, count), IsClanCount(count));
    return count;
}

void PlaceStartPieces() {
    for (int clan = 1; clan <= MaxClans; ++clan) {
        game.Players[clan].Colour = ClanColours[clan];
    }
    LoadAmoebaNames();
    ShufflePlayOrder();
    for (int place = 1; place <= game.NumPlayers; ++place) {
        game.Players[ClanAtPlace(place)].Score = game.NumPlayers + place - 1;
    }
    Happened({.What = Happening::Kind::OrderIsMade});
    Show(&Presentation::DrawBoard);
    for (int place = 1; place <= game.NumPlayers; ++place) {
        PlaceOne(place);
    }
    Show(&Presentation::DrawBoard);
    for (int place = game.NumPlayers; place >= 1; --place) {
        PlaceOne(place);
    }
}

void NewGame() {
    ResetTables();
    services.MoveLines = 0;
    RunStep(Step::NewGame, 0, 0, [] { SetUpGame(); });
}

}  // namespace plasmos
