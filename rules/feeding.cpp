// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/feeding.h"

#include <algorithm>

#include "model/bio_points.h"
#include "model/genes.h"
#include "model/happening.h"
#include "model/message_line.h"
#include "questions/ask.h"
#include "rules/menus.h"

namespace plasmos {

namespace {

constexpr int Excretion = 2;
constexpr int StarvePause = 10;
constexpr int LastLentColour = 6;

using Kind = Happening::Kind;

/// Calls visit(place, digit) for the digits of a menu, from the last to the first; place 1 is the first.
template <class Visit>
void ForDigits(int menu, Visit&& visit) {
    int place = 0;
    for (int rest = menu; rest > 0; rest /= 10) {
        ++place;
    }
    for (int rest = menu; rest > 0; rest /= 10) {
        visit(place--, rest % 10);
    }
}

/// The colours of a menu's digits, as digits.
int ColoursOf(int menu) {
    int colours = 0;
    int unit = 1;
    ForDigits(menu, [&](int place, int) {
        colours += game.MenuColours[place] * unit;
        unit *= 10;
    });
    return colours;
}

/// Takes the menu's pieces from the square, and the eater excretes. Host: the first that lends; 0: none.
void TakeMeal(int menu, int square, int host) {
    const int clan = game.CurPlayer;
    auto& food = game.Food[square];
    ForDigits(menu, [&](int place, int digit) {
        if (const int colour = game.MenuColours[place]; colour != 0) {
            food[colour] -= digit;
        }
    });
    food[clan] += Excretion;
    Happened({.What = Kind::Eats,
              .Clan = clan,
              .Amoeba = game.CurAmoeba,
              .Square = square,
              .OtherClan = host,
              .Number = menu,
              .Second = SomebodyFollows() ? ColoursOf(menu) : 0});
}

/// The lowest colour from one upward that the square lacks and that is not the eater's; 6 ends it.
int NextLentColour(int colour, int square, int clan) {
    while (colour < LastLentColour && (colour == clan || game.Food[square][colour] > 0)) {
        ++colour;
    }
    return colour;
}

}  // namespace

bool IsFighter(int clan) {
    return HasGene(clan, "sfs") || HasGene(clan, "agg");
}

bool IsVictim(int square, int eater, int clan) {
    if (clan == eater || game.Occupancy[square][clan] == 0) {
        return false;
    }
    const bool armour = HasGene(eater, "sfs") && HasGene(clan, "arm");
    const bool poor = HasGene(eater, "par") && game.BP[clan] == 0;
    return !armour && !poor;
}

bool HasVictim(int square, int eater) {
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        if (IsVictim(square, eater, clan)) {
            return true;
        }
    }
    return false;
}

bool IsHost(int square, int eater, int clan) {
    return clan != eater && game.Occupancy[square][clan] > 0 && game.BP[clan] >= 1;
}

ParasiteMeal FindParasiteMeal(int square, int clan) {
    ParasiteMeal meal;
    if (!HasGene(clan, "par")) {
        return meal;
    }
    const auto before = game.Food[square];
    int colour = NextLentColour(1, square, clan);
    for (int host = 1; host <= game.NumPlayers && meal.HostCount < 2 && meal.Menu == 0; ++host) {
        if (!IsHost(square, clan, host)) {
            continue;
        }
        meal.Hosts[++meal.HostCount] = host;
        ++game.Food[square][colour];
        meal.Menu = SuggestMenu(square, clan);
        if (meal.Menu == 0) {
            colour = NextLentColour(std::min(colour + 1, LastLentColour), square, clan);
        }
    }
    game.Food[square] = before;
    OrderEqualAmounts();
    for (int& eaten : game.MenuColours) {
        eaten = game.Food[square][eaten] == 0 ? 0 : eaten;
    }
    return meal;
}

void EatMenu(int menu, int square) {
    if (menu == 0) {
        return;
    }
    TakeMeal(menu, square, 0);
}

void EatSuggestion(int menu, int square) {
    OrderEqualAmounts();
    EatMenu(menu, square);
}

void EatAsParasite(const ParasiteMeal& meal, int square) {
    for (int i = 1; i <= meal.HostCount; ++i) {
        PayBP(meal.Hosts[i], 1);
    }
    Happened({.What = Kind::Parasitizes,
              .Clan = game.CurPlayer,
              .Amoeba = game.CurAmoeba,
              .Square = square,
              .OtherClan = meal.Hosts[1],
              .Second = meal.HostCount == 2 ? meal.Hosts[2] : 0});
    TakeMeal(meal.Menu, square, meal.Hosts[1]);
}

void Starve(int square) {
    const int damage = ++game.Amoeba[game.CurAmoeba][game.CurPlayer].Damage;
    Happened(
        {.What = Kind::Starves, .Clan = game.CurPlayer, .Amoeba = game.CurAmoeba, .Square = square, .Number = damage});
    TakePause(StarvePause);
}

Table<int, 0, MaxClans> SuggestedAmounts(int square, int clan) {
    Table<int, 0, MaxClans> amounts;
    const int menu = SuggestMenu(square, clan);
    OrderEqualAmounts();
    ForDigits(menu, [&](int place, int digit) { amounts[game.MenuColours[place]] += digit; });
    return amounts;
}

}  // namespace plasmos
