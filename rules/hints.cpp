// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/hints.h"

#include <algorithm>

#include "model/genes.h"
#include "questions/food_form.h"
#include "questions/question.h"
#include "rules/environment.h"
#include "rules/menus.h"
#include "rules/movement.h"

namespace plasmos {

namespace {

/// "1 right, 2 down, 3 left (stays), 4 up, 5 stays, 6 you choose".
std::string Faces(int square) {
    constexpr std::string_view ways[] = {"1 right", "2 down", "3 left", "4 up"};
    std::string faces;
    for (int face = 1; face <= 4; ++face) {
        faces += Concat(ways[face - 1], NeighbourByDie(square, face) == square ? " (stays), " : ", ");
    }
    return faces + "5 stays, 6 you choose";
}

/// How a clan's amoeba finds its way; `throws`: how often Movement 1 throws.
std::string WayText(int clan, int amoeba, std::string_view throws) {
    if (HasGene(clan, "mv2")) {
        return "You choose the square (Movement 2).";
    }
    const std::string faces = Faces(game.Amoeba[amoeba][clan].Square);
    return HasGene(clan, "mv1") ? Concat(throws, ", you choose between them (Movement 1): ", faces, ".")
                                : Concat("Die: ", faces, ".");
}

/// Genes that would make a paid move better.
std::string GenesForMoving(int clan) {
    std::string genes;
    const auto add = [&](std::string_view name) { genes += Concat(genes.empty() ? " Better with " : ", ", name); };
    if (!HasGene(clan, "mv2")) {
        add(HasGene(clan, "mv1") ? "Movement 2" : "Movement 1");
    }
    if (!HasSpeed(clan)) {
        add("Speed");
    }
    if (!HasGene(clan, "str")) {
        add("Streamlining");
    }
    return genes.empty() ? genes : genes + ".";
}

std::string AttackerText() {
    return Concat(game.Amoeba[game.CurAmoeba][game.CurPlayer].Name, " (", game.CurAmoeba, ") of ",
                  game.Players[game.CurPlayer].Name);
}

/// What becomes of an amoeba that does not get away.
std::string_view StakesText(int clan, Assault assault) {
    if (assault == Assault::ToEat) {
        return "it is eaten.";
    }
    return HasGene(clan, "arm") ? "it takes 1 damage (Armor)." : "it is torn to pieces.";
}

std::string AssaultText(Assault assault) {
    return Concat(AttackerText(), assault == Assault::ToEat ? " attacks to eat it. " : " attacks it. ");
}

std::string_view StepText(int direction) {
    return direction == WhereItWants ? "your choice" : DirectionText(direction);
}

std::string PiecesPrice(int clan, int price) {
    return Concat(price, HasGene(clan, "div") ? " BP (Division Rate)" : " BP");
}

std::string_view PlaceText(int clan, bool inPlay) {
    if (!inPlay || game.AmoebaCount[clan] == 0) {
        return "Empty squares are offered.";
    }
    return HasGene(clan, "spo") || game.AmoebaCount[clan] < 2 ? "Every square without one of yours is offered."
                                                              : "Squares next to yours are offered.";
}

}  // namespace

std::string ClansHint(int persons) {
    return HintsAreWanted() ? Concat("You play ", persons == 1 ? "one" : "two",
                                     " of them. With 3 or 4 a clan has up to 7 amoebas and 10 BP a turn, with 5 or 6 "
                                     "up to 6 and 11 BP.")
                            : "";
}

std::string MoveOfferHint(int clan, int amoeba, bool first, int without) {
    if (!HintsAreWanted()) {
        return {};
    }
    const std::string_view price = HasGene(clan, "str")   ? "Yes: free (Streamlining). "
                                   : first                ? "Yes: 1 BP, wherever it leads. "
                                   : HasGene(clan, "per") ? "Yes: free, the second attempt (Persistence). "
                                                          : "Yes: free, the second attempt (Speed). ";
    const std::string_view no = !first                       ? " No: it stays"
                                : game.Drift == WhereItWants ? " No: it drifts where you want, free"
                                                             : " No: it drifts";
    const std::string_view meal = without > 0 && !CanEat(without, clan) ? ", and finds no menu there." : ".";
    return Concat(price, WayText(clan, amoeba, "Two throws"), no, meal, first ? GenesForMoving(clan) : std::string());
}

std::string FreeDriftHint() {
    return HintsAreWanted() ? "The drift lets it choose, free of charge." : "";
}

std::string FreeChoiceHint() {
    return HintsAreWanted() ? "Movement 2: no die." : "";
}

std::string ThrowHint(int clan, int number, int firstDirection, int firstSquare) {
    if (!HintsAreWanted()) {
        return {};
    }
    if (number == 1) {
        return HasGene(clan, "mv1")
                   ? "First throw: 6, you choose. If another throw follows, you choose between the two."
                   : "The die shows 6: you choose.";
    }
    return Concat("Second throw: 6, you choose. The first was ", StepText(firstDirection), ", square ", firstSquare,
                  ".");
}

std::string BothThrowsHint(int firstDirection, int firstSquare, int secondDirection, int secondSquare) {
    return HintsAreWanted()
               ? Concat("First throw: ", StepText(firstDirection), ", square ", firstSquare,
                        ". Second throw: ", StepText(secondDirection), ", square ", secondSquare, ". Take one of them.")
               : "";
}

std::string RidersHint(int to) {
    return HintsAreWanted() ? Concat("Free of charge (Holding). Any number of yours go along to square ", to,
                                     "; who has not had its turn keeps it.")
                            : "";
}

std::string TentacleHint(int clan, int to) {
    if (!HintsAreWanted()) {
        return {};
    }
    return Concat("Free of charge (Tentacle). It goes along to square ", to,
                  CanEat(to, clan) ? ", where a meal lies already." : ", where no meal lies yet.");
}

std::string DragHint(int clan, int to) {
    return HintsAreWanted() ? Concat("1 BP of your ", game.BP[clan], ", for one amoeba that goes along to square ", to,
                                     ". It keeps a turn that is still to come.")
                            : "";
}

std::string FeedingHint(const FoodForm& form, int amoeba) {
    if (!HintsAreWanted()) {
        return {};
    }
    const int clan = form.Clan;
    std::string hint = form.SuggestedMenu != 0 ? std::string("A meal leaves 2 pieces of your own colour here.")
                                               : Concat(form.PossibleMeals().empty() ? "There is nothing to eat here"
                                                                                     : "No menu is suggested here",
                                                        ". Starve: 1 damage; it has ", game.Amoeba[amoeba][clan].Damage,
                                                        " and dies of ", DamageLimit(clan), ".");
    if (form.sfsoptEnabled) {
        hint += " Struggle: 1 BP for a fight; won, it has eaten, lost, it starves.";
    }
    if (form.paroptEnabled) {
        hint += " Parasitism: each host lends 1 piece and pays 1 BP; you pay nothing.";
    }
    return hint;
}

std::string HostHint() {
    return HintsAreWanted() ? "The host's clan lends 1 piece and pays 1 BP when you eat; you pay nothing and the host "
                              "takes no damage. At most 2 hosts."
                            : "";
}

std::string StruggleHint(int clan, int amoeba) {
    if (!HintsAreWanted()) {
        return {};
    }
    return Concat("1 BP of your ", game.BP[clan],
                  ", paid with the pick. Won: it has eaten and 1 piece of every colour lies here. If the victim "
                  "escapes or defends itself yours starves: damage ",
                  game.Amoeba[amoeba][clan].Damage + 1, " of ", DamageLimit(clan), ".");
}

std::string GenesOfferHint() {
    return HintsAreWanted() ? "To look costs nothing: a gene is paid when it is ticked." : "";
}

std::string BuyingHint() {
    return HintsAreWanted() ? "A tick buys at once; what was bought here goes back for its price, "
                              "without the gene that it replaced."
                            : "";
}

std::string AdaptingHint(int clan) {
    if (!HintsAreWanted()) {
        return {};
    }
    return Concat("Mutation level ", game.Players[clan].MutationLevel, ", UV level ", game.UVLevel,
                  ". 1 BP makes up 1 point, a gene its points (Ray Protection 4); there is no refund for it.");
}

std::string DivisionHint(int clan, int price, int most) {
    if (!HintsAreWanted()) {
        return {};
    }
    const bool oneIsFree = game.AmoebaCount[clan] == 0;
    most = std::min(most, game.MaxAmoeba - game.AmoebaCount[clan]);
    return Concat(PiecesPrice(clan, price), " each, you have ", game.BP[clan], ": ", most, " at most",
                  oneIsFree ? ", the first of them free. " : ". ", game.AmoebaCount[clan], " of ", game.MaxAmoeba,
                  " are on the board.");
}

std::string PlacingHint(int clan, bool inPlay, const NewAmoeba& which) {
    if (!HintsAreWanted()) {
        return {};
    }
    const int number = inPlay ? which.Which : game.AmoebaCount[clan] + 1;
    return Concat("Amoeba ", number, " of ", inPlay ? which.Of : StartAmoebas, ". ", PlaceText(clan, inPlay));
}

std::string AggressHint() {
    return HintsAreWanted() ? "1 BP, paid when the victim is picked. It is torn to pieces (in Armor: 1 damage) unless "
                              "it escapes or defends itself."
                            : "";
}

std::string AggressVictimHint(int clan, int attack) {
    if (!HintsAreWanted()) {
        return {};
    }
    return Concat("1 BP of your ", game.BP[clan], ", paid with the pick. Torn to pieces it leaves 2 of every colour; ",
                  "in Armor it takes 1 damage.",
                  HasGene(clan, "per") && attack == 1 && game.BP[clan] >= 2
                      ? " If it gets away you may attack once more for 1 BP (Persistence)."
                      : "");
}

std::string AttackerHint() {
    return HintsAreWanted() ? "Nothing is paid before the victim is picked; None ends the step." : "";
}

std::string DefenceHint(int clan, Assault assault, bool again) {
    if (!HintsAreWanted()) {
        return {};
    }
    return Concat(AssaultText(assault), "1 BP of ", game.BP[clan], ": one chance in two to beat it off; else ",
                  HasGene(clan, "per") && !again && game.BP[clan] >= 2 ? "once more for 1 BP (Persistence), or " : "",
                  StakesText(clan, assault));
}

std::string EscapeHint(int clan, int amoeba, Assault assault) {
    if (!HintsAreWanted()) {
        return {};
    }
    const int price = HasGene(clan, "str") ? 0 : 1;
    const bool defends =
        HasGene(clan, "def") && game.BP[clan] > price && game.Amoeba[amoeba][clan].Damage < DamageLimit(clan);
    return Concat(AssaultText(assault), price == 0 ? "Free (Streamlining). " : "1 BP. ",
                  WayText(clan, amoeba, "Up to two throws"), " In another square it is safe; else ",
                  defends ? "it may defend itself, or " : "", StakesText(clan, assault));
}

}  // namespace plasmos
