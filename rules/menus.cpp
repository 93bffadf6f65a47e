// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/menus.h"

#include <algorithm>
#include <array>
#include <utility>

#include "model/genes.h"
#include "rules/menu_choice.h"

namespace plasmos {

namespace {

/// Menus in the order in which they are shown; the first 0 ends them.
using MenuRow = std::array<int, 5>;

struct LegalMenuRow {
    MenuRow Standard, WithSub, WithFru;
};

/// By number of clans. Six clans eat like five.
constexpr Table<LegalMenuRow, MinClans, MaxClans> LegalMenuTable = [] {
    Table<LegalMenuRow, MinClans, MaxClans> rows{};
    rows[3] = {{21}, {4, 31}, {2, 3, 11}};
    rows[4] = {{111}, {22, 31}, {3, 11, 21}};
    rows[5] = {{1111}, {221, 311}, {22, 31, 111, 21, 211}};
    rows[6] = rows[5];
    return rows;
}();

void AddMenus(const MenuRow& row, std::vector<int>& menus) {
    menus.insert(menus.end(), row.begin(), std::find(row.begin(), row.end(), 0));
}

constexpr int LargestDigit = 9;

}  // namespace

std::vector<int> LegalMenusOf(int clan) {
    const LegalMenuRow& row = LegalMenuTable[game.NumPlayers];
    std::vector<int> menus;
    AddMenus(row.Standard, menus);
    if (HasGene(clan, "sub")) {
        AddMenus(row.WithSub, menus);
    }
    if (HasGene(clan, "fru")) {
        AddMenus(row.WithFru, menus);
    }
    return menus;
}

bool IsLegalMenu(int menu) {
    const std::vector<int> legal = LegalMenusOf(game.CurPlayer);
    return std::find(legal.begin(), legal.end(), menu) != legal.end();
}

bool LegalEat(int menu) {
    game.LegalMenus = "";
    for (const int shown : LegalMenusOf(game.CurPlayer)) {
        game.LegalMenus += Concat(" ", shown, ",");
    }
    return IsLegalMenu(menu);
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
