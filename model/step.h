// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/game_state.h"
#include "model/observer.h"
#include "model/services.h"

namespace plasmos {

/// Whether this build looks through the whole state after every step: debug builds do.
inline constexpr bool EveryStepIsChecked =
#ifdef NDEBUG
    false;
#else
    true;
#endif

/// Whether a step is a clan's decision.
constexpr bool IsDecision(Step step) {
    constexpr auto bit = [](Step one) { return 1U << static_cast<unsigned>(one); };
    constexpr unsigned decisions = bit(Step::Move) | bit(Step::Feed) | bit(Step::Adapt) | bit(Step::BuyGenes) |
                                   bit(Step::Divide) | bit(Step::Attack);
    return (decisions & bit(step)) != 0;
}

/// What there is to do before a step that somebody hears or a switch precedes; use BeginStep.
void PrepareStep(Step step, int clan, int amoeba);

/// Takes over what has been switched, tells a listener that a step begins, and counts the decisions.
inline void BeginStep(Step step, int clan, int amoeba) {
    if (services.Listener != nullptr || !services.Switches.Empty()) [[unlikely]] {
        PrepareStep(step, clan, amoeba);
    }
    game.Decisions += IsDecision(step) ? 1 : 0;
}

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
