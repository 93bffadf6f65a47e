// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#movement-of-a-computer-clan

#include "model/reasons.h"
#include "rules/directions.h"

namespace plasmos {

/// Pieces of the reasons for a computer clan's move; see model/reasons.h.

/// Why an amoeba thinks of a move: "A1 cannot eat in square 13"; in its second try it is Speed or its upgrade that
/// lets it.
struct Plight {
    int Clan, Amoeba;
    int Square;
    bool Second;
};
/// The plight, and what there is within reach: "...; of the squares 8, 12, 14 and 18 it can eat in 12". Prey: those
/// candidates where it cannot eat but would find another clan's amoeba.
struct Outlook {
    Plight Why;
    const SquareList& Candidates;
    const SquareList& Prey;
};
/// What a try costs: "for 1 BP", "free with Streamlining", "free this time".
struct Price {
    int Clan;
    bool Pays;
};
/// Speed, or the upgrade that does the same for the clan.
struct SpeedOf {
    int Clan;
};
/// Where the current takes an amoeba. Feeding: the squares it chose from where the current lets it choose.
struct Drifting {
    int From, To;
    bool CanEatHere;
    const SquareList& Feeding;
};

void AppendPiece(std::string& text, const Plight& plight);
void AppendPiece(std::string& text, const Outlook& outlook);
void AppendPiece(std::string& text, const Price& price);
void AppendPiece(std::string& text, SpeedOf speed);
void AppendPiece(std::string& text, const Drifting& drifting);

}  // namespace plasmos
