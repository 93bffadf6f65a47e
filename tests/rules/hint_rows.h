// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {

/// Clan 1 of three, a person's with 9 BP; its amoeba A1 stands in square 11 of 5 by 5, on the left edge, and
/// everything drifts to the right. Clan 2 is a computer's. The hints of all questions that come, in order.
struct HintRow {
    std::string_view Name;
    std::vector<std::string_view> Genes;
    std::vector<int> Rolls;
    std::function<void()> Rule;
    std::vector<Line> Answers;
    std::vector<std::string> Hints;
};

inline void PrintTo(const HintRow& row, std::ostream* out) {
    *out << row.Name;
}

class Hints : public GameRows<HintRow> {
protected:
    Hints() {
        NewPosition(3);
        Person(1);
        Put(1, 1, 11);
        game.Drift = 1;
        game.BP[1] = 9;
        game.UVLevel = 10;
        game.Turn = 1;
        game.EnvDeck[1] = {2, 1};
        game.CurPlayer = 1;
        game.CurAmoeba = 1;
        for (const auto code : GetParam().Genes) {
            Give(1, code);
        }
    }
    void Play(ScriptedBoard& board) {
        for (const Line& answer : GetParam().Answers) {
            board.Then(answer);
        }
        Script rolls(GetParam().Rolls);
        rolls.MayBeLeft();
        GetParam().Rule();
    }
};

}  // namespace plasmos::testing
