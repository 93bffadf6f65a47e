// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "model/bio_points.h"
#include "model/dice.h"
#include "model/genes.h"
#include "model/happening.h"
#include "model/reasons.h"
#include "questions/ask.h"
#include "rules/aggression.h"
#include "rules/computer_clan.h"
#include "rules/hints.h"
#include "rules/move_amoeba.h"
#include "rules/movement.h"

namespace plasmos {

namespace {

using Kind = Happening::Kind;

constexpr int DefencePause = 10;

/// What becomes of an attack by the acting piece.
Happening AttackEnds(Kind kind, int clan, int amoeba, int square) {
    return {.What = kind,
            .Clan = clan,
            .Amoeba = amoeba,
            .Square = square,
            .OtherClan = game.CurPlayer,
            .OtherAmoeba = game.CurAmoeba};
}

bool AgreesToDefend(int clan, int amoeba, Assault assault, bool again) {
    if (game.BP[clan] < 1) {
        ComputerBecause(clan, ThePiece{clan, amoeba}, " cannot defend itself: its clan has no BP.");
        return false;
    }
    if (game.Players[clan].IsComputer) {
        Because(ThePiece{clan, amoeba},
                Where{again, ", with Persistence, pays 1 BP to defend itself again", " pays 1 BP to defend itself"},
                ", as its clan always does while it has one.");
        return true;
    }
    return AskYesNoBelow(clan,
                         Concat(game.Players[clan].Name,
                                again ? ": would you like to pay another BP for " : ": would you like to pay 1BP for ",
                                game.Amoeba[amoeba][clan].Name, " to Defend itself against the attack?"),
                         DefenceHint(clan, assault, again));
}

/// Two dice, rolled again as long as they are equal; the defence succeeds when the first is lower.
bool RollDefence(int clan) {
    for (int draw = 1; draw <= MaxDraws; ++draw) {
        const int first = RollDie(6);
        const int second = RollDie(6);
        if (first != second) {
            ComputerBecause(clan, "Its dice threw ", first, " and ", second,
                            Where{first < second, ": the first is lower, which beats the attack off.",
                                  ": the first is not the lower one, so the defence fails."});
            return first < second;
        }
    }
    return true;
}

bool DefendOnce(int clan, int amoeba) {
    PayBP(clan, 1);
    const bool beatenOff = RollDefence(clan);
    Happened(
        AttackEnds(beatenOff ? Kind::Defends : Kind::FailsToDefend, clan, amoeba, game.Amoeba[amoeba][clan].Square));
    if (beatenOff) {
        const Piece& attacker = game.Amoeba[game.CurAmoeba][game.CurPlayer];
        if (SomebodyFollows()) {
            ReportBox(Concat(attacker.Name, " has been beaten off by ", game.Amoeba[amoeba][clan].Name, "!"));
        }
    }
    TakePause(DefencePause);
    return beatenOff;
}

bool AgreesToEscape(int clan, int amoeba, Assault assault) {
    const auto& name = game.Amoeba[amoeba][clan].Name;
    const auto& clanName = game.Players[clan].Name;
    return AskYesNoBelow(
        clan,
        HasGene(clan, "str")
            ? Concat(clanName, ": Would ", name, " like to attempt to Escape the attack?")
            : Concat(clanName, ": Would you like to pay 1BP for ", name, " to attempt to Escape the attack?"),
        EscapeHint(clan, amoeba, assault));
}

void PayForEscape(int clan) {
    if (!HasGene(clan, "str")) {
        PayBP(clan, 1);
    }
}

/// A computer clan's piece has one that can live on.
bool HasALifeToSave(int clan, int amoeba, std::string_view what) {
    const int damage = game.Amoeba[amoeba][clan].Damage;
    if (damage >= DamageLimit(clan)) {
        ComputerBecause(clan, ThePiece{clan, amoeba}, " does not ", what, ": its damage, ", damage,
                        ", is deadly anyway.");
        return false;
    }
    return true;
}

bool WantsToEscape(int clan, int amoeba) {
    if (!HasALifeToSave(clan, amoeba, "try to escape")) {
        return false;
    }
    Because(ThePiece{clan, amoeba}, " tries to escape, ",
            Where{HasGene(clan, "str"), "free with Streamlining.", "for 1 BP."});
    return true;
}

bool MayTryToEscape(int clan, int amoeba, Assault assault) {
    if (game.BP[clan] < 1) {
        ComputerBecause(clan, ThePiece{clan, amoeba}, " cannot try to escape: its clan has no BP.");
        return false;
    }
    return game.Players[clan].IsComputer ? WantsToEscape(clan, amoeba) : AgreesToEscape(clan, amoeba, assault);
}

int FindRefuge(int clan, int amoeba) {
    return game.Players[clan].IsComputer ? FindEscapeSquare(clan, amoeba)
                                         : FindPersonsDestination(clan, amoeba, MoveKind::Escape);
}

}  // namespace

bool DefendAmoeba(int clan, int amoeba, Assault assault) {
    if (!HasALifeToSave(clan, amoeba, "defend itself") || !AgreesToDefend(clan, amoeba, assault, false)) {
        return false;
    }
    if (DefendOnce(clan, amoeba)) {
        return true;
    }
    return HasGene(clan, "per") && AgreesToDefend(clan, amoeba, assault, true) && DefendOnce(clan, amoeba);
}

bool EscapeAmoeba(int clan, int amoeba, Assault assault) {
    if (!MayTryToEscape(clan, amoeba, assault)) {
        return false;
    }
    const Piece& piece = game.Amoeba[amoeba][clan];
    const int square = piece.Square;
    PayForEscape(clan);
    MoveAlone(clan, amoeba, FindRefuge(clan, amoeba), {Kind::Escapes, game.CurPlayer, game.CurAmoeba});
    if (piece.Square != square) {
        return true;
    }
    Happened(AttackEnds(Kind::FailsToEscape, clan, amoeba, square));
    return false;
}

}  // namespace plasmos
