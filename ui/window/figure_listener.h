// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/game_state.h"
#include "model/services.h"
#include "record/input_list.h"
#include "record/turn_figures.h"

namespace plasmos {

/// Has the figures of the current game kept while it lives; whoever listened before goes on to hear everything.
class FigureListener : public PassingObserver {
public:
    explicit FigureListener(FigureKeeper& keeper)
        : PassingObserver(services.Listener), keeper_(keeper), before_(services.Listener) {
        services.Listener = this;
    }
    ~FigureListener() override { services.Listener = before_; }

    void OnEnd(Step step, int clan, int amoeba) override {
        PassingObserver::OnEnd(step, clan, amoeba);
        keeper_.Note(step, game);
    }

private:
    FigureKeeper& keeper_;
    Observer* before_;
};

}  // namespace plasmos
