// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/menus.h"

#include <algorithm>
#include <utility>

#include "model/genes.h"
#include "rules/menu_choice.h"

namespace plasmos {

namespace {

struct LegalMenuRow {
    std::string_view Standard, WithSub, WithFru;
};

/// By number of clans, 3 to 6. Six clans eat like five.
constexpr Table<LegalMenuRow, 3, 6> LegalMenuTable = [] {
    Table<LegalMenuRow, 3, 6> rows{};
    rows[3] = {" 21,", " 4, 31,", " 2, 3, 11,"};
    rows[4] = {" 111,", " 22, 31,", " 3, 11, 21,"};
    rows[5] = {" 1111,", " 221, 311,", " 22, 31, 111, 21, 211,"};
    rows[6] = {" 1111,", " 221, 311,", " 22, 31, 111, 21, 211,"};
    return rows;
}();

constexpr int LargestDigit = 9;

}  // namespace

bool LegalEat(int menu) {
    const LegalMenuRow& row = LegalMenuTable[game.NumPlayers];
    game.LegalMenus = row.Standard;
    if (HasGene(game.CurPlayer, "sub")) {
        game.LegalMenus += row.WithSub;
    }
    if (HasGene(game.CurPlayer, "fru")) {
        game.LegalMenus += row.WithFru;
    }
    return game.LegalMenus.View().find(Concat(" ", menu, ",")) != std::string_view::npos;
}

int SortMenuDigits(Table<int, 0, 7>& amounts, Table<int, 0, 7>& colours) {
    int* const amount = amounts.begin();
    int* const colour = colours.begin();
    const int last = std::min(game.NumPlayers, MaxClans) - 1;
    for (int i = 1; i < last && amount[i] != 0; ++i) {
        int best = i;
        for (int j = i + 1; j <= last && amount[j] != 0; ++j) {
            if (amount[j] > amount[best]) {
                best = j;
            }
        }
        if (best != i) {
            std::swap(amount[i], amount[best]);
            std::swap(colour[i], colour[best]);
        }
    }
    int menu = 0;
    for (int i = 1; i <= 6 && amount[i] != 0; ++i) {
        menu = menu * 10 + amount[i];
    }
    return menu;
}

int SuggestMenu(int square, int clan) {
    game.MenuAmounts = {};
    game.MenuColours = {};
    int place = 0;
    for (int colour = 1; colour <= game.NumPlayers; ++colour) {
        const int pieces = game.Food[square][colour];
        if (colour != clan && pieces >= 1) {
            ++place;
            game.MenuAmounts[place] = std::min(pieces, LargestDigit);
            game.MenuColours[place] = colour;
        }
    }
    return ChooseMenu(SortMenuDigits(game.MenuAmounts, game.MenuColours), PalateOf(clan));
}

void OrderEqualAmounts() {
    const auto score = [](int colour) { return colour == 0 ? 0 : game.Players[colour].Score; };
    const int* const amount = game.MenuAmounts.begin();
    int* const colour = game.MenuColours.begin();
    for (int i = 2; i <= 7 && amount[i] != 0; ++i) {
        for (int j = i; j > 1 && amount[j] == amount[j - 1] && score(colour[j]) > score(colour[j - 1]); --j) {
            std::swap(colour[j], colour[j - 1]);
        }
    }
}

}  // namespace plasmos
