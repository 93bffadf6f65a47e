// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#setting-up

namespace plasmos {

/// Prepares one game: seeds the dice from the replay number, deals environment cards and
/// personalities, names clans and pieces, lays the starting food and places two pieces of each clan.
void NewGame();

/// Fills the eleven environment cards: UV values 6 to 14 in order, each with a drift rolled by die.
void BuildEnvDeck();

/// Shuffles UV values and drift directions independently of each other; card 0's UV value is shown.
void ShuffleEnvDeck();

/// Asks the person for the number of clans; -1 when the dialog was closed.
int AskPlayerCount();

/// Colours, names, order of play, starting scores and the two starting pieces of every clan.
void PlaceStartPieces();

}  // namespace plasmos
