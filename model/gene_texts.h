// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iterator>
#include <string>
#include <string_view>

#include "model/genes.h"

namespace plasmos {

/// A gene in words.
struct GeneWords {
    std::string_view Code;
    std::string_view Text;  ///< what it does, what it needs and what it leads to
};

/// The genes in the order of their numbers, beside their rows.
inline constexpr GeneWords GeneTexts[] = {
    {"int", "Does nothing in play, but counts among the genes that are scored, and is the cheapest of them."},
    {"mv1",
     "An amoeba that attempts to move, or escapes, throws the direction die up to twice and you choose between the "
     "squares. "
     "Leads to Movement 2, which replaces it."},
    {"spo",
     "New amoebas may be placed in any square without one of your own, not only next to your others, once you have one "
     "on "
     "the board."},
    {"spe",
     "After its attempt to move an amoeba may make a second one, free of charge. Leads to Persistence, which "
     "replaces it."},
    {"def",
     "An attacked amoeba may pay 1 BP and beat the attack off by two dice: one chance in two. "
     "Leads to Armor, which replaces it."},
    {"esc",
     "An attacked amoeba may pay 1 BP to move away by the direction die, before it defends itself. "
     "Leads to Armor, which replaces it unless Defence is held."},
    {"sub", "Adds menus: your amoebas may also eat larger meals, mostly of fewer colours."},
    {"ray",
     "Lowers your mutation level by 2. It does not count among the genes that are scored. "
     "Given up while you adapt it takes 4 off the UV cost, but the level then rises by 2."},
    {"str",
     "Attempts to move, and to escape where you hold Escape, are free of charge; a clan without BP cannot escape."},
    {"ten",
     "An amoeba that leaves a square may carry up to 2 pieces of food along, and for 1 BP drag another amoeba "
     "of your clan."},
    {"hol",
     "Your amoebas ride along, free of charge, when another clan's amoeba leaves their square; and where an amoeba "
     "chooses its way it may stay."},
    {"lif", "Your amoebas die of 3 damage instead of 2."},
    {"fru", "Adds menus: your amoebas may also eat smaller meals, and some as large of fewer colours."},
    {"sfs",
     "An amoeba that cannot eat may pay 1 BP and attack another clan's amoeba in its square, to eat it; not one in "
     "Armor. Leads to Aggression, which replaces it."},
    {"par",
     "One or two other clans in the square lend a piece for a meal and pay 1 BP each. Clans without BP cannot be "
     "attacked by you."},
    {"div", "New amoebas cost 4 BP instead of 6."},
    {"per",
     "Needs Speed and replaces it: a second attempt to move, free of charge. A defence that failed, and an attack "
     "in the aggression phase that was escaped or beaten off, may be tried once more for 1 BP."},
    {"mv2",
     "Needs Movement 1 and replaces it: an amoeba that attempts to move, or escapes, goes where you choose, without a "
     "die."},
    {"agg",
     "Needs Struggle for Survival and replaces it: its amoebas attack to eat, those in Armor too, and one may attack "
     "for 1 BP in the aggression phase, if no clan before yours does or declines."},
    {"arm",
     "Needs Defence or Escape and replaces it (Defence where both are held). An attack in the aggression phase "
     "does 1 damage instead of tearing your amoeba to pieces, and Struggle for Survival cannot be turned against it."},
};

static_assert(std::size(GeneTexts) == std::size(GeneRows), "every gene has its text");
static_assert(
    [] {
        for (int gene = 1; gene <= GeneCount; ++gene) {
            if (GeneTexts[gene - 1].Code != GeneCodes[gene] || GeneTexts[gene - 1].Text.empty()) {
                return false;
            }
        }
        return true;
    }(),
    "the texts stand in the order of the genes");

/// What a gene does; an empty text for a number that no gene has.
constexpr std::string_view GeneText(int gene) {
    return gene >= 1 && gene <= GeneCount ? GeneTexts[gene - 1].Text : std::string_view{};
}

/// Why a clan cannot buy a gene now: "costs 5 BP, you have 3", "needs Movement 1", "sold out", "you hold it"; what the
/// clan's other genes have against it comes before its price. An empty text where it can.
std::string GeneBarText(const GameState& state, int clan, int gene);

/// "3 BP, mutation +2": what a gene costs in this game and does to the mutation level.
std::string GenePrice(const GameState& state, int gene);

}  // namespace plasmos
