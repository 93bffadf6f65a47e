// SPDX-License-Identifier: GPL-3.0-or-later
#include "ai/move_words.h"

#include "model/genes.h"
#include "rules/feeding.h"
#include "rules/reason_words.h"

namespace plasmos {

namespace {

/// Those of the candidates where it can eat.
SquareList MealsOf(const Outlook& outlook) {
    SquareList meals;
    for (int i = 1; i <= outlook.Candidates.Count(); ++i) {
        if (!outlook.Prey.Has(outlook.Candidates[i])) {
            meals.Add(outlook.Candidates[i]);
        }
    }
    // cppcheck-suppress uninitvar  // filled as far as its count
    return meals;
}

/// The squares it reaches; its own only where that is a candidate.
SquareList WaysFrom(const Outlook& outlook) {
    const int own = outlook.Why.Square;
    const SquareList reached = Neighbours(own, outlook.Why.Clan);
    SquareList ways;
    for (int i = 1; i <= reached.Count(); ++i) {
        if (reached[i] != own || outlook.Candidates.Has(own)) {
            ways.Add(reached[i]);
        }
    }
    // cppcheck-suppress uninitvar  // filled as far as its count
    return ways;
}

void AppendCandidates(std::string& text, const Outlook& outlook) {
    const SquareList meals = MealsOf(outlook);
    if (meals.Count() > 0) {
        AppendPiece(text, "it can eat in ");
        AppendSquares(text, meals, true);
    }
    if (outlook.Prey.Count() > 0) {
        AppendPiece(text, meals.Count() > 0 ? " and finds prey in " : "it finds prey in ");
        AppendSquares(text, outlook.Prey, true);
    }
}

}  // namespace

void AppendPiece(std::string& text, const Plight& plight) {
    const ThePiece piece{plight.Clan, plight.Amoeba};
    text += plight.Second ? Concat(SpeedOf{plight.Clan}, " lets ", piece, " try once more, as it cannot eat in square ",
                                   plight.Square)
                          : Concat(piece, " cannot eat in square ", plight.Square);
}

void AppendPiece(std::string& text, const Outlook& outlook) {
    const SquareList reached = WaysFrom(outlook);
    AppendPiece(text, outlook.Why);
    if (reached.Count() == 0) {
        AppendPiece(text, "; there is no way out");
    } else if (outlook.Candidates.Count() == 0) {
        const std::string_view sought = IsFighter(outlook.Why.Clan) ? "neither a meal nor prey" : "no meal";
        text += Concat("; there is ", sought, " for it in ", TheSquares{reached});
    } else {
        text += Concat("; of ", TheSquares{reached}, " ");
        AppendCandidates(text, outlook);
    }
}

void AppendPiece(std::string& text, const Price& price) {
    AppendPiece(text, price.Pays                   ? "for 1 BP"
                      : HasGene(price.Clan, "str") ? "free with Streamlining"
                                                   : "free this time");
}

void AppendPiece(std::string& text, const Drifting& drifting) {
    if (game.Drift != WhereItWants) {
        text += drifting.To != drifting.From ? Concat("it drifts into ", drifting.To)
                                             : Concat("the current leaves it in ", drifting.To);
    } else if (drifting.CanEatHere) {
        AppendPiece(text, "the current lets it choose, and it stays there");
    } else if (drifting.Feeding.Count() == 0) {
        AppendPiece(text, "the current lets it choose, and with no meal to drift to it stays there");
    } else {
        text += Concat("the current lets it choose where it can eat, and ", TheDraw{drifting.Feeding, drifting.To});
    }
}

void AppendPiece(std::string& text, SpeedOf speed) {
    AppendPiece(text, TheGene{HasGene(speed.Clan, "per") ? GeneId("per") : GeneId("spe")});
}

}  // namespace plasmos
