// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/aggression.h"

#include <vector>

#include "model/bio_points.h"
#include "model/genes.h"
#include "model/happening.h"
#include "model/presentation.h"
#include "model/step.h"
#include "model/trace.h"
#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "rules/computer_clan.h"
#include "rules/feeding.h"
#include "rules/fight.h"
#include "rules/hints.h"

namespace plasmos {

namespace {

constexpr int FoodOfTheDead = 2;

void BuryTheDead() {
    for (int place = 1; place <= game.NumPlayers; ++place) {
        const int clan = ClanAtPlace(place);
        game.CurPlayer = clan;
        for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
            const Piece& piece = game.Amoeba[amoeba][clan];
            if (piece.Square >= 1 && piece.Damage >= DamageLimit(clan)) {
                AddFoodOfAllColours(piece.Square, FoodOfTheDead);
                RemoveAmoeba(clan, amoeba, FoodOfTheDead);
            }
        }
    }
}

bool IsAbleToAttack(int clan) {
    return HasGene(clan, "agg") && game.BP[clan] >= 1;
}

std::vector<int> SquaresWithVictims(int clan) {
    std::vector<int> squares;
    for (int square = 1; square <= game.NumSquares; ++square) {
        if (game.Occupancy[square][clan] > 0 && HasVictim(square, clan)) {
            squares.push_back(square);
        }
    }
    return squares;
}

/// Which of the clan's pieces in a square attacks; 0: none.
int ChooseAttacker(int square, int clan) {
    AmChoicefrm form(clan, "Aggression", "Which amoeba shall attack?");
    form.Hint = AttackerHint();
    int count = 0;
    int only = 0;
    for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
        if (game.Amoeba[amoeba][clan].Square == square) {
            form.Offer(amoeba);
            only = amoeba;
            ++count;
        }
    }
    if (count == 1) {
        return only;
    }
    ShowQuestionText(form.Text, clan);
    return AskAmoeba(form);
}

/// What asking a clan for its attack came to.
enum class Attack { NobodyAsked, StepOver };

Attack AttackByPerson(int clan) {
    const auto squares = SquaresWithVictims(clan);
    if (squares.empty()) {
        return Attack::NobodyAsked;
    }
    if (AskYesNo(clan, Concat(game.Players[clan].Name, ": would you like to Aggress another amoeba now?"), 0,
                 AggressHint())) {
        const int square = AskSquare(clan, "Choose the square in which to aggress:", squares, AggressHint());
        game.CurAmoeba = ChooseAttacker(square, clan);
        if (game.CurAmoeba != 0) {
            AttackAmoeba(0, square, 0);
        }
    }
    ClearMessage();
    return Attack::StepOver;
}

Attack AttackByComputer(int clan) {
    const ComputerTarget target = FindComputerTarget(clan);
    if (target.Clan == 0) {
        return Attack::NobodyAsked;
    }
    game.CurAmoeba = target.Attacker;
    PayBP(clan, 1);
    if (!game.Players[target.Clan].IsComputer) {
        ShowBox(target.Clan, target.IsDamaged ? "You are being attacked!" : "You are being Aggressed!");
    }
    AttackAmoeba(target.Clan, game.Amoeba[target.Attacker][clan].Square, 0);
    return Attack::StepOver;
}

void AttackOnce() {
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        if (!IsAbleToAttack(clan)) {
            continue;
        }
        game.CurPlayer = clan;
        Show(&Presentation::ShowCurrentClan, clan);
        const bool computer = game.Players[clan].IsComputer;
        if ((computer ? AttackByComputer(clan) : AttackByPerson(clan)) == Attack::StepOver) {
            return;
        }
    }
}

bool SomebodyIsAbleToAttack() {
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        if (IsAbleToAttack(clan)) {
            return true;
        }
    }
    return false;
}

}  // namespace

int DamageLimit(int clan) {
    return HasGene(clan, "lif") ? 3 : 2;
}

void AddFoodOfAllColours(int square, int pieces) {
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        game.Food[square][colour] += pieces;
    }
}

void RemoveAmoeba(int clan, int amoeba, int food) {
    const int square = game.Amoeba[amoeba][clan].Square;
    LiftPiece(clan, amoeba);
    game.Amoeba[amoeba][clan].Damage = 0;
    --game.AmoebaCount[clan];
    Happened({.What = Happening::Kind::Dies, .Clan = clan, .Amoeba = amoeba, .Square = square, .Number = food});
}

void AggressionPhase() {
    GuardPhase([] {
        BeginPhase("Aggression");
        RunStep(Step::Deaths, 0, 0, [] { BuryTheDead(); });
        if (SomebodyIsAbleToAttack()) {
            RunStep(Step::Attack, 0, 0, [] { AttackOnce(); });
        }
    });
}

}  // namespace plasmos
