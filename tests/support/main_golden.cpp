// SPDX-License-Identifier: GPL-3.0-or-later
// Records the golden games anew; packaging/golden.sh calls it.
#include <fstream>
#include <iostream>

#include "tests/support/golden.h"

int main() {
    using namespace plasmos::testing;
    for (const GoldenGame& golden : GoldenGames()) {
        std::ofstream file(GoldenFile(golden.Name));
        for (const auto& step : TellSteps(golden)) {
            file << step << '\n';
        }
        if (!file.flush()) {
            std::cerr << GoldenFile(golden.Name) << " cannot be written\n";
            return 2;
        }
        std::cout << GoldenFile(golden.Name) << '\n';
    }
    return 0;
}
