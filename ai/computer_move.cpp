// SPDX-License-Identifier: GPL-3.0-or-later
#include "ai/computer_move.h"
#include "rules/computer_clan.h"

#include "ai/move_pass.h"
#include "ai/prey.h"
#include "model/bio_points.h"
#include "model/dice.h"
#include "model/message_line.h"
#include "model/reasons.h"
#include "rules/feeding.h"
#include "rules/menus.h"
#include "rules/move_amoeba.h"
#include "rules/movement.h"
#include "rules/reason_words.h"

namespace plasmos {

namespace {

constexpr int RestPause = 15;
constexpr int MovePause = 5;

void PayForMove(int clan, bool pays) {
    if (pays) {
        PayBP(clan, 1);
    }
}

}  // namespace

// cppcheck-suppress uninitMemberVar  // a list of squares is filled as far as its count
MovePass::MovePass(int clan, int amoeba, bool second)
    : clan_(clan), amoeba_(amoeba), second_(second), origin_(piece().Square), canEatHere_(CanEat(origin_, clan)) {}

bool MovePass::Run() {
    const bool hungryHere = second_ || !canEatHere_;
    driftSquare_ = FindDriftSquare();
    if (!hungryHere || (game.BP[clan_] <= 0 && !HasGene(clan_, "str"))) {
        DriftAlong(hungryHere);
    } else {
        MoveActively();
    }
    Finish();
    return rolledDirection_;
}

int MovePass::FindDriftSquare() {
    if (game.Drift != WhereItWants) {
        return MoveDestination(origin_);
    }
    if (canEatHere_) {
        return origin_;
    }
    const SquareList reachable = Neighbours(origin_, clan_);
    for (int i = 1; i <= reachable.Count(); ++i) {
        if (CanEat(reachable[i], clan_)) {
            feeding_.Add(reachable[i]);
        }
    }
    return feeding_.Count() == 0 ? origin_ : feeding_[RollDie(feeding_.Count())];
}

void MovePass::DriftAlong(bool hungryHere) {
    if (hungryHere) {
        Because(Why(), ", but its clan has no BP to move elsewhere: ", Drift(), ".");
        Feel(driftSquare_, piece().Name, " moves resignedly into ", driftSquare_);
    } else {
        found_ = true;
        Because(ThePiece{clan_, amoeba_}, " can eat in square ", origin_, ", so it pays for no move: ", Drift(), ".");
        Feel(driftSquare_, piece().Name, " moves happily into ", driftSquare_);
    }
}

bool MovePass::HasPreyIn(int square) const {
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        if (IsPrey(square, clan_, clan)) {
            return true;
        }
    }
    return false;
}

void MovePass::FindCandidates() {
    const bool fighter = IsFighter(clan_);
    const bool hunting = Has("par") && game.ParasiteHunt;
    const SquareList reachable = Neighbours(origin_, clan_);
    for (int i = 1; i <= reachable.Count(); ++i) {
        const int square = reachable[i];
        if (CanEat(square, clan_)) {
            candidates_.Add(square);
        } else if ((fighter && HasPreyIn(square)) || hunting) {
            candidates_.Add(square);
            if (ReasonsAreWanted()) {
                prey_.Add(square);
            }
        }
    }
}

void MovePass::MoveActively() {
    FindCandidates();
    if (candidates_.Count() > 0 && Has("mv2")) {
        const bool pays = !Has("str") && !second_;
        Because(Seen(), ", and with Movement 2 it goes there without a direction die, ", Price{clan_, pays}, ".");
        PayForMove(clan_, pays);
        found_ = true;
        const int destination = candidates_[RollDie(candidates_.Count())];
        Because("Where to go: ", TheDraw{candidates_, destination}, ".");
        Feel(destination, piece().Name, " smugly moves into ", destination);
    } else if (candidates_.Count() == 0 && Has("mv2") && HasSpeed(clan_)) {
        LookAround();
    } else if (!MaySteer()) {
        Feel(driftSquare_, piece().Name, " moves disconsolately into ", driftSquare_);
    } else {
        PayForMove(clan_, PaysForDie());
        Steer();
    }
}

void MovePass::LookAround() {
    Because(Seen(), ".");
    int destination = 0;
    for (int direction = 1; direction <= 4 && destination == 0; ++direction) {
        const int neighbour = NeighbourByDie(origin_, direction);
        if (HasFoodNextDoor(neighbour, clan_)) {
            found_ = true;
            destination = neighbour;
        }
    }
    if (destination == 0) {
        const int roll = RollDie(4);
        destination = NeighbourByDie(origin_, roll);
        Because("With Movement 2 and ", SpeedOf{clan_},
                " it looks a square further and sees no meal there either: the ", "die threw ", TheThrow{roll, origin_},
                ".");
    } else {
        Because("With Movement 2 and ", SpeedOf{clan_}, " it looks a square further, right, down, left, up: from ",
                destination, " a meal is next door.");
    }
    Feel(destination, piece().Name, " moves pensively into ", destination);
}

void MovePass::Finish() {
    if (destination_ != origin_) {
        if (SomebodyListens()) {
            SayText(line_);
        }
    } else {
        Say(piece().Name, " remains ", found_ ? "contentedly" : "dejectedly", " in ", destination_);
        TakePause(RestPause);
    }
    MoveAmoeba(clan_, amoeba_, destination_);
    TakePause(MovePause);
}

bool HasFoodNextDoor(int square, int clan) {
    for (int direction = 1; direction <= 4; ++direction) {
        if (CanEat(NeighbourByDie(square, direction), clan)) {
            return true;
        }
    }
    return false;
}

void ComputerMoveAmoeba(int clan, int amoeba) {
    const Piece& piece = game.Amoeba[amoeba][clan];
    if (HasGene(clan, "hol") && CanEat(piece.Square, clan)) {
        Because(ThePiece{clan, amoeba}, " can eat in square ", piece.Square, ", and with Holding it stays there.");
        Say(piece.Name, " clings to the bottom in ", piece.Square);
        TakePause(RestPause);
        return;
    }
    const bool rolled = MovePass(clan, amoeba, false).Run();
    if (rolled && HasSpeed(clan) && !CanEat(piece.Square, clan)) {
        MovePass(clan, amoeba, true).Run();
    }
}

}  // namespace plasmos
