// SPDX-License-Identifier: GPL-3.0-or-later
#include "ai/computer_move.h"
#include "rules/computer_clan.h"

#include "ai/prey.h"
#include "model/bio_points.h"
#include "model/dice.h"
#include "model/genes.h"
#include "model/message_line.h"
#include "model/narration.h"
#include "rules/directions.h"
#include "rules/feeding.h"
#include "rules/menus.h"
#include "rules/move_amoeba.h"
#include "rules/movement.h"

namespace plasmos {

namespace {

constexpr int RestPause = 15;
constexpr int MovePause = 5;
/// The amoeba in this square jumps to the next one when a 6 leaves it without a candidate.
constexpr int JumpFrom = 24;
constexpr int JumpTo = 19;

/// One pass of the decision: where the amoeba goes, and in which mood.
class MovePass {
public:
    // cppcheck-suppress uninitMemberVar  // a list of squares is filled as far as its count
    MovePass(int clan, int amoeba, bool second)
        : clan_(clan), amoeba_(amoeba), second_(second), origin_(piece().Square), canEatHere_(CanEat(origin_, clan)) {}

    /// Works out the destination, moves there, and tells whether a direction die was rolled.
    bool Run() {
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

private:
    const Piece& piece() const { return game.Amoeba[amoeba_][clan_]; }
    bool Has(GeneCode gene) const { return HasGene(clan_, gene); }

    template <class... Pieces>
    void Feel(int destination, const Pieces&... line) {
        destination_ = destination;
        if (SomebodyListens()) {
            line_ = Concat(line...);
        }
    }

    int FindDriftSquare() const {
        if (game.Drift != WhereItWants) {
            return MoveDestination(origin_);
        }
        if (canEatHere_) {
            return origin_;
        }
        const SquareList reachable = Neighbours(origin_, clan_);
        SquareList feeding;
        for (int i = 1; i <= reachable.Count(); ++i) {
            if (CanEat(reachable[i], clan_)) {
                feeding.Add(reachable[i]);
            }
        }
        // cppcheck-suppress uninitvar  // filled as far as its count
        return feeding.Count() == 0 ? origin_ : feeding[RollDie(feeding.Count())];
    }

    void DriftAlong(bool hungryHere) {
        if (hungryHere) {
            Feel(driftSquare_, piece().Name, " moves resignedly into ", driftSquare_);
        } else {
            found_ = true;
            Feel(driftSquare_, piece().Name, " moves happily into ", driftSquare_);
        }
    }

    bool HasPreyIn(int square) const {
        for (int clan = 1; clan <= game.NumPlayers; ++clan) {
            if (IsPrey(square, clan_, clan)) {
                return true;
            }
        }
        return false;
    }

    void FindCandidates() {
        const bool fighter = IsFighter(clan_);
        const bool hunting = Has("par") && game.ParasiteHunt;
        const SquareList reachable = Neighbours(origin_, clan_);
        for (int i = 1; i <= reachable.Count(); ++i) {
            const int square = reachable[i];
            if (CanEat(square, clan_) || (fighter && HasPreyIn(square)) || hunting) {
                candidates_.Add(square);
            }
        }
    }

    void MoveActively() {
        FindCandidates();
        if (candidates_.Count() > 0 && Has("mv2")) {
            if (!Has("str") && !second_) {
                PayBP(clan_, 1);
            }
            found_ = true;
            const int destination = candidates_[RollDie(candidates_.Count())];
            Feel(destination, piece().Name, " smugly moves into ", destination);
        } else if (candidates_.Count() == 0 && Has("mv2") && HasSpeed(clan_)) {
            LookAround();
        } else if (!MaySteer()) {
            Feel(driftSquare_, piece().Name, " moves disconsolately into ", driftSquare_);
        } else {
            if (!Has("str") && !(HasSpeed(clan_) && second_)) {
                PayBP(clan_, 1);
            }
            Steer();
        }
    }

    void LookAround() {
        int destination = 0;
        for (int direction = 1; direction <= 4 && destination == 0; ++direction) {
            const int neighbour = NeighbourByDie(origin_, direction);
            if (HasFoodNextDoor(neighbour, clan_)) {
                found_ = true;
                destination = neighbour;
            }
        }
        if (destination == 0) {
            destination = NeighbourByDie(origin_, RollDie(4));
        }
        Feel(destination, piece().Name, " moves pensively into ", destination);
    }

    bool MaySteer() const {
        if (HasSpeed(clan_) || candidates_.Count() > 1) {
            return true;
        }
        return candidates_.Count() == 1 && Has("mv1") && (Has("str") || piece().Damage == 1 || RollDie(2) == 2);
    }

    void Steer() {
        if (candidates_.Count() == 0 && second_) {
            const int destination = NeighbourByDie(origin_, RollDie(5));
            Feel(destination, piece().Name, " just doesn't care anymore.");
            return;
        }
        rolledDirection_ = true;
        const int roll = RollDie(6);
        if (roll == 6) {
            const int destination = FindFreely();
            Feel(destination, piece().Name, " moves triumphantly into square ", destination);
            return;
        }
        const int target = NeighbourByDie(origin_, roll);
        const bool wanted = candidates_.Has(target);
        if (Has("mv1") && !wanted) {
            SteerAgain();
        } else if (wanted) {
            found_ = true;
            Feel(target, piece().Name, " moves joyously into ", target);
        } else {
            Feel(target, piece().Name, " moves reluctantly into ", target);
        }
    }

    void SteerAgain() {
        const int roll = RollDie(6);
        if (roll == 6) {
            const int destination = FindFreely();
            Feel(destination, piece().Name, " sashays nonchalantly into square ", destination, ".");
            return;
        }
        const int target = NeighbourByDie(origin_, roll);
        if (candidates_.Has(target)) {
            found_ = true;
            Feel(target, "Amoeba ", amoeba_, " relievedly moves to ", target);
        } else {
            Feel(target, piece().Name, " sadly moves into ", target);
        }
    }

    /// A 6: any candidate, else any neighbour; from square 24 it is square 19 where that is a real one.
    int FindFreely() {
        found_ = true;
        if (candidates_.Count() > 0) {
            return candidates_[RollDie(candidates_.Count())];
        }
        if (origin_ == JumpFrom && IsValidSquare(JumpTo)) {
            return JumpTo;
        }
        return NeighbourByDie(origin_, RollDie(4));
    }

    void Finish() {
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

    int clan_;
    int amoeba_;
    bool second_;
    int origin_;
    bool canEatHere_;
    int driftSquare_ = 0;
    int destination_ = 0;
    bool found_ = false;
    bool rolledDirection_ = false;
    SquareList candidates_;
    std::string line_;
};

}  // namespace

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
