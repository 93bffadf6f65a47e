// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/computer_clan.h"

#include "model/dice.h"
#include "model/genes.h"
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

}  // namespace

ComputerTarget FindComputerTarget(int clan) {
    const int first = RollDie(game.NumPlayers);
    for (int pass = 1; pass <= Passes; ++pass) {
        for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
            const int square = game.Amoeba[amoeba][clan].Square;
            const int target = square >= 1 ? FindTargetClan(pass, square, clan, first) : 0;
            if (target != 0) {
                return {amoeba, target, pass == 2};
            }
        }
    }
    return {};
}

}  // namespace plasmos
