// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/computer_clan.h"

#include "model/dice.h"
#include "model/genes.h"
#include "model/reasons.h"
#include "rules/feeding.h"

namespace plasmos {

namespace {

constexpr int Passes = 3;

bool HasDamagedPiece(int square, int clan) {
    for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
        const Piece& piece = game.Amoeba[amoeba][clan];
        if (piece.Square == square && piece.Damage > 0) {
            return true;
        }
    }
    return false;
}

bool IsTarget(int pass, int square, int clan) {
    switch (pass) {
        case 1: return !HasGene(clan, "esc") && !HasGene(clan, "def") && !HasGene(clan, "arm");
        case 2: return HasDamagedPiece(square, clan);
        default:
            return !HasGene(clan, "arm") && !HasGene(clan, "def") && !HasGene(clan, "str") && !HasGene(clan, "mv2");
    }
}

int FindTargetClan(int pass, int square, int attacker, int first) {
    for (int i = 0; i < game.NumPlayers; ++i) {
        const int clan = (first - 1 + i) % game.NumPlayers + 1;
        if (IsVictim(square, attacker, clan) && IsTarget(pass, square, clan)) {
            return clan;
        }
    }
    return 0;
}

std::string_view WhyTarget(int pass) {
    switch (pass) {
        case 1: return "that clan has neither Escape nor Defence nor Armor.";
        case 2: return "all it could attack have Escape, Defence or Armor, but that clan has a damaged amoeba there.";
        default: return "that clan has neither Defence nor Armor, and neither Streamlining nor Movement 2 to escape.";
    }
}

[[gnu::cold]] void TellTarget(int pass, const ThePiece& attacker, int target, int first) {
    Because("The die put ", TheClan{first}, " first among the clans to attack.");
    Because(attacker, " attacks ", TheClan{target}, " in square ", game.Amoeba[attacker.Amoeba][attacker.Clan].Square,
            " for 1 BP: ", WhyTarget(pass));
}

bool MeetsAVictim(int clan) {
    for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
        const int square = game.Amoeba[amoeba][clan].Square;
        if (square >= 1 && HasVictim(square, clan)) {
            return true;
        }
    }
    return false;
}

[[gnu::cold]] void TellNoTarget(int clan) {
    if (MeetsAVictim(clan)) {
        Because("No attack: whoever ", TheClan{clan},
                " may attack where it stands is undamaged there and has Defence or Armor, or Escape with Streamlining "
                "or Movement 2.");
    } else {
        Because("No attack: no amoeba of ", TheClan{clan}, " shares a square with somebody it may attack.");
    }
}

}  // namespace

ComputerTarget FindComputerTarget(int clan) {
    const int first = RollDie(game.NumPlayers);
    for (int pass = 1; pass <= Passes; ++pass) {
        for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
            const int square = game.Amoeba[amoeba][clan].Square;
            const int target = square >= 1 ? FindTargetClan(pass, square, clan, first) : 0;
            if (target != 0) {
                if (ReasonsAreWanted()) [[unlikely]] {
                    TellTarget(pass, {clan, amoeba}, target, first);
                }
                return {amoeba, target, pass == 2};
            }
        }
    }
    if (ReasonsAreWanted()) [[unlikely]] {
        TellNoTarget(clan);
    }
    return {};
}

}  // namespace plasmos
