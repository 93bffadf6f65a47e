// SPDX-License-Identifier: GPL-3.0-or-later
#include "ai/meal_words.h"

#include "rules/menu_choice.h"

namespace plasmos {

namespace {

/// What was counted for the menu, the largest heap first: "4, 2 and 1".
struct Heaps {};

int CountHeaps() {
    int count = 0;
    while (game.MenuAmounts[count + 1] != 0) {
        ++count;
    }
    return count;
}

void AppendPiece(std::string& text, Heaps) {
    const int count = CountHeaps();
    for (int place = 1; place <= count; ++place) {
        AppendSeparator(text, place, count);
        text += Concat(game.MenuAmounts[place], game.MenuAmounts[place] == 9 ? " or more" : "");
    }
}

/// The genes that a menu is looked up by.
std::string_view PalateText(const Palate& palate) {
    if (palate.Sub) {
        return palate.Fru ? "with Substitution and Frugality " : "with Substitution ";
    }
    return palate.Fru ? "with Frugality " : "";
}

/// Whether heaps of the same size are eaten from differently, so that their order decides.
bool OrderDecides(int menu) {
    const std::string digits = Concat(menu);
    const auto eaten = [&](int place) {
        return place <= static_cast<int>(digits.size()) ? digits[static_cast<std::size_t>(place - 1)] : '0';
    };
    for (int place = 2; place <= CountHeaps(); ++place) {
        if (game.MenuAmounts[place] == game.MenuAmounts[place - 1] && eaten(place) != eaten(place - 1)) {
            return true;
        }
    }
    return false;
}

}  // namespace

void TellMealWanted(int menu, int square, int clan) {
    Because(ThePiece{clan, game.CurAmoeba}, " finds ", Heaps{}, " pieces of other clans' food in square ", square, ": ",
            PalateText(PalateOf(clan)), "its meal is ", menu, ".");
    if (OrderDecides(menu)) {
        Because("Of heaps of the same size those of the clans with the higher scores are eaten first.");
    }
}

}  // namespace plasmos
