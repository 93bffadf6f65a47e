// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>

#include "sim/options.h"

namespace plasmos {

using Clock = std::chrono::steady_clock;

inline double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// A bar on standard error, where that is a terminal or somebody wants it all the same.
class ProgressBar {
public:
    ProgressBar(ProgressMode mode, std::int64_t games);

    /// Another game is done.
    void Advance();
    void Clear() const;

private:
    static constexpr int Width = 40;

    void Draw();

    std::int64_t games_;
    bool shown_;
    std::int64_t done_ = 0;
    Clock::time_point last_ = Clock::now();
};

}  // namespace plasmos
