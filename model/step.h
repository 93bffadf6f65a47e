// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/game_state.h"
#include "model/observer.h"

namespace plasmos {

/// Whether this build looks through the whole state after every step: debug builds do.
inline constexpr bool EveryStepIsChecked =
#ifdef NDEBUG
    false;
#else
    true;
#endif

/// Tells a listener that a step begins, and counts the decisions.
void BeginStep(Step step, int clan, int amoeba);

/// Tells a listener that a step is over. Where EveryStepIsChecked, a state that does not hold together
/// raises error 51 here.
void EndStep(Step step, int clan, int amoeba);

/// Runs one step of the game. Clan and amoeba are 0 where the step has none. A step that is left by
/// an exception has no end.
template <class Body>
void RunStep(Step step, int clan, int amoeba, Body&& body) {
    BeginStep(step, clan, amoeba);
    body();
    EndStep(step, clan, amoeba);
}

}  // namespace plasmos
