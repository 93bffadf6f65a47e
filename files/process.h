// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace plasmos {

/// The first thing every program does. A reader that has gone and a file that may not grow are errors of
/// the write and no longer the program's death. Standard streams that were closed are taken, so that no
/// file gets their numbers; what is read from or written to one fails.
/// HOME is the account's home folder where nobody has set it.
void PrepareProcess();

/// Calls a function, from inside a signal, when the user or the session asks the program to end: SIGINT,
/// SIGTERM, and SIGHUP unless whoever started the program had it ignored. Does nothing where the
/// platform has no such signals.
void CatchEndSignals(void (*onSignal)(int));
/// Those signals end the program again.
void ReleaseEndSignals();

}  // namespace plasmos
