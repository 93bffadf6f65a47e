// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/game_fixture.h"
#include "tests/ui/support/scene.h"

namespace plasmos::testing {

/// A scene with a position on it: clan 3 is the person's and acts with its first piece, on square 7
/// of 5 x 5; the UV level is 10 and nothing drifts.
class PositionScene : public Scene {
public:
    explicit PositionScene(int clans = 4) {
        NewPosition(clans);
        Person(3);
        constexpr std::int32_t colours[] = {0, 0xFF0000, 0xFF00FF, 0x00FFFF, 0x0000FF, 0x0BB000, 0x0080FF};
        for (int clan = 1; clan <= clans; ++clan) {
            game.Players[clan].Colour = colours[clan];
        }
        game.UVLevel = 10;
        game.Drift = 0;
        game.EnvDeck[1] = {10, 0};
        game.CurPlayer = 3;
        game.CurAmoeba = 1;
        Put(3, 1, 7);
    }
};

/// Where a piece is.
inline int SquareOf(int clan, int amoeba) {
    return game.Amoeba[amoeba][clan].Square;
}

inline int DamageOf(int clan, int amoeba) {
    return game.Amoeba[amoeba][clan].Damage;
}

}  // namespace plasmos::testing
