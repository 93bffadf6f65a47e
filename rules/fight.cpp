// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/fight.h"

#include "model/bio_points.h"
#include "model/genes.h"
#include "model/happening.h"
#include "model/message_line.h"
#include "model/reasons.h"
#include "questions/ask.h"
#include "questions/victim_form.h"
#include "rules/aggression.h"
#include "rules/feeding.h"
#include "rules/hints.h"
#include "rules/move_amoeba.h"

namespace plasmos {

namespace {

constexpr int EatenPause = 15;
constexpr int FoodOfTheEaten = 1;
constexpr int FoodOfTheTorn = 2;

using Kind = Happening::Kind;

/// Why a computer clan picks this one of several.
[[gnu::cold]] void TellPick(int square, int clan, int picked, bool highest) {
    if (game.Occupancy[square][clan] > 1) {
        Because("Of the ", game.Occupancy[square][clan], " amoebas of ", TheClan{clan}, " in square ", square,
                " it picks ", ThePiece{clan, picked},
                Where{highest, ", the first with the most damage, as they have Armor.",
                      ", the first with the least damage."});
    }
}

/// The clan's piece in a square with the lowest (or highest) damage; the lowest number on a tie.
int PickByDamage(int square, int clan, bool highest) {
    int picked = 0;
    for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
        const Piece& piece = game.Amoeba[amoeba][clan];
        if (piece.Square != square) {
            continue;
        }
        const int best = picked == 0 ? 0 : game.Amoeba[picked][clan].Damage;
        if (picked == 0 || (highest ? piece.Damage > best : piece.Damage < best)) {
            picked = amoeba;
        }
    }
    if (ReasonsAreWanted()) [[unlikely]] {
        TellPick(square, clan, picked, highest);
    }
    return picked;
}

/// The victim's clan answers by its genes: escape first, then defence. True: the victim got away.
bool GetsAway(int clan, int amoeba, Assault assault) {
    if (HasGene(clan, "esc") && EscapeAmoeba(clan, amoeba, assault)) {
        return true;
    }
    if (HasGene(clan, "def")) {
        return DefendAmoeba(clan, amoeba, assault);
    }
    if (!HasGene(clan, "esc")) {
        ComputerBecause(clan, ThePiece{clan, amoeba}, " has neither Escape nor Defence.");
    }
    return false;
}

struct Victim {
    int Clan = 0;
    int Amoeba = 0;
};

/// What the acting piece does to its victim.
Happening Does(Kind kind, const Victim& victim, int square) {
    return {.What = kind,
            .Clan = game.CurPlayer,
            .Amoeba = game.CurAmoeba,
            .Square = square,
            .OtherClan = victim.Clan,
            .OtherAmoeba = victim.Amoeba};
}

/// What befalls the victim of the acting piece.
Happening Befalls(Kind kind, const Victim& victim, int square, int number) {
    return {.What = kind,
            .Clan = victim.Clan,
            .Amoeba = victim.Amoeba,
            .Square = square,
            .OtherClan = game.CurPlayer,
            .OtherAmoeba = game.CurAmoeba,
            .Number = number};
}

/// A person picks the victim; the pick costs 1 BP. Nothing picked, nothing paid.
Victim PickByPerson(int square, int attacker, int attack) {
    VictimForm form(attacker, "AGGRESS", "Choose the Attack-victim:", square);
    for (const VictimFigure& figure : form.Figures) {
        if (IsVictim(square, attacker, figure.Clan)) {
            form.Allow(figure.Clan, figure.Amoeba);
        }
    }
    form.Hint = AggressVictimHint(attacker, attack);
    ShowQuestionText(Concat("Choose the Attack-victim:\nSquare ", square), attacker);
    const auto picked = AskVictims(form);
    if (picked.empty()) {
        return {};
    }
    PayBP(attacker, 1);
    return {picked.front().Clan, picked.front().Amoeba};
}

void Outcome(const Victim& victim, int square) {
    if (HasGene(victim.Clan, "arm")) {
        const int damage = ++game.Amoeba[victim.Amoeba][victim.Clan].Damage;
        Happened(Befalls(Kind::IsWounded, victim, square, damage));
        return;
    }
    AddFoodOfAllColours(square, FoodOfTheTorn);
    Happened(Befalls(Kind::IsTorn, victim, square, FoodOfTheTorn));
    TakePause(EatenPause);
    RemoveAmoeba(victim.Clan, victim.Amoeba, 0);
    TakePause(EatenPause);
}

/// Whom the second attack goes against: the same clan if it still has a piece in the square, else the
/// lowest-numbered clan that is a victim there; 0: nobody.
int SecondVictimClan(int square, int clan) {
    if (!HasVictim(square, game.CurPlayer)) {
        return 0;
    }
    if (game.Occupancy[square][clan] > 0) {
        return clan;
    }
    for (int other = 1; other <= game.NumPlayers; ++other) {
        if (IsVictim(square, game.CurPlayer, other)) {
            return other;
        }
    }
    return 0;
}

/// One attack against a victim that is known. True: the victim got away.
bool Resolve(const Victim& victim, int square) {
    MoveBeside(game.CurPlayer, game.CurAmoeba, game.Amoeba[victim.Amoeba][victim.Clan].Slot);
    Happened(Does(Kind::Attacks, victim, square));
    const bool gotAway = GetsAway(victim.Clan, victim.Amoeba, Assault::Aggression);
    if (!gotAway) {
        Outcome(victim, square);
    }
    return gotAway;
}

}  // namespace

void AttackToEat(int victimClan, int square, int attacker, bool& stillHungry, int victimAmoeba) {
    stillHungry = true;
    if (!game.Players[victimClan].IsComputer) {
        ShowBox(victimClan, Concat(game.Players[victimClan].Name, ": You are being attacked!"));
    }
    const Victim victim{victimClan, victimAmoeba != 0 ? victimAmoeba : PickByDamage(square, victimClan, false)};
    MoveBeside(victimClan, victim.Amoeba, game.Amoeba[game.CurAmoeba][attacker].Slot);
    Happened(Does(Kind::AttacksToEat, victim, square));
    if (GetsAway(victimClan, victim.Amoeba, Assault::ToEat)) {
        return;
    }
    stillHungry = false;
    AddFoodOfAllColours(square, FoodOfTheEaten);
    Happened(Befalls(Kind::IsEaten, victim, square, FoodOfTheEaten));
    TakePause(EatenPause);
    RemoveAmoeba(victimClan, victim.Amoeba, 0);
}

void AttackAmoeba(int victimClan, int square, int victimAmoeba) {
    const int attacker = game.CurPlayer;
    Victim victim{victimClan, victimAmoeba};
    for (int attack = 1; attack <= 2; ++attack) {
        if (!game.Players[attacker].IsComputer) {
            if (game.BP[attacker] < 1) {
                return;
            }
            victim = PickByPerson(square, attacker, attack);
        } else if (victim.Amoeba == 0) {
            victim.Amoeba = PickByDamage(square, victim.Clan, HasGene(victim.Clan, "arm"));
        }
        if (victim.Amoeba == 0) {
            return;
        }
        const bool gotAway = Resolve(victim, square);
        if (!gotAway || !HasGene(attacker, "per")) {
            return;
        }
        victim = {SecondVictimClan(square, victim.Clan), 0};
        if (victim.Clan == 0) {
            return;
        }
        ComputerBecause(
            attacker, "With Persistence ", ThePiece{attacker, game.CurAmoeba},
            " attacks once more, free: ", TheClan{victim.Clan},
            Where{victim.Clan == victimClan, " is still there.", " is the first victim that is left there."});
    }
}

}  // namespace plasmos
