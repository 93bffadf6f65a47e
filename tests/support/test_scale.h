// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdlib>

namespace plasmos::testing {

/// How many games a long test plays: PLASMOS_TEST_SCALE per cent of the number given, at least one.
/// Slow builds set it below 100, a long run above.
inline int Scaled(int games) {
    const char* text = std::getenv("PLASMOS_TEST_SCALE");
    const int percent = text == nullptr ? 100 : std::atoi(text);
    return percent <= 0 ? games : std::max(1, static_cast<int>(static_cast<long long>(games) * percent / 100));
}

}  // namespace plasmos::testing
