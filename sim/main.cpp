// SPDX-License-Identifier: GPL-3.0-or-later
#include <csignal>

#include "sim/run.h"

namespace {

extern "C" void HandleInterrupt(int /*signal*/) {
    plasmos::InterruptSimulator();
}

}  // namespace

int main(int argc, char** argv) {
    std::signal(SIGINT, HandleInterrupt);
    std::signal(SIGTERM, HandleInterrupt);
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif
    return plasmos::RunSimulator(argc, argv);
}
