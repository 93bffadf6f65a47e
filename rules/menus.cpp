// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/menus.h"

#include <algorithm>
#include <utility>

#include "model/genes.h"

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

constexpr bool Between(int least, int food, int most) {
    return least < food && food < most;
}

int SuggestWithBoth(int food) {
    switch (game.NumPlayers) {
        case 3:
            if (Between(1, food, 10))
                return 2;
            if (Between(10, food, 21))
                return 11;
            if (Between(20, food, 31))
                return 21;
            return food > 30 ? 31 : 0;
        case 4:
            if (Between(2, food, 11))
                return 3;
            if (food == 11 || food == 21 || food == 22)
                return food;
            if (Between(30, food, 111))
                return 31;
            return food > 110 ? 111 : 0;
        default:
            if (food == 22)
                return 22;
            if (Between(30, food, 100))
                return 31;
            if (food == 111 || food == 211)
                return food;
            if (food == 221 || food == 222)
                return 221;
            if (Between(310, food, 1110))
                return 311;
            return food > 1110 ? 1111 : 0;
    }
}

int SuggestWithFru(int food) {
    switch (game.NumPlayers) {
        case 3:
            if (Between(1, food, 10))
                return 2;
            if (Between(10, food, 20))
                return 11;
            return food > 20 ? 21 : 0;
        case 4:
            if (Between(10, food, 110))
                return 11;
            return food > 110 ? 111 : 0;
        default:
            if (Between(110, food, 1110))
                return 111;
            return food > 1110 ? 1111 : 0;
    }
}

int SuggestWithSub(int food) {
    switch (game.NumPlayers) {
        case 3:
            if (Between(3, food, 10))
                return 4;
            if (Between(20, food, 30))
                return 21;
            return food > 30 ? 31 : 0;
        case 4:
            if (Between(21, food, 31))
                return 22;
            if (Between(30, food, 110))
                return 31;
            return food > 110 ? 111 : 0;
        default:
            if (Between(220, food, 311))
                return 221;
            if (Between(310, food, 1000))
                return 311;
            return food > 1110 ? 1111 : 0;
    }
}

int SuggestPlain(int food) {
    switch (game.NumPlayers) {
        case 3: return food > 20 ? 21 : 0;
        case 4: return food > 110 ? 111 : 0;
        default: return food > 1110 ? 1111 : 0;
    }
}

/// The menu for the food on offer, a number whose digits are the amounts of each colour, largest first.
int ChooseMenu(int food, int clan) {
    const bool frugal = HasGene(clan, "fru");
    if (HasGene(clan, "sub")) {
        return frugal ? SuggestWithBoth(food) : SuggestWithSub(food);
    }
    return frugal ? SuggestWithFru(food) : SuggestPlain(food);
}

constexpr int LargestDigit = 9;

constexpr void SortPair(int& larger, int& smaller) {
    const int most = std::max(larger, smaller);
    smaller = std::min(larger, smaller);
    larger = most;
}

/// Without "sub" and "fru" an amoeba can eat where enough foreign colours lie; with three clans one of
/// them must lie there twice.
bool CanEatPlain(int square, int clan) {
    const auto& food = game.Food[square];
    int colours = food[clan] > 0 ? -1 : 0;
    for (int colour = 1; colour <= MaxClans; ++colour) {
        colours += food[colour] > 0 ? 1 : 0;
    }
    if (game.NumPlayers == 3) {
        const auto twice = [&](int colour) { return colour != clan && food[colour] >= 2; };
        return colours >= 2 && (twice(1) || twice(2) || twice(3));
    }
    return colours >= (game.NumPlayers == 4 ? 3 : 4);
}

/// The food on offer without the work lists: the same number as sorting them gives.
int FoodOnOffer(int square, int clan) {
    const auto& food = game.Food[square];
    int digits[MaxClans + 1] = {};
    for (int colour = 1; colour <= MaxClans; ++colour) {
        const bool counts = colour != clan && colour <= game.NumPlayers;
        digits[colour - 1] = counts ? std::min(food[colour], LargestDigit) : 0;
    }
    constexpr int network[][2] = {{0, 5}, {1, 3}, {2, 4}, {1, 2}, {3, 4}, {0, 3},
                                  {2, 5}, {0, 1}, {2, 3}, {4, 5}, {1, 2}, {3, 4}};
    for (const auto& pair : network) {
        SortPair(digits[pair[0]], digits[pair[1]]);
    }
    int menu = digits[0];
    for (int i = 1; digits[i] != 0; ++i) {
        menu = menu * 10 + digits[i];
    }
    return menu;
}

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
    return ChooseMenu(SortMenuDigits(game.MenuAmounts, game.MenuColours), clan);
}

bool CanEat(int square, int clan) {
    if (!HasGene(clan, "sub") && !HasGene(clan, "fru")) {
        return CanEatPlain(square, clan);
    }
    return ChooseMenu(FoodOnOffer(square, clan), clan) > 0;
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
