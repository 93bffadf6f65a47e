// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/happening.h"

#include <iterator>

#include "model/genes.h"
#include "model/message_line.h"
#include "model/narration.h"
#include "model/observer.h"
#include "model/presentation.h"

namespace plasmos {

namespace {

using Kind = Happening::Kind;

const auto& NameOf(const Happening& happening) {
    return game.Amoeba[happening.Amoeba][happening.Clan].Name;
}

const auto& OtherName(const Happening& happening) {
    return game.Amoeba[happening.OtherAmoeba][happening.OtherClan].Name;
}

const auto& ClanName(int clan) {
    return game.Players[clan].Name;
}

void TellOfRider(const Happening& ride) {
    Say(NameOf(ride), " holding on to ", OtherName(ride));
    Concern(ride.Clan);
}

void TellOfEscape(const Happening& escape) {
    if (game.Players[escape.Clan].IsComputer) {
        Say(NameOf(escape), " escaped to ", escape.Square, "!");
    } else {
        TellPerson(escape.Clan, Concat("Your amoeba ", NameOf(escape), " escapes to ", escape.Square, "."));
    }
}

void TellOfFailedEscape(const Happening& escape) {
    if (!game.Players[escape.Clan].IsComputer) {
        TellPerson(escape.Clan, Concat("Your amoeba ", NameOf(escape), " failed to escape."));
    }
}

/// A parasite's meal is told below its hosts.
void TellOfMeal(const Happening& meal) {
    if (meal.OtherClan != 0) {
        SayMore(NameOf(meal), " eats ", meal.Number, " in ", meal.Square);
    } else {
        Say(NameOf(meal), " eats ", meal.Number, " in ", meal.Square);
    }
}

void TellOfHosts(const Happening& feeding) {
    if (feeding.Second != 0) {
        Say(NameOf(feeding), " parasitizing off of clan ", ClanName(feeding.OtherClan), " and clan ",
            ClanName(feeding.Second));
    } else {
        Say(NameOf(feeding), " parasitizing off of clan ", ClanName(feeding.OtherClan));
    }
    Concern(feeding.OtherClan);
    if (feeding.Second != 0) {
        Concern(feeding.Second);
    }
}

/// What a person whose amoeba is attacked reads above the questions that follow; it is for the window
/// alone.
template <class... Pieces>
void TellVictim(int clan, const Pieces&... pieces) {
    if (game.Players[clan].IsComputer || !SomebodyListens()) {
        return;
    }
    const std::string text = Concat(pieces...);
    AddStatement(text, game.CurPlayer);
    Concern(clan);
    Board().Log(text, game.CurPlayer);
}

void TellOfAttack(const Happening& attack) {
    Say(NameOf(attack), " picking a fight with ", OtherName(attack), " in ", attack.Square);
    Concern(attack.OtherClan);
    TellVictim(attack.OtherClan, NameOf(attack), " belongs to ", ClanName(attack.Clan), ".");
}

void TellOfAttackToEat(const Happening& attack) {
    TellVictim(attack.OtherClan, NameOf(attack), " (", attack.Amoeba, ") of ", ClanName(attack.Clan), " attacks ",
               OtherName(attack), " (", attack.OtherAmoeba, ") in ", attack.Square, " to eat it.");
}

void TellOfPurchase(const Happening& purchase) {
    if (game.Players[purchase.Clan].IsComputer) {
        Report(ClanName(purchase.Clan), " just bought: ", GeneName(purchase.Number));
    }
}

void PutIntoWords(const Happening& happening) {
    switch (happening.What) {
        case Kind::Rides:
        case Kind::IsDragged: TellOfRider(happening); break;
        case Kind::Escapes: TellOfEscape(happening); break;
        case Kind::FailsToEscape: TellOfFailedEscape(happening); break;
        case Kind::Eats: TellOfMeal(happening); break;
        case Kind::Parasitizes: TellOfHosts(happening); break;
        case Kind::Starves: SayMore(NameOf(happening), " starves in ", happening.Square); break;
        case Kind::IsEaten: Say(NameOf(happening), " Eaten!"); break;
        case Kind::IsTorn: SayMore(NameOf(happening), " torn viciously to pieces!!!"); break;
        case Kind::Attacks: TellOfAttack(happening); break;
        case Kind::AttacksToEat: TellOfAttackToEat(happening); break;
        case Kind::FailsToDefend: SayMore("Amoeba's defense failed."); break;
        case Kind::BuysGene: TellOfPurchase(happening); break;
        case Kind::Moves:
        case Kind::CarriesFood:
        case Kind::ChangesSpot:
        case Kind::Throws:
        case Kind::Stays:
        case Kind::IsBorn:
        case Kind::Dies:
        case Kind::IsWounded:
        case Kind::Defends:
        case Kind::LosesGene:
        case Kind::PaysBP:
        case Kind::GainsBP:
        case Kind::ScoreMoves:
        case Kind::CardIsTurned:
        case Kind::OrderIsMade: break;
    }
}

/// Where the line before is left to be read first, what has moved or has been bought is seen meanwhile.
bool IsShownBeforeItsWords(Kind kind) {
    return kind == Kind::Rides || kind == Kind::IsDragged || kind == Kind::Escapes || kind == Kind::BuysGene;
}

}  // namespace

std::string_view KindName(Kind kind) {
    constexpr std::string_view names[] = {
        "Moves",    "Rides",     "IsDragged",   "Escapes",      "CarriesFood",   "ChangesSpot",  "Throws",
        "Stays",    "Eats",      "Parasitizes", "Starves",      "IsBorn",        "Dies",         "IsEaten",
        "IsTorn",   "IsWounded", "Attacks",     "AttacksToEat", "FailsToEscape", "Defends",      "FailsToDefend",
        "BuysGene", "LosesGene", "PaysBP",      "GainsBP",      "ScoreMoves",    "CardIsTurned", "OrderIsMade"};
    static_assert(std::size(names) == static_cast<std::size_t>(Kind::OrderIsMade) + 1);
    return names[static_cast<std::size_t>(kind)];
}

void TellHappening(Happening happening) {
    if (services.Listener != nullptr) {
        services.Listener->OnHappening(happening);
    }
    const bool shownFirst = IsShownBeforeItsWords(happening.What);
    if (shownFirst) {
        Show(&Presentation::ShowHappening, happening);
    }
    PutIntoWords(happening);
    if (!shownFirst) {
        Show(&Presentation::ShowHappening, happening);
    }
}

}  // namespace plasmos
