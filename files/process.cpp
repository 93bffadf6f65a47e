// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/process.h"

#include <csignal>
#include <cstdlib>
#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

#include "files/platform.h"

namespace plasmos {

namespace {

#ifdef _WIN32
constexpr int EndSignals[] = {SIGINT, SIGTERM};
#else
constexpr int EndSignals[] = {SIGINT, SIGTERM, SIGHUP};
#endif

bool StaysIgnored(int signal) {
#ifdef _WIN32
    static_cast<void>(signal);
    return false;
#else
    struct sigaction now {};
    return signal == SIGHUP && ::sigaction(signal, nullptr, &now) == 0 && now.sa_handler == SIG_IGN;
#endif
}

void SetEndSignals(void (*action)(int)) {
    for (const int signal : EndSignals) {
        if (!StaysIgnored(signal)) {
            std::signal(signal, action);
        }
    }
}

}  // namespace

void PrepareProcess() {
#ifndef _WIN32
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    // Opened the wrong way round: what is written there is known not to arrive.
    for (int stream = 0; stream <= 2; ++stream) {
        if (::fcntl(stream, F_GETFD) < 0) {
            const int opened = ::open("/dev/null", stream == 0 ? O_WRONLY : O_RDONLY);
            static_cast<void>(opened);
        }
    }
    ::setenv("HOME", HomeFolder().c_str(), 1);
#endif
}

void CatchEndSignals(void (*onSignal)(int)) {
    SetEndSignals(onSignal);
}

void ReleaseEndSignals() {
    SetEndSignals(SIG_DFL);
}

}  // namespace plasmos
