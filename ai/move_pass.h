// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#movement-of-a-computer-clan

#include <string>

#include "ai/move_words.h"
#include "model/genes.h"
#include "model/narration.h"
#include "rules/movement.h"

namespace plasmos {

/// One pass of a computer clan's decision about a move: where the amoeba goes, and in which mood.
class MovePass {
public:
    MovePass(int clan, int amoeba, bool second);

    /// Works out the destination, moves there, and tells whether a direction die was rolled.
    bool Run();

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

    // Where it may go: ai/computer_move.cpp.
    int FindDriftSquare();
    void DriftAlong(bool hungryHere);
    bool HasPreyIn(int square) const;
    void FindCandidates();
    void MoveActively();
    void LookAround();
    void Finish();

    // Whether it throws for a direction, and where the dice lead: ai/steering.cpp.
    bool MaySteer() const;
    bool IsWorthADie() const;
    void Steer();
    void SteerAgain();
    /// A 6: any candidate, else any neighbour; from square 24 it is square 19 where that is a real one.
    int FindFreely();
    void TellThrow(int roll, int target) const;
    /// Whether a throw costs a BP.
    bool PaysForDie() const { return !Has("str") && !(HasSpeed(clan_) && second_); }

    // What the reasons are made of.
    Plight Why() const { return {clan_, amoeba_, origin_, second_}; }
    Outlook Seen() const { return {Why(), candidates_, prey_}; }
    Drifting Drift() const { return {origin_, driftSquare_, canEatHere_, feeding_}; }
    Price DieCosts() const { return {clan_, PaysForDie()}; }

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
    SquareList prey_;     ///< candidates without a meal; kept where reasons are wanted
    SquareList feeding_;  ///< what a current that lets it choose was rolled over
    std::string line_;
};

}  // namespace plasmos
