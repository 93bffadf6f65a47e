// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/computer_clan.h"

#include "ai/meal_words.h"
#include "ai/prey.h"
#include "model/bio_points.h"
#include "model/dice.h"
#include "model/genes.h"
#include "model/reasons.h"
#include "rules/feeding.h"
#include "rules/fight.h"
#include "rules/menus.h"

namespace plasmos {

namespace {

/// What a hungry amoeba can do about its hunger by fighting.
enum class Fight { NoFighter, NoBP, NobodyThere, Possible };

Fight WhetherToFight(int square, int clan) {
    if (!IsFighter(clan)) {
        return Fight::NoFighter;
    }
    if (game.BP[clan] < 1) {
        return Fight::NoBP;
    }
    return HasVictim(square, clan) ? Fight::Possible : Fight::NobodyThere;
}

bool CanEscape(int clan) {
    return HasGene(clan, "esc") && (HasGene(clan, "str") || game.BP[clan] >= 1);
}

bool CanDefend(int clan) {
    return HasGene(clan, "def") && game.BP[clan] >= 1;
}

bool IsFleet(int clan) {
    return HasGene(clan, "str") && HasGene(clan, "esc") && (HasGene(clan, "mv1") || HasGene(clan, "mv2"));
}

[[gnu::cold]] void TellFirstChoice(int square, int eater, int victim, int rolled) {
    if (!game.Menu.normmen) {
        Because("The die put ", TheClan{rolled}, " first among the clans to fight.");
    }
    Because(ThePiece{eater, game.CurAmoeba}, " cannot eat in square ", square, " and fights ", TheClan{victim},
            " for 1 BP, the first clan there without Armor",
            Where{game.Menu.normmen, " in the order of play.", " that can neither escape nor defend itself."});
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
            if (ReasonsAreWanted()) [[unlikely]] {
                TellFirstChoice(square, eater, clan, offset + 1);
            }
            return clan;
        }
    }
    return 0;
}

int SecondChoice(int square, int eater) {
    for (int place = 1; place <= game.NumPlayers; ++place) {
        const int clan = ClanAtPlace(place);
        if (IsPrey(square, eater, clan) && !IsFleet(clan)) {
            Because(
                ThePiece{eater, game.CurAmoeba}, " cannot eat in square ", square,
                " and finds nobody defenceless there: for 1 BP it fights ", TheClan{clan},
                ", in the order of play the first without Armor that lacks Streamlining, Escape or a Movement gene.");
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
        Because(Where{game.Menu.normmen, "All clans it could fight there have Armor.",
                      "All clans it could fight there have Armor, or Streamlining with Escape and a Movement gene."});
        return true;
    }
    PayBP(clan, 1);
    bool hungry = true;
    AttackToEat(victim, square, clan, hungry, 0);
    return hungry;
}

std::string_view WhyNoFight(Fight fight) {
    switch (fight) {
        case Fight::NoBP: return ", its clan has no BP to fight for food";
        case Fight::NobodyThere: return ", there is nobody it may fight";
        default: return "";
    }
}

void TellStarving(int square, int clan, Fight fight) {
    Because(ThePiece{clan, game.CurAmoeba}, " cannot eat in square ", square, WhyNoFight(fight),
            Where{HasGene(clan, "par"), ", nobody lends what is missing"}, ", so it starves.");
}

void TellParasite(int square, int clan, const ParasiteMeal& meal) {
    const ThePiece piece{clan, game.CurAmoeba};
    if (meal.HostCount == 1) {
        Because(piece, " cannot eat in square ", square, ", but with what ", TheClan{meal.Hosts[1]},
                " lends, the first clan there with a BP, the meal is ", meal.Menu, ".");
    } else {
        Because(piece, " cannot eat in square ", square, ", but with what ", TheClan{meal.Hosts[1]}, " and ",
                TheClan{meal.Hosts[2]}, " lend, the first clans there with a BP, the meal is ", meal.Menu, ".");
    }
}

}  // namespace

void ComputerFeedAmoeba(int clan, int /*amoeba*/, int square) {
    if (CanEat(square, clan)) {
        const int menu = SuggestMenu(square, clan);
        TellMeal(menu, square, clan);
        EatSuggestion(menu, square);
        return;
    }
    const Fight fight = WhetherToFight(square, clan);
    if (fight == Fight::Possible && !Struggle(square, clan)) {
        return;
    }
    if (HasGene(clan, "par")) {
        const ParasiteMeal meal = FindParasiteMeal(square, clan);
        if (meal.Menu != 0) {
            TellParasite(square, clan, meal);
            EatAsParasite(meal, square);
            return;
        }
    }
    TellStarving(square, clan, fight);
    Starve(square);
}

}  // namespace plasmos
