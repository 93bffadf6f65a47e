// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <set>

#include "flow/names.h"
#include "tests/flow/begin.h"
#include "tests/support/game_fixture.h"
#include "tests/support/memory_files.h"

namespace plasmos::testing {
namespace {

class NamesTest : public GameTest {};

TEST_F(NamesTest, NoTwoPiecesOfAClanShareAName) {
    Begin(77, 6);
    for (int clan = 1; clan <= 6; ++clan) {
        std::set<std::string_view> names;
        for (int piece = 1; piece <= 6; ++piece) {
            names.insert(game.Amoeba[piece][clan].Name.View());
        }
        EXPECT_EQ(names.size(), 6U);
        EXPECT_EQ(names.count(""), 0U);
    }
}

TEST_F(NamesTest, NamesAreDrawnFromWhatIsLeftInTheOrderOfTheFile) {
    NewPosition(3);
    std::vector<int> rolls(21, 1);
    rolls[0] = 14;
    rolls[1] = 2;
    const Script script(rolls);
    LoadAmoebaNames();
    EXPECT_EQ(game.Amoeba[1][1].Name, "Otto");
    EXPECT_EQ(game.Amoeba[2][1].Name, "Offa");
    EXPECT_EQ(game.Amoeba[3][1].Name, "Oddr");
    EXPECT_EQ(game.Amoeba[1][2].Name, "Baterich");
    EXPECT_EQ(game.Amoeba[7][3].Name, "Grendel");
}

TEST_F(NamesTest, NamesOfTheFileAreDealtFitForALine) {
    MemoryFiles files;
    const std::string euro = "\u20AC";
    std::string longName;
    while (longName.size() < 200) {
        longName += euro;
    }
    files.Files["zynames.txt"] = "1 - a\u2028b\n1 - \u202E\n1 - " + longName +
                                 "\n1 - <b>c</b>\n1 - d\te\n1 - f\u0085\n1 - " + std::string(3000, 'x') +
                                 "\n1 - \u2066g\u2069h\n1 - i\n";
    NewPosition(3);
    game.NumPlayers = 1;
    const Script script(std::vector<int>(7, 1));
    LoadAmoebaNames();
    EXPECT_EQ(game.Amoeba[1][1].Name, "a b");
    EXPECT_EQ(game.Amoeba[2][1].Name.View(), longName.substr(0, 60)) << "a line of blanks has no name";
    EXPECT_EQ(game.Amoeba[3][1].Name, "<b>c</b>");
    EXPECT_EQ(game.Amoeba[4][1].Name, "d e");
    EXPECT_EQ(game.Amoeba[5][1].Name, "f");
    EXPECT_EQ(game.Amoeba[6][1].Name.View(), std::string(60, 'x'));
    EXPECT_EQ(game.Amoeba[7][1].Name, "g h");
}

struct NameLineRow {
    std::string_view Name;
    std::string_view Line;
    int Clan;
    std::string_view Given;
};
void PrintTo(const NameLineRow& row, std::ostream* out) {
    *out << row.Name;
}
class NameLines : public GameRows<NameLineRow> {};

TEST_P(NameLines, AreRead) {
    const NameLine line = ParseNameLine(GetParam().Line);
    EXPECT_EQ(line.Clan, GetParam().Clan);
    EXPECT_EQ(line.Name, GetParam().Given);
}

const NameLineRow NameLineRows[] = {
    {"the_form_of_the_file", "1 - Oddr", 1, "Oddr"},
    {"blanks_around", "   6 -   Yorick the Long  ", 6, "Yorick the Long"},
    {"without_a_blank_before_the_name", "2 -Bruno", 2, "Bruno"},
    {"clan_7", "7 - Nobody", 0, ""},
    {"clan_0", "0 - Nobody", 0, ""},
    {"without_a_hyphen", "1 Oddr", 0, ""},
    {"without_a_name", "3 - ", 0, ""},
    {"empty", "", 0, ""},
    {"a_remark", "# names", 0, ""},
};
INSTANTIATE_TEST_SUITE_P(NewGame, NameLines, ::testing::ValuesIn(NameLineRows), RowName());

}  // namespace
}  // namespace plasmos::testing
