// SPDX-License-Identifier: GPL-3.0-or-later
#include "ai/move_pass.h"
#include "model/dice.h"
#include "model/reasons.h"
#include "rules/movement.h"
#include "rules/reason_words.h"

namespace plasmos {

namespace {

/// The amoeba in this square jumps to the next one when a 6 leaves it without a candidate.
constexpr int JumpFrom = 24;
constexpr int JumpTo = 19;

}  // namespace

bool MovePass::MaySteer() const {
    if (HasSpeed(clan_)) {
        if (second_) {
            Because(Seen(), ", and it throws for a direction again, ", DieCosts(), ".");
        } else {
            Because(Seen(), ", and with ", SpeedOf{clan_}, " it always throws for a direction, ", DieCosts(), ".");
        }
        return true;
    }
    if (candidates_.Count() > 1) {
        Because(Seen(), ", and for more than one it throws for a direction, ", DieCosts(), ".");
        return true;
    }
    if (candidates_.Count() == 1 && Has("mv1")) {
        return IsWorthADie();
    }
    Because(Seen(),
            Where{candidates_.Count() == 0, ", so it pays for no move: ",
                  ", but for that alone it pays only with Movement 1, Speed or Persistence: "},
            Drift(), ".");
    return false;
}

/// With Movement 1, for a single candidate.
bool MovePass::IsWorthADie() const {
    if (Has("str") || piece().Damage == 1) {
        Because(Seen(),
                Where{Has("str"), ", and with Movement 1 it throws for a direction, ",
                      ", and with 1 damage and Movement 1 it throws for a direction, "},
                DieCosts(), ".");
        return true;
    }
    const int coin = RollDie(2);
    if (coin == 2) {
        Because(Seen(), ", and for that alone a coin decides: it threw 2, so it throws for a direction, ", DieCosts(),
                ".");
    } else {
        Because(Seen(), ", and for that alone a coin decides: it threw ", coin, ", so it pays for no move: ", Drift(),
                ".");
    }
    return coin == 2;
}

void MovePass::Steer() {
    if (candidates_.Count() == 0 && second_) {
        const int roll = RollDie(5);
        const int destination = NeighbourByDie(origin_, roll);
        Because("With nothing to go for, a die of 5 decides: it threw ", TheThrow{roll, origin_}, ".");
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
        Because("The die threw ", TheThrow{roll, origin_}, ", and with Movement 1 it is thrown again.");
        SteerAgain();
        return;
    }
    TellThrow(roll, target);
    if (wanted) {
        found_ = true;
        Feel(target, piece().Name, " moves joyously into ", target);
    } else {
        Feel(target, piece().Name, " moves reluctantly into ", target);
    }
}

void MovePass::SteerAgain() {
    const int roll = RollDie(6);
    if (roll == 6) {
        const int destination = FindFreely();
        Feel(destination, piece().Name, " sashays nonchalantly into square ", destination, ".");
        return;
    }
    const int target = NeighbourByDie(origin_, roll);
    TellThrow(roll, target);
    if (candidates_.Has(target)) {
        found_ = true;
        Feel(target, "Amoeba ", amoeba_, " relievedly moves to ", target);
    } else {
        Feel(target, piece().Name, " sadly moves into ", target);
    }
}

int MovePass::FindFreely() {
    found_ = true;
    if (candidates_.Count() > 0) {
        const int chosen = candidates_[RollDie(candidates_.Count())];
        Because("The die threw 6, which lets it choose: ", TheDraw{candidates_, chosen}, ".");
        return chosen;
    }
    if (origin_ == JumpFrom && IsValidSquare(JumpTo)) {
        Because("The die threw 6, and with nothing to go for, an amoeba in square ", JumpFrom, " jumps to ", JumpTo,
                ".");
        return JumpTo;
    }
    const int roll = RollDie(4);
    Because("The die threw 6, and with nothing to go for, a die of 4 decides: it threw ", TheThrow{roll, origin_}, ".");
    return NeighbourByDie(origin_, roll);
}

void MovePass::TellThrow(int roll, int target) const {
    Because("The die threw ", TheThrow{roll, origin_},
            Where{candidates_.Count() > 0 && target != origin_ && !candidates_.Has(target),
                  ", where it did not want to go"},
            ".");
}

}  // namespace plasmos
