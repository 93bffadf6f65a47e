// SPDX-License-Identifier: GPL-3.0-or-later
#include <utility>
#include <vector>

#include "model/bio_points.h"
#include "model/dice.h"
#include "model/genes.h"
#include "model/happening.h"
#include "model/presentation.h"
#include "questions/ask.h"
#include "rules/environment.h"
#include "rules/hints.h"
#include "rules/move_amoeba.h"
#include "rules/movement.h"

namespace plasmos {

namespace {

SquareList WithOwnSquare(SquareList list, int square) {
    if (!list.Has(square)) {
        list.Add(square);
    }
    return list;
}

/// Where the current takes the amoeba, in words too; nowhere when the drift lets it choose.
struct DriftForecast {
    int Square = 0;
    std::string Text;
};

DriftForecast ForecastDrift(int clan, int amoeba) {
    if (game.Drift == WhereItWants) {
        return {};
    }
    const Piece& piece = game.Amoeba[amoeba][clan];
    const int destination = MoveDestination(piece.Square);
    return {destination, Concat(piece.Name, destination != piece.Square ? " will drift into " : " will remain in ",
                                destination, ".\n")};
}

std::string OfferText(int clan, int amoeba, bool first) {
    const auto& label = game.Amoeba[amoeba][clan].Name;
    const bool free = HasGene(clan, "str") || !first;
    return Concat("Would ", label,
                  free ? " like to attempt to move elsewhere?" : " like to pay 1BP to attempt to move elsewhere?");
}

/// Whether the clan can make an attempt at all.
bool MayAttempt(int clan, bool first) {
    return !first || HasGene(clan, "str") || game.BP[clan] >= 1;
}

void DriftPersonsAmoeba(int clan, int amoeba) {
    const int square = game.Amoeba[amoeba][clan].Square;
    if (game.Drift != WhereItWants) {
        MoveAmoeba(clan, amoeba, MoveDestination(square));
        return;
    }
    const auto list = WithOwnSquare(Neighbours(square, clan), square);
    MoveAmoeba(clan, amoeba, ChooseSquare(clan, amoeba, false, list, FreeDriftHint()));
}

/// One attempt: the question, the price, the move. False: the person did not want to.
bool Attempt(int clan, int amoeba, bool first, const DriftForecast& drift) {
    if (!MayAttempt(clan, first)) {
        if (!drift.Text.empty()) {
            TellPerson(clan, drift.Text.substr(0, drift.Text.size() - 1));
        }
        return false;
    }
    if (!AskYesNo(clan, drift.Text + OfferText(clan, amoeba, first), drift.Square,
                  MoveOfferHint(clan, amoeba, first, first ? drift.Square : game.Amoeba[amoeba][clan].Square))) {
        return false;
    }
    const bool freeAttempt = HasGene(clan, "str") || (!first && HasSpeed(clan));
    if (!freeAttempt) {
        PayBP(clan, 1);
    }
    MoveAmoeba(clan, amoeba,
               FindPersonsDestination(clan, amoeba, first ? MoveKind::FirstAttempt : MoveKind::SecondAttempt));
    return true;
}

/// Throws the direction die for an amoeba: the direction that it shows.
int ThrowDie(int clan, int amoeba) {
    const int face = RollDie(6);
    const int direction = DirectionFromDie(face);
    const int from = game.Amoeba[amoeba][clan].Square;
    Happened({.What = Happening::Kind::Throws,
              .Clan = clan,
              .Amoeba = amoeba,
              .From = from,
              .Square = direction == WhereItWants ? 0 : MoveDestination(from, direction),
              .Number = face});
    return direction;
}

int ChooseNeighbour(int clan, int amoeba, std::string hint) {
    return ChooseSquare(clan, amoeba, true, {}, std::move(hint));
}

/// A throw of the direction die, and where it leads.
struct Throw {
    int Direction = 0;
    int Square = 0;
};

/// Where a throw leads: the square in its direction, or the one that the person chooses. `before` is the first
/// throw of a clan that throws again.
int SquareOfThrow(int clan, int amoeba, int direction, const Throw* before = nullptr) {
    if (direction != WhereItWants) {
        return MoveDestination(game.Amoeba[amoeba][clan].Square, direction);
    }
    return ChooseNeighbour(
        clan, amoeba,
        before != nullptr ? ThrowHint(clan, 2, before->Direction, before->Square) : ThrowHint(clan, 1, 0, 0));
}

/// The second throw of a clan with "mv1", after a first that led to a square.
int ThrowAgain(int clan, int amoeba, const Throw& first) {
    const int one = first.Square;
    const int direction = ThrowDie(clan, amoeba);
    const int two = SquareOfThrow(clan, amoeba, direction, &first);
    if (direction == WhereItWants) {
        return two;
    }
    const int square = game.Amoeba[amoeba][clan].Square;
    const auto& label = game.Amoeba[amoeba][clan].Name;
    if (one == two) {
        TellPerson(clan, Concat(label, one == square ? " will stay in " : " will move to ", one, " instead"));
        return one;
    }
    SquareList both;
    both.Add(one);
    both.Add(two);
    return ChooseSquare(clan, amoeba, false, both, BothThrowsHint(first.Direction, one, direction, two));
}

}  // namespace

int ChooseSquare(int clan, int amoeba, bool neighbours, const SquareList& list, std::string hint) {
    const Piece& piece = game.Amoeba[amoeba][clan];
    const SquareList offered = neighbours ? Neighbours(piece.Square, clan) : list;
    std::vector<int> squares;
    for (int place = 1; place <= offered.Count(); ++place) {
        squares.push_back(offered[place]);
    }
    const std::string before = game.Message.String();
    const int chosen = AskSquare(clan, Concat(before, "\nChoose a square for ", piece.Name, " to Move into:"), squares,
                                 std::move(hint));
    PutBackMessage(before, clan);
    return chosen;
}

int FindPersonsDestination(int clan, int amoeba, MoveKind kind) {
    if (HasGene(clan, "mv2")) {
        return ChooseNeighbour(clan, amoeba, FreeChoiceHint());
    }
    const int direction = ThrowDie(clan, amoeba);
    if (HasGene(clan, "mv1")) {
        const int square = SquareOfThrow(clan, amoeba, direction);
        const bool chosen = kind == MoveKind::Escape && direction == WhereItWants;
        return chosen ? square : ThrowAgain(clan, amoeba, {direction, square});
    }
    const bool anyway = kind == MoveKind::FirstAttempt && direction == game.Drift;
    TellPerson(clan,
               Concat("Amoeba ", amoeba, " will move ", DirectionText(direction), anyway ? " anyway." : " instead."));
    return SquareOfThrow(clan, amoeba, direction);
}

void MovePersonsAmoeba(int clan, int amoeba) {
    if (!Attempt(clan, amoeba, true, ForecastDrift(clan, amoeba))) {
        DriftPersonsAmoeba(clan, amoeba);
    } else if (HasSpeed(clan)) {
        Attempt(clan, amoeba, false, {});
    }
    ClearMessage();
}

}  // namespace plasmos
