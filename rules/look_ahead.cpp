// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdint>

#include "rules/menu_choice.h"
#include "rules/menus.h"

namespace plasmos {

namespace {

/// Looking ahead asks only whether there is a menu, and for that it is enough to know how many foreign
/// colours lie in a square at least once, twice, three times and four times: no menu takes more than
/// four of a colour. The four counts, 0 to 5 each, are the digits of a number to the base of six.
constexpr int CountBase = 6;
constexpr int CountedPieces = 4;
constexpr int FoodCounts = CountBase * CountBase * CountBase * CountBase;

/// The food on offer that has such counts: the largest amounts first, 4 standing for any more.
constexpr int FoodWithCounts(int counts) {
    int food = 0;
    int previous = 0;
    for (int pieces = CountedPieces, digit = FoodCounts / CountBase; pieces >= 1; --pieces, digit /= CountBase) {
        const int colours = counts / digit % CountBase;
        for (int i = previous; i < colours; ++i) {
            food = food * 10 + pieces;
        }
        previous = std::max(previous, colours);
    }
    return food;
}

/// The most pieces of one colour that any of its menus takes.
constexpr int MostOfColour(const Palate& palate) {
    return palate.Sub || palate.Fru ? CountedPieces : 2;
}

constexpr unsigned PalateBit(const Palate& palate) {
    const int clans = palate.Clans > 5 ? 5 : palate.Clans;
    return 1U << static_cast<unsigned>((clans - 3) * 4 + (palate.Sub ? 2 : 0) + (palate.Fru ? 1 : 0));
}

/// By counts: the palates that find a menu.
constexpr Table<std::uint16_t, 0, FoodCounts - 1> FindsMenu = [] {
    Table<std::uint16_t, 0, FoodCounts - 1> table;
    for (int counts = 0; counts < FoodCounts; ++counts) {
        const int food = FoodWithCounts(counts);
        unsigned palates = 0;
        for (int clans = 3; clans <= 5; ++clans) {
            for (const bool sub : {false, true}) {
                for (const bool fru : {false, true}) {
                    const Palate palate{clans, sub, fru};
                    palates |= ChooseMenu(food, palate) > 0 ? PalateBit(palate) : 0U;
                }
            }
        }
        table[counts] = static_cast<std::uint16_t>(palates);
    }
    return table;
}();

}  // namespace

bool CanEat(int square, int clan) {
    const Palate palate = PalateOf(clan);
    const auto& food = game.Food[square];
    int counts = 0;
    int digit = 1;
    for (int pieces = 1; pieces <= MostOfColour(palate); ++pieces) {
        int colours = food[clan] >= pieces ? -1 : 0;
        for (int colour = 1; colour <= MaxClans; ++colour) {
            colours += food[colour] >= pieces ? 1 : 0;
        }
        counts += digit * colours;
        digit *= CountBase;
    }
    return (FindsMenu[counts] & PalateBit(palate)) != 0;
}

}  // namespace plasmos
