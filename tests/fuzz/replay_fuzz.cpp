// SPDX-License-Identifier: GPL-3.0-or-later
// The replay text: a text that counts as a number is shown as one that reads back to the same single.
#include <cmath>

#include "model/dice.h"
#include "tests/fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace plasmos;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    float number = 0;
    if (!ParseReplayNumber(text, number)) {
        return 0;
    }
    fuzz::Require(std::isfinite(number), "a replay number is finite");
    float again = -1;
    fuzz::Require(ParseReplayNumber(ReplayText(number), again), "what is shown is a number");
    fuzz::Require(again == number, "what is shown reads back to the same single");
    SeedRandom(number);
    fuzz::Require(RollDie(6) >= 1, "the dice roll");
    return 0;
}
