// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/consistency.h"

#include <bitset>

#include "model/genes.h"

namespace plasmos {

namespace {

std::string CheckLevel(int clan) {
    int level = 0;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        level += game.Genes[gene][clan] ? game.Catalogue[gene].MutationPoints : 0;
    }
    if (level != game.Players[clan].MutationLevel) {
        return Concat("clan ", clan, " has mutation level ", game.Players[clan].MutationLevel, ", its genes sum to ",
                      level);
    }
    return {};
}

std::string CheckPieces(int clan) {
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

std::string CheckClan(int clan) {
    if (game.BP[clan] < 0) {
        return Concat("clan ", clan, " has ", game.BP[clan], " BP");
    }
    std::string fault = CheckLevel(clan);
    return fault.empty() ? CheckPieces(clan) : fault;
}

std::string CheckFood(int square) {
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        const int food = game.Food[square][colour];
        if (food < 0 || (food > 0 && !IsValidSquare(square))) {
            return Concat("square ", square, " holds ", food, " food of clan ", colour);
        }
    }
    for (int colour = game.NumPlayers + 1; colour <= MaxClans; ++colour) {
        if (game.Food[square][colour] != 0) {
            return Concat("square ", square, " holds food of colour ", colour, ", which is not in play");
        }
    }
    return {};
}

/// What lies in a square, counted piece by piece.
struct Crowd {
    Table<int, 0, MaxClans> Count;  ///< by clan; column 0 counts every clan's
    std::uint32_t Spots = 0;        ///< bit n: spot n is taken
    int Drawn = 0;                  ///< pieces that have a spot
};

Crowd CrowdOf(int square) {
    Crowd crowd;
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
            const Piece& piece = game.Amoeba[amoeba][clan];
            if (piece.Square != square) {
                continue;
            }
            ++crowd.Count[clan];
            ++crowd.Count[0];
            if (piece.Slot != 0) {
                ++crowd.Drawn;
                crowd.Spots |= 1U << static_cast<unsigned>(piece.Slot);
            }
        }
    }
    return crowd;
}

std::string CheckSquare(int square) {
    if (std::string fault = CheckFood(square); !fault.empty()) {
        return fault;
    }
    const Crowd crowd = CrowdOf(square);
    for (int clan = 0; clan <= MaxClans; ++clan) {
        if (crowd.Count[clan] != game.Occupancy[square][clan]) {
            return Concat("square ", square, " counts ", int{game.Occupancy[square][clan]}, " pieces in column ", clan,
                          " and has ", crowd.Count[clan]);
        }
    }
    const auto spots = static_cast<int>(std::bitset<32>(crowd.Spots).count());
    if (crowd.Spots != game.SpotsTaken[square] || spots != crowd.Drawn) {
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
