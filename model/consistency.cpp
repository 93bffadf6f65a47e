// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/consistency.h"

#include <bitset>

#include "model/genes.h"

namespace plasmos {

namespace {

std::string CheckClan(int clan) {
    if (game.BP[clan] < 0) {
        return Concat("clan ", clan, " has ", game.BP[clan], " BP");
    }
    int level = 0;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        level += game.Genes[gene][clan] ? game.Catalogue[gene].MutationPoints : 0;
    }
    if (level != game.Players[clan].MutationLevel) {
        return Concat("clan ", clan, " has mutation level ", game.Players[clan].MutationLevel, ", its genes sum to ",
                      level);
    }
    int pieces = 0;
    for (int amoeba = 1; amoeba <= MaxPieces; ++amoeba) {
        const Piece& piece = game.Amoeba[amoeba][clan];
        pieces += piece.Square != 0 ? 1 : 0;
        if (piece.Square != 0 && (amoeba > game.MaxAmoeba || !IsValidSquare(piece.Square))) {
            return Concat("piece ", clan, ",", amoeba, " stands on ", piece.Square);
        }
        if (piece.Damage < 0 || (piece.Square == 0 && piece.Slot != 0)) {
            return Concat("piece ", clan, ",", amoeba, " has damage ", piece.Damage, " and spot ", piece.Slot);
        }
    }
    if (pieces != game.AmoebaCount[clan]) {
        return Concat("clan ", clan, " counts ", game.AmoebaCount[clan], " amoebas and has ", pieces);
    }
    return {};
}

std::string CheckSquare(int square) {
    Table<int, 0, MaxClans> count;
    std::uint32_t spots = 0;
    int drawn = 0;
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
            const Piece& piece = game.Amoeba[amoeba][clan];
            if (piece.Square != square) {
                continue;
            }
            ++count[clan];
            ++count[0];
            if (piece.Slot != 0) {
                ++drawn;
                spots |= 1U << static_cast<unsigned>(piece.Slot);
            }
        }
        const int food = game.Food[square][clan];
        if (food < 0 || (food > 0 && !IsValidSquare(square))) {
            return Concat("square ", square, " holds ", food, " food of clan ", clan);
        }
    }
    for (int colour = game.NumPlayers + 1; colour <= MaxClans; ++colour) {
        if (game.Food[square][colour] != 0) {
            return Concat("square ", square, " holds food of colour ", colour, ", which is not in play");
        }
    }
    for (int clan = 0; clan <= MaxClans; ++clan) {
        if (count[clan] != game.Occupancy[square][clan]) {
            return Concat("square ", square, " counts ", int{game.Occupancy[square][clan]}, " pieces in column ", clan,
                          " and has ", count[clan]);
        }
    }
    if (spots != game.SpotsTaken[square] || static_cast<int>(std::bitset<32>(spots).count()) != drawn) {
        return Concat("two pieces share a spot in square ", square, ", or a taken spot is empty");
    }
    return {};
}

std::string CheckGene(int gene) {
    int copies = game.Catalogue[gene].Supply;
    for (int clan = 1; clan <= MaxClans; ++clan) {
        copies += game.Genes[gene][clan] ? 1 : 0;
    }
    if (game.Catalogue[gene].Supply < 0 || copies != StartingSupply(gene, game.NumPlayers)) {
        return Concat("gene ", GeneCodes[gene], " has ", copies, " copies");
    }
    return {};
}

std::string CheckOrder(bool afterScoring) {
    std::bitset<MaxClans + 1> seen;
    for (int place = 1; place <= game.NumPlayers; ++place) {
        const int clan = game.PlayOrder[place];
        if (clan < 1 || clan > game.NumPlayers || seen[static_cast<std::size_t>(clan)]) {
            return Concat("place ", place, " of the order of play names clan ", clan);
        }
        seen[static_cast<std::size_t>(clan)] = true;
        if (afterScoring && place > 1 && game.Players[game.PlayOrder[place - 1]].Score <= game.Players[clan].Score) {
            return Concat("the scores at places ", place - 1, " and ", place, " are not in falling order");
        }
    }
    return {};
}

}  // namespace

std::string CheckConsistency(bool afterScoring) {
    if (game.NumPlayers == 0) {
        return {};
    }
    std::string fault = CheckOrder(afterScoring);
    for (int clan = 1; clan <= game.NumPlayers && fault.empty(); ++clan) {
        fault = CheckClan(clan);
    }
    for (int square = 1; square <= game.NumSquares && fault.empty(); ++square) {
        fault = CheckSquare(square);
    }
    for (int gene = 1; gene <= GeneCount && fault.empty(); ++gene) {
        fault = CheckGene(gene);
    }
    return fault;
}

}  // namespace plasmos
