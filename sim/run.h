// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace plasmos {

/// The whole simulator: reads the command line, plays, writes. The answer is the exit code: 0, 1 after
/// a finding or a run-time error, 2 after bad input or an output that cannot be written, 130 after an
/// interrupt, be it while an output waits for its reader.
int RunSimulator(int argc, const char* const* argv);

/// Asks a run to end after the games in hand; may be called from a signal handler.
void InterruptSimulator();

}  // namespace plasmos
