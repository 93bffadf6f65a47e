// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/progress_bar.h"

#include <cinttypes>
#include <cstdio>
#include <string>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace plasmos {

namespace {

bool IsTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(fileno(stderr)) != 0;
#endif
}

}  // namespace

ProgressBar::ProgressBar(ProgressMode mode, std::int64_t games)
    : games_(games), shown_(mode == ProgressMode::Always || (mode == ProgressMode::Auto && IsTerminal())) {}

void ProgressBar::Advance() {
    ++done_;
    if (shown_ && (SecondsSince(last_) > 0.1 || done_ == games_)) {
        Draw();
    }
}

void ProgressBar::Clear() const {
    if (shown_) {
        std::fprintf(stderr, "\r%*s\r", Width + 40, "");
    }
}

void ProgressBar::Draw() {
    const auto filled = static_cast<int>(done_ * Width / games_);
    std::fprintf(stderr, "\r[%s%s] %" PRId64 "/%" PRId64, std::string(static_cast<std::size_t>(filled), '#').c_str(),
                 std::string(static_cast<std::size_t>(Width - filled), '.').c_str(), done_, games_);
    std::fflush(stderr);
    last_ = Clock::now();
}

}  // namespace plasmos
