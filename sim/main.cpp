// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/process.h"
#include "sim/run.h"

namespace {

extern "C" void HandleEnd(int /*signal*/) {
    plasmos::InterruptSimulator();
}

}  // namespace

int main(int argc, char** argv) {
    plasmos::PrepareProcess();
    plasmos::CatchEndSignals(HandleEnd);
    return plasmos::RunSimulator(argc, argv);
}
