// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "model/step.h"
#include "rules/computer_clan.h"
#include "tests/support/game_fixture.h"
#include "tests/support/reason_ear.h"

namespace plasmos::testing {

/// Four clans of the computer on an empty board of 5 by 5, everything drifts to the right; A1 stands in square 13.
/// A decision, and the sentences that tell why.
struct ReasonRow {
    std::string_view Name;
    std::function<void()> Set;
    std::vector<int> Rolls;
    std::vector<std::string> Told;
};

inline void PrintTo(const ReasonRow& row, std::ostream* out) {
    *out << row.Name;
}

class Reasons : public GameRows<ReasonRow> {
protected:
    Reasons() {
        NewPosition(4);
        Put(1, 1, 13);
        game.Drift = 1;
        game.BP[1] = 3;
    }

    template <class Decision>
    static void Expect(const ReasonRow& row, Step step, Decision&& decide) {
        row.Set();
        ReasonEar ear;
        Script script(row.Rolls);
        RunStep(step, 1, 1, decide);
        EXPECT_EQ(ear.Told, row.Told);
    }
};

/// Clan 1 can eat in these squares.
inline void Meals(std::initializer_list<int> squares) {
    for (const int square : squares) {
        Feed(square, {0, 1, 1, 1});
    }
}

}  // namespace plasmos::testing
