// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/board_size.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A board and whether it may be played on.
struct BoardRow {
    std::string_view Name;
    BoardSize Board;
    bool Allowed;
};

void PrintTo(const BoardRow& row, std::ostream* out) {
    *out << row.Name;
}

class Boards : public ::testing::TestWithParam<BoardRow> {};

TEST_P(Boards, KeepTheirBounds) {
    EXPECT_EQ(BoardFault(GetParam().Board).empty(), GetParam().Allowed) << BoardFault(GetParam().Board);
}

const BoardRow BoardRows[] = {
    {"a_new_installation", {}, true},
    {"the_largest", {6, 6, {}}, true},
    {"long_and_narrow", {3, 9, {}}, true},
    {"high_and_narrow", {9, 4, {}}, true},
    {"two_rows", {2, 9, {}}, false},
    {"two_columns", {9, 2, {}}, false},
    {"ten_rows", {10, 3, {}}, false},
    {"ten_columns", {3, 10, {}}, false},
    {"forty_two_squares", {6, 7, {}}, false},
    {"eighty_one_squares", {9, 9, {}}, false},
    {"eight_blocks", {5, 5, {1, 2, 3, 4, 5, 6, 7, 8}}, true},
    {"nine_blocks", {5, 5, {1, 2, 3, 4, 5, 6, 7, 8, 9}}, false},
    {"three_by_three_has_too_few_squares", {3, 3, {}}, false},
    {"twelve_squares_free", {3, 4, {}}, true},
    {"eleven_squares_free", {3, 4, {1}}, false},
    {"twelve_free_of_twenty", {4, 5, {1, 2, 3, 4, 5, 6, 7, 8}}, true},
    {"eight_free_of_sixteen", {4, 4, {1, 2, 3, 4, 5, 6, 7, 8}}, false},
    {"block_zero", {5, 5, {0}}, false},
    {"block_off_the_board", {5, 5, {26}}, false},
    {"a_block_twice", {5, 5, {7, 7}}, false},
    {"huge", {2147483647, 2147483647, {}}, false},
};

INSTANTIATE_TEST_SUITE_P(Sizes, Boards, ::testing::ValuesIn(BoardRows), RowName());

TEST(Blocks, AreReadAsWholeNumbersOnTheBoardOnceEach) {
    EXPECT_THAT(ParseBlocks("7:12:", 25), ElementsAre(7, 12));
    EXPECT_THAT(ParseBlocks("7:12", 25), ElementsAre(7, 12));
    EXPECT_THAT(ParseBlocks("", 25), IsEmpty());
    EXPECT_THAT(ParseBlocks(":::", 25), IsEmpty());
    EXPECT_THAT(ParseBlocks("7:7:7:", 25), ElementsAre(7));
    EXPECT_THAT(ParseBlocks("0:26:-3:25:", 25), ElementsAre(25));
    EXPECT_THAT(ParseBlocks("otto:3.5:4x:9:99999999999:", 25), ElementsAre(9));
}

TEST(Blocks, AreWrittenTheWayTheyAreRead) {
    EXPECT_EQ(BlocksText({7, 12}), "7:12:");
    EXPECT_EQ(BlocksText({}), "");
}

RC_GTEST_PROP(Blocks, ReadBackWhatWasWritten, ()) {
    const auto blocks = *rc::gen::unique<std::vector<int>>(rc::gen::inRange(1, 37));
    RC_ASSERT(ParseBlocks(BlocksText(blocks), 36) == blocks);
}

RC_GTEST_PROP(Blocks, NothingTypedIsEverOffTheBoard, (const std::string& text)) {
    for (const int square : ParseBlocks(text, 25)) {
        RC_ASSERT(square >= 1 && square <= 25);
    }
}

TEST(Blocks, TheLastOnesAreDroppedWhereTooFewSquaresStayFree) {
    BoardSize board{4, 4, {1, 2, 3, 4, 5, 6}};
    TrimBlocks(board);
    EXPECT_THAT(board.Blocks, ElementsAre(1, 2, 3, 4));
    board = {6, 6, {9, 8, 7, 6, 5, 4, 3, 2, 1, 10}};
    TrimBlocks(board);
    EXPECT_THAT(board.Blocks, ElementsAre(9, 8, 7, 6, 5, 4, 3, 2));
    board = {3, 4, {1}};
    TrimBlocks(board);
    EXPECT_THAT(board.Blocks, IsEmpty());
    board = {3, 3, {1}};
    TrimBlocks(board);
    EXPECT_THAT(board.Blocks, IsEmpty());
}

}  // namespace
}  // namespace plasmos::testing
