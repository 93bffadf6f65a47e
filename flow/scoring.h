// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#scoring

namespace plasmos {

/// The last phase of a turn: scoring, re-ordering, victory test, food history.
void ScorePhase();

/// Copies the food on the board into the history of this turn.
void RecordFoodHistory();

/// Points for amoebas and for genes, by the number of clans in play.
void FillScoreTables();

}  // namespace plasmos
