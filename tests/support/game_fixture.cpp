// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/game_fixture.h"

#include "model/board_size.h"

namespace plasmos::testing {

namespace {

int LowestFreeSpot(int square) {
    for (int spot = 1; spot <= MaxSpots; ++spot) {
        if ((game.SpotsTaken[square] >> static_cast<unsigned>(spot) & 1U) == 0) {
            return spot;
        }
    }
    return 0;
}

void NamePieces(int clan) {
    for (int amoeba = 1; amoeba <= MaxPieces; ++amoeba) {
        const char letter = static_cast<char>('A' + clan - 1);
        game.Amoeba[amoeba][clan].Name = std::string(1, letter) + std::to_string(amoeba);
    }
}

}  // namespace

void NewPosition(int clans, int rows, int cols, std::string_view blocks) {
    ResetTables();
    SetBoard(rows, cols, blocks);
    game.NumPlayers = clans;
    game.MaxAmoeba = clans <= 4 ? 7 : 6;
    ResetGenes();
    game.Turn = 1;
    for (int clan = 1; clan <= clans; ++clan) {
        Clan& record = game.Players[clan];
        record.Name = Concat("Player ", clan);
        record.Score = clans + 1 - clan;
        record.IsComputer = true;
        record.PersonalityName = "Eater";
        game.PlayOrder[clan] = clan;
        NamePieces(clan);
    }
    game.CurPlayer = 1;
    game.CurAmoeba = 1;
}

void Person(int clan) {
    game.Players[clan].IsComputer = false;
    game.Players[clan].PersonalityName = "";
}

void Put(int clan, int amoeba, int square, int slot) {
    PutPiece(clan, amoeba, square, slot != 0 ? slot : LowestFreeSpot(square));
    ++game.AmoebaCount[clan];
}

void Give(int clan, std::initializer_list<std::string_view> codes) {
    for (const std::string_view code : codes) {
        const int gene = GeneNumber(code);
        ASSERT_NE(gene, 0) << "there is no gene " << code;
        game.Genes[gene][clan] = true;
        game.Players[clan].MutationLevel += game.Catalogue[gene].MutationPoints;
        --game.Catalogue[gene].Supply;
    }
}

void Feed(int square, std::initializer_list<int> food) {
    int clan = 0;
    for (const int amount : food) {
        game.Food[square][++clan] = amount;
    }
}

std::vector<int> FoodOn(int square) {
    std::vector<int> food;
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        food.push_back(game.Food[square][clan]);
    }
    return food;
}

std::string HeldGenes(int clan) {
    std::string held;
    for (int gene = 1; gene <= GeneCount; ++gene) {
        if (game.Genes[gene][clan]) {
            held += Concat(held.empty() ? "" : " ", GeneCodes[gene]);
        }
    }
    return held;
}

void ForgetGame() {
    static_cast<GameSetup&>(game) = GameSetup{};
    services = Services{};
    SetBoard(DefaultSide, DefaultSide);
    ResetTables();
}

}  // namespace plasmos::testing
