// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <functional>

#include "ai/fight.h"
#include "rules/feeding.h"
#include "rules/menus.h"
#include "rules/move_amoeba.h"
#include "tests/support/game_fixture.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

/// Something that amoeba A1 of clan 1 does in square 13, and that is told without a question after it.
struct StatementRow {
    std::string_view Name;
    std::function<void()> Happens;
    std::vector<int> Rolls;
    std::string Line;  ///< the last that is told
};

void PrintTo(const StatementRow& row, std::ostream* out) {
    *out << row.Name;
}

class Statement : public GameRows<StatementRow> {
protected:
    /// The pauses that a row takes.
    static std::vector<int> PausesOf(const StatementRow& row, bool person) {
        NewPosition(3);
        if (person) {
            Person(1);
        }
        Put(1, 1, 13);
        Put(2, 1, 13);
        game.CurPlayer = game.CurAmoeba = 1;
        game.BP[1] = game.BP[2] = 3;
        ScriptedBoard board;
        board.AnswerBy(Pick({{2, 1}}).Give);
        Script script(row.Rolls);
        row.Happens();
        EXPECT_EQ(board.LogLines.empty() ? "" : board.LogLines.back(), row.Line);
        return board.Pauses;
    }
};

TEST_P(Statement, IsLeftToAPersonToRead) {
    EXPECT_THAT(PausesOf(GetParam(), true), ::testing::ElementsAre(10));
}

TEST_P(Statement, OfAComputerClanIsNotWaitedFor) {
    EXPECT_THAT(PausesOf(GetParam(), false), ::testing::IsEmpty());
}

const StatementRow StatementRows[] = {
    {"a_meal",
     [] {
         Feed(13, {0, 2, 2});
         EatSuggestion(SuggestMenu(13, 1), 13);
     },
     {},
     "A1 eats 21 in 13"},
    {"a_hitch_hiker",
     [] {
         Give(2, "hol");
         Feed(14, {3, 0, 3});
         MoveAmoeba(1, 1, 14);
     },
     {9, 10},
     "B1 holding on to A1"},
    {"an_attacked_clan_that_escapes",
     [] {
         Give(2, {"esc", "mv2"});
         AttackAmoeba(2, 13, 0);
     },
     {9},
     "B1 escaped to 12!"},
    {"an_attack_on_armour",
     [] {
         Give(2, "arm");
         game.BP[2] = 0;
         AttackAmoeba(2, 13, 0);
     },
     {},
     "A1 picking a fight with B1 in 13"},
};

INSTANTIATE_TEST_SUITE_P(Told, Statement, ::testing::ValuesIn(StatementRows), RowName());

}  // namespace
}  // namespace plasmos::testing
