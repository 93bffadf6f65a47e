// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/game_state.h"
#include "model/happening.h"

namespace plasmos {

/// A clan gets bio-points.
inline void GainBP(int clan, int points) {
    game.BP[clan] += points;
    Happened({.What = Happening::Kind::GainsBP, .Clan = clan, .Number = points});
}

/// A clan pays bio-points. Whether it has so many is looked at before.
inline void PayBP(int clan, int points) {
    game.BP[clan] -= points;
    Happened({.What = Happening::Kind::PaysBP, .Clan = clan, .Number = points});
}

}  // namespace plasmos
