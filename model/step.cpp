// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/step.h"

#include "model/consistency.h"
#include "model/services.h"

namespace plasmos {

std::string_view StepName(Step step) {
    constexpr std::string_view names[] = {"NewGame",  "Move",   "Feed",   "Environment", "Adapt",
                                          "BuyGenes", "Divide", "Deaths", "Attack",      "Score"};
    return names[static_cast<std::size_t>(step)];
}

void PrepareStep(Step step, int clan, int amoeba) {
    TakeSwitches(TakenAt::Step);
    if (services.Listener != nullptr) {
        services.ReasonsWanted = services.Listener->WantsReasons();
        services.Listener->OnBegin(step, clan, amoeba);
    }
}

void EndStep(Step step, int clan, int amoeba) {
    if constexpr (EveryStepIsChecked) {
        if (const auto fault = CheckConsistency(step == Step::Score); !fault.empty()) {
            throw RuntimeError(51, Concat("Internal error: after ", StepName(step), ": ", fault));
        }
    }
    if (services.Listener != nullptr) {
        services.Listener->OnEnd(step, clan, amoeba);
    }
}

}  // namespace plasmos
