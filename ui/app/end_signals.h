// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

namespace plasmos {

/// While it lives, SIGTERM, SIGINT and SIGHUP (unless it was ignored) call a function from the event loop
/// instead of killing the program. Does nothing where the platform has no such signals.
class EndSignals {
public:
    explicit EndSignals(std::function<void()> onEnd);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    struct Pipe;
    std::unique_ptr<Pipe> pipe_;
};

}  // namespace plasmos
