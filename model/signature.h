// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "model/game_state.h"

namespace plasmos {

/// What goes into a game's signature beside its rolls.
enum class SignedEvent : unsigned { Roll = 1, Move, Meal, Purchase, Attack, Score, Death, Birth };

/// Folds a number into a 64-bit hash.
constexpr std::uint64_t FoldHash(std::uint64_t hash, std::uint64_t value) {
    hash = (hash ^ value) * 0x9E3779B97F4A7C15ULL;
    return hash ^ (hash >> 29U);
}

/// Folds an event of the game into its signature.
inline void Sign(SignedEvent event, int a, int b, int c = 0) {
    const auto part = [](int number) {
        return static_cast<std::uint64_t>(static_cast<std::uint32_t>(number) & 0xFFFFFU);
    };
    game.Signature =
        FoldHash(game.Signature, static_cast<std::uint64_t>(event) << 60U | part(a) << 40U | part(b) << 20U | part(c));
}

}  // namespace plasmos
