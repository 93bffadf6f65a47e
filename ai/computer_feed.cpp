// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/computer_clan.h"

#include "ai/prey.h"
#include "model/bio_points.h"
#include "model/dice.h"
#include "model/genes.h"
#include "rules/feeding.h"
#include "rules/fight.h"
#include "rules/menus.h"

namespace plasmos {

namespace {

bool CanEscape(int clan) {
    return HasGene(clan, "esc") && (HasGene(clan, "str") || game.BP[clan] >= 1);
}

bool CanDefend(int clan) {
    return HasGene(clan, "def") && game.BP[clan] >= 1;
}

bool IsFleet(int clan) {
    return HasGene(clan, "str") && HasGene(clan, "esc") && (HasGene(clan, "mv1") || HasGene(clan, "mv2"));
}

/// With difficulty "Normal" the clans are looked at in the order of play; else from a clan drawn by
/// die on, and those that can escape or defend are passed over.
int FirstChoice(int square, int eater) {
    const int offset = RollDie(game.NumPlayers) - 1;
    const bool normal = game.Menu.normmen;
    for (int i = 1; i <= game.NumPlayers; ++i) {
        const int wrapped = i + offset > game.NumPlayers ? i + offset - game.NumPlayers : i + offset;
        const int clan = normal ? ClanAtPlace(i) : wrapped;
        if (IsPrey(square, eater, clan) && (normal || (!CanEscape(clan) && !CanDefend(clan)))) {
            return clan;
        }
    }
    return 0;
}

int SecondChoice(int square, int eater) {
    for (int place = 1; place <= game.NumPlayers; ++place) {
        const int clan = ClanAtPlace(place);
        if (IsPrey(square, eater, clan) && !IsFleet(clan)) {
            return clan;
        }
    }
    return 0;
}

/// The struggle for survival. True: the amoeba is still hungry.
bool Struggle(int square, int clan) {
    int victim = FirstChoice(square, clan);
    if (victim == 0) {
        victim = SecondChoice(square, clan);
    }
    if (victim == 0) {
        return true;
    }
    PayBP(clan, 1);
    bool hungry = true;
    AttackToEat(victim, square, clan, hungry, 0);
    return hungry;
}

}  // namespace

void ComputerFeedAmoeba(int clan, int /*amoeba*/, int square) {
    if (CanEat(square, clan)) {
        EatSuggestion(SuggestMenu(square, clan), square);
        return;
    }
    const bool mayStruggle = IsFighter(clan) && game.BP[clan] >= 1 && HasVictim(square, clan);
    if (mayStruggle && !Struggle(square, clan)) {
        return;
    }
    if (HasGene(clan, "par")) {
        const ParasiteMeal meal = FindParasiteMeal(square, clan);
        if (meal.Menu != 0) {
            EatAsParasite(meal, square);
            return;
        }
    }
    Starve(square);
}

}  // namespace plasmos
