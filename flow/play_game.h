// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#the-turn

namespace plasmos {

/// The game driver, called when the person presses Go: plays one game to its winner. A run-time error
/// is recorded and told in a message box, and ends this game only. Throws ProgramEnd when the person
/// closes the window in the middle of it.
void PlayGame();

/// Plays one game of computer clans only, the way PlayGame does; nobody is asked anything.
/// The number of clans is rolled unless RequestedClans says it.
void PlayUnattended();

/// Plays one game with whom the setup says, asking nobody for anything that it says already: the way PlayGame does.
void PlayAsSetUp();

/// One game, from the setup to the winner; errors are the caller's.
void PlayOneGame();

/// One turn: its six phases in order.
void PlayRound();

/// Tells who has won: the clan at the head of the order of play.
void AnnounceWinner();

}  // namespace plasmos
