// SPDX-License-Identifier: GPL-3.0-or-later
// Moves whose lines cannot be written.
#include <gmock/gmock.h>

#include "model/consistency.h"
#include "rules/move_amoeba.h"
#include "tests/support/game_fixture.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// Four clans; A1 stands in square 13 and moves to 14.
class FailingMove : public GameTest {
protected:
    FailingMove() {
        NewPosition(4);
        game.Turn = 4;
        Put(1, 1, 13, 3);
    }
    ~FailingMove() override {
        EXPECT_EQ(CheckConsistency(), "");
        EXPECT_EQ(CountRecords(), ErrorRecords) << "a roll that is missing is an error, too";
    }

    int CountRecords() {
        const auto errors = files.Errors();
        int count = 0;
        for (auto at = errors.find("Error #"); at != std::string::npos; at = errors.find("Error #", at + 1)) {
            ++count;
        }
        return count;
    }

    MemoryFiles files;
    int ErrorRecords = 0;  ///< records that a test expects
};

TEST_F(FailingMove, APieceWhoseLineFailsStaysWhereItIs) {
    files.Refused = "Amoeba 1, 1 moving";
    Script script({});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Amoeba[1][1].Square, 13);
    EXPECT_EQ(game.Amoeba[1][1].Slot, 3);
    ErrorRecords = 1;
    EXPECT_THAT(files.Errors(), HasSubstr("Player: 1 (Player 1)  Moeba: 1\n"));
    EXPECT_THAT(files.Errors(), HasSubstr("Error #61: Disk full: memory/movefil.txt (no space)\n"));
}

TEST_F(FailingMove, APieceWhoseSpotLineFailsStaysToo) {
    files.Refused = "position";
    Give(1, "ten");
    Feed(13, {0, 0, 0, 1});
    Feed(14, {0, 1, 1, 0});
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Amoeba[1][1].Square, 13);
    EXPECT_THAT(FoodOn(13), ElementsAre(0, 0, 0, 1)) << "the food stays with it";
    ErrorRecords = 1;
}

TEST_F(FailingMove, ALineThatFailsTwiceIsWrittenAtTheThirdTry) {
    files.Failures = 2;
    Script script({9});
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(game.Amoeba[1][1].Square, 14);
}

TEST_F(FailingMove, AnEscapeWhoseLineFailsIsAPieceThatStays) {
    files.Refused = "Amoeba 1, 1 moving";
    Script script({});
    MoveAlone(1, 1, 14, {Happening::Kind::Escapes, 2, 1});
    EXPECT_EQ(game.Amoeba[1][1].Square, 13);
    ErrorRecords = 1;
}

/// A1 moves from square 13 to 14, B1 and B2 hold on to it, and its tentacle drags A2 along.
struct CompanyRow {
    std::string_view Name;
    std::string_view Refused;            ///< the line that cannot be written
    std::vector<int> Rolls;              ///< one spot for each that moves
    std::vector<std::string_view> Left;  ///< who stays in square 13
    std::string_view Blamed;             ///< whom the one error record names
    int BP;                              ///< clan 1 had 2
    std::vector<std::string> Log;
};

void PrintTo(const CompanyRow& row, std::ostream* out) {
    *out << row.Name;
}

class Company : public FailingMove, public ::testing::WithParamInterface<CompanyRow> {
protected:
    Company() {
        Person(1);
        Give(1, "ten");
        Give(2, "hol");
        Put(1, 2, 13);
        Put(2, 1, 13);
        Put(2, 2, 13);
        Feed(14, {1, 0, 1, 1});
        game.BP[1] = 2;
        game.CurPlayer = game.CurAmoeba = 1;
    }

    static std::vector<std::string_view> LeftIn(int square) {
        std::vector<std::string_view> left;
        for (int clan = 1; clan <= game.NumPlayers; ++clan) {
            for (int amoeba = 1; amoeba <= game.MaxAmoeba; ++amoeba) {
                if (game.Amoeba[amoeba][clan].Square == square) {
                    left.push_back(game.Amoeba[amoeba][clan].Name);
                }
            }
        }
        return left;
    }

    ScriptedBoard board;
};

TEST_P(Company, GoesAsFarAsItsLinesCanBeWritten) {
    const CompanyRow& row = GetParam();
    files.Refused = row.Refused;
    board.Then(Yes());
    Script script(row.Rolls);
    MoveAmoeba(1, 1, 14);
    EXPECT_EQ(LeftIn(13), row.Left);
    EXPECT_EQ(game.BP[1], row.BP) << "a drag is paid when the dragged piece has moved";
    EXPECT_EQ(board.LogLines, row.Log);
    ErrorRecords = row.Blamed.empty() ? 0 : 1;
    EXPECT_THAT(files.Errors(), HasSubstr(std::string(row.Blamed)));
}

constexpr const char* DiskIsFull = ": Disk full: memory/movefil.txt (no space)";
const std::string RidesB1 = "B1 holding on to A1";
const std::string RidesB2 = "B2 holding on to A1";
const std::string RidesA2 = "A2 holding on to A1";

// clang-format off
const CompanyRow CompanyRows[] = {
    {"whole", "", {3, 4, 5, 6}, {}, "", 1, {RidesB1, RidesB2, RidesA2}},
    {"the_mover_stays_and_nobody_rides_on_it", "Amoeba 1, 1 moving", {}, {"A1", "A2", "B1", "B2"},
     "Player: 1 (Player 1)  Moeba: 1\n", 2, {Concat("A1 stays in 13", DiskIsFull)}},
    {"the_first_rider_stays", "Amoeba 2, 1 moving", {3, 4, 5}, {"B1"},
     "Player: 2 (Player 2)  Moeba: 1\n", 1, {Concat("B1 stays in 13", DiskIsFull), RidesB2, RidesA2}},
    {"the_second_rider_stays", "Amoeba 2, 2 moving", {3, 4, 5}, {"B2"},
     "Player: 2 (Player 2)  Moeba: 2\n", 1, {RidesB1, Concat("B2 stays in 13", DiskIsFull), RidesA2}},
    {"the_dragged_piece_stays_and_is_not_paid", "Amoeba 1, 2 moving", {3, 4, 5}, {"A2"},
     "Player: 1 (Player 1)  Moeba: 2\n", 2, {RidesB1, RidesB2, Concat("A2 stays in 13", DiskIsFull)}},
    {"a_riders_spot_cannot_be_written", "mposition 5", {3, 4, 5, 6}, {"B2"},
     "Player: 2 (Player 2)  Moeba: 2\n", 1, {RidesB1, Concat("B2 stays in 13", DiskIsFull), RidesA2}},
    {"the_dragged_pieces_spot_cannot_be_written", "position 6", {3, 4, 5, 6}, {"A2"},
     "Player: 1 (Player 1)  Moeba: 2\n", 2, {RidesB1, RidesB2, Concat("A2 stays in 13", DiskIsFull)}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Moves, Company, ::testing::ValuesIn(CompanyRows), RowName());

}  // namespace
}  // namespace plasmos::testing
