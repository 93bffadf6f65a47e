// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace plasmos {

/// The game's random-number generator: PCG32 (XSH-RR), 64 bits of state, 32-bit outputs.
struct Pcg32 {
    std::uint64_t State = 0;
    std::uint64_t Increment = 1;

    constexpr void Seed(std::uint64_t state, std::uint64_t stream) {
        State = 0;
        Increment = (stream << 1U) | 1U;
        Next();
        State += state;
        Next();
    }

    constexpr std::uint32_t Next() {
        const std::uint64_t old = State;
        State = old * 6364136223846793005ULL + Increment;
        const auto shifted = static_cast<std::uint32_t>(((old >> 18U) ^ old) >> 27U);
        const auto turn = static_cast<std::uint32_t>(old >> 59U);
        return (shifted >> turn) | (shifted << ((32U - turn) & 31U));
    }
};

}  // namespace plasmos
