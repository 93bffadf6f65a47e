// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/game_state.h"
#include "model/presentation.h"

namespace plasmos {

/// A clan gets bio-points, and its BP are shown.
inline void GainBP(int clan, int points) {
    game.BP[clan] += points;
    Show(&Presentation::ShowBP, clan);
}

/// A clan pays bio-points, and its BP are shown. Whether it has so many is looked at before.
inline void PayBP(int clan, int points) {
    GainBP(clan, -points);
}

}  // namespace plasmos
