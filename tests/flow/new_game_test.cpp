// SPDX-License-Identifier: GPL-3.0-or-later
#include "flow/new_game.h"

#include <gmock/gmock.h>

#include <numeric>
#include <set>

#include "files/settings_store.h"
#include "flow/names.h"
#include "flow/personalities.h"
#include "model/services.h"
#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "tests/support/game_fixture.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_board.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;

class NewGameTest : public GameTest {
protected:
    static void Begin(float replay, int clans) {
        game.HasRequestedReplay = true;
        game.RequestedReplay = replay;
        game.RequestedClans = clans;
        game.AutoPlay = true;
        NewGame();
    }
};

TEST_F(NewGameTest, TheDeckHasItsUvValuesAndDriftsByDie) {
    NewPosition(3, 4, 6);
    const Script rolls({1, 2, 3, 4, 5, 6, 1, 2, 3, 4, 5});
    BuildEnvDeck();
    std::vector<int> uv;
    std::vector<int> drift;
    for (int card = 0; card <= 10; ++card) {
        uv.push_back(game.EnvDeck[card].UV);
        drift.push_back(game.EnvDeck[card].DriftDirection);
    }
    EXPECT_THAT(uv, ElementsAre(6, 8, 9, 9, 10, 10, 10, 11, 12, 13, 14));
    EXPECT_THAT(drift, ElementsAre(1, 6, -1, -6, 0, -666, 1, 6, -1, -6, 0));
}

TEST_F(NewGameTest, UvAndDriftAreShuffledIndependently) {
    NewPosition(3);
    for (int card = 0; card <= 10; ++card) {
        game.EnvDeck[card] = {card, 100 + card};
    }
    // For each card in turn: a die of 11 for the UV value, another for the drift; here every UV value is
    // swapped with card 10's, every drift stays.
    std::vector<int> rolls;
    for (int card = 0; card <= 10; ++card) {
        rolls.push_back(11);
        rolls.push_back(card + 1);
    }
    const Script script(rolls);
    ShuffleEnvDeck();
    std::vector<int> uv;
    for (int card = 0; card <= 10; ++card) {
        uv.push_back(game.EnvDeck[card].UV);
        EXPECT_EQ(game.EnvDeck[card].DriftDirection, 100 + card);
    }
    EXPECT_THAT(uv, ElementsAre(10, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9));
    EXPECT_EQ(game.UVLevel, 10) << "card 0 is in force until the first environment step";
}

/// The dice of dealing and what the clans get. Clan 3 is a person's in every row.
struct DealRow {
    std::string_view Name;
    int Clans;
    bool Normal;
    std::vector<int> Rolls;
    std::vector<std::string> Names;
    std::vector<std::int32_t> Masks;
};
void PrintTo(const DealRow& row, std::ostream* out) {
    *out << row.Name;
}
class Deals : public GameRows<DealRow> {};

TEST_P(Deals, Personalities) {
    NewPosition(GetParam().Clans);
    Person(3);
    game.Menu.normmen = GetParam().Normal;
    const Script rolls(GetParam().Rolls);
    DealPersonalities();
    std::vector<std::string> names;
    std::vector<std::int32_t> masks;
    for (int clan = 1; clan <= GetParam().Clans; ++clan) {
        if (game.Players[clan].IsComputer) {
            names.emplace_back(game.Players[clan].PersonalityName);
            masks.push_back(game.Players[clan].Personality);
        }
    }
    EXPECT_EQ(names, GetParam().Names);
    EXPECT_EQ(masks, GetParam().Masks);
}

const DealRow DealRows[] = {
    {"three_clans_draw_from_five_cards", 3, false, {1, 4}, {"Eater", "Eater"}, {0x4A006, 0x4A006}},
    {"the_last_card_takes_the_place_of_the_drawn_one",
     4,
     false,
     {1, 1, 1},
     {"Eater", "Miser", "Eccentric"},
     {0x4A006, 0x5002, 0x650}},
    {"the_divider_keeps_its_high_bits_beside_an_eater",
     4,
     false,
     {3, 1, 2},
     {"Divider", "Eater", "Mover"},
     {-32606, 0x4A006, 0x2012A}},
    {"without_an_eater_favourites_are_thinned_out",
     4,
     false,
     {2, 3, 3},
     {"Mover", "Divider", "Eccentric"},
     {0x2010A, 0xF8082, 0x640}},
    {"normal_difficulty_adds_ray_protection",
     4,
     true,
     {1, 2, 3},
     {"Eater", "Mover", "Divider"},
     {0x4A086, 0x201AA, -32606 | 0x80}},
    {"normal_difficulty_without_an_eater",
     4,
     true,
     {2, 5, 4},
     {"Mover", "Eccentric", "Eater"},
     {0x201AA, 0x6D0, 0x4A086}},
};
INSTANTIATE_TEST_SUITE_P(NewGame, Deals, ::testing::ValuesIn(DealRows), RowName());

TEST_F(NewGameTest, TheMiserIsNeverDealtWithThreeClans) {
    std::set<std::string> three;
    std::set<std::string> six;
    for (int replay = 1; replay <= 300; ++replay) {
        for (const int clans : {3, 6}) {
            Begin(static_cast<float>(replay), clans);
            for (int clan = 1; clan <= clans; ++clan) {
                (clans == 3 ? three : six).insert(game.Players[clan].PersonalityName.String());
            }
        }
    }
    EXPECT_EQ(three.count("Miser"), 0U);
    EXPECT_EQ(three.size(), 4U);
    EXPECT_EQ(six.count("Miser"), 1U);
}

TEST_F(NewGameTest, EveryClanStartsAlike) {
    game.Menu.twoplayermen = true;
    for (int clans = 3; clans <= 6; ++clans) {
        SetBoard(5, 5, "7:12:");
        Begin(static_cast<float>(clans), clans);
        EXPECT_EQ(game.NumPlayers, clans);
        EXPECT_EQ(game.MaxAmoeba, clans <= 4 ? 7 : 6);
        EXPECT_EQ(game.Turn, 0);
        EXPECT_EQ(game.Drift, game.EnvDeck[0].DriftDirection);
        for (int place = 1; place <= clans; ++place) {
            const int clan = game.PlayOrder[place];
            EXPECT_EQ(game.Players[clan].Score, clans + place - 1) << "who moves first starts lowest";
            EXPECT_EQ(game.BP[clan], 4);
            EXPECT_EQ(game.AmoebaCount[clan], 2);
            EXPECT_TRUE(game.Players[clan].IsComputer) << "nobody is a person in an unattended game";
            EXPECT_EQ(game.Food[1][clan], 2);
            EXPECT_EQ(game.Food[7][clan], 0) << "a block has no food";
            EXPECT_NE(game.Amoeba[1][clan].Square, game.Amoeba[2][clan].Square);
        }
        EXPECT_EQ(game.Food[1][clans == 6 ? 0 : clans + 1], 0);
    }
}

TEST_F(NewGameTest, ColoursBelongToTheClanNumbers) {
    Begin(1, 6);
    constexpr std::int32_t colours[] = {0, 0xFF0000, 0xFF00FF, 0x00FFFF, 0x0000FF, 0x0BB000, 0x0080FF};
    for (int clan = 1; clan <= 6; ++clan) {
        EXPECT_EQ(game.Players[clan].Colour, colours[clan]);
    }
}

TEST_F(NewGameTest, ThePersonPlaysClan3AndWithTwoPersonsClan2Too) {
    for (const bool two : {false, true}) {
        game.Menu.twoplayermen = two;
        game.HasRequestedReplay = true;
        game.RequestedClans = 4;
        ScriptedBoard board;
        board.AnswerBy(
            [](Question& question) { Square(static_cast<SquareQuestion&>(question).Offered.front()).Give(question); });
        NewGame();
        EXPECT_FALSE(game.Players[3].IsComputer);
        EXPECT_EQ(game.Players[2].IsComputer, !two);
        EXPECT_TRUE(game.Players[1].IsComputer);
    }
}

TEST_F(NewGameTest, TheNumberOfClansIsAskedUntilItIsValid) {
    ScriptedBoard board;
    board.AnswerBy(
        [](Question& question) { Square(static_cast<SquareQuestion&>(question).Offered.front()).Give(question); });
    board.Then({CloseIt(), Do("two", [](Question& q) { static_cast<AmNumfrm&>(q).amopt_Click(2); }), Number(5)});
    NewGame();
    EXPECT_EQ(game.NumPlayers, 5);
    ASSERT_GE(board.Questions.size(), 2U);
    EXPECT_EQ(board.Questions[0].Text, "How many players would you like for this game of Zymarra?");
    EXPECT_THAT(board.Questions[0].Offered, ElementsAre(3, 4, 5, 6));
    EXPECT_EQ(std::count(board.Messages.begin(), board.Messages.end(), "Invalid response!"), 1);
}

TEST_F(NewGameTest, ATypedReplayNumberSeedsTheGameAndStandsInTheCaption) {
    ScriptedBoard board;
    board.ReplayBox = " 4711.5 ";
    game.RequestedClans = 3;
    game.AutoPlay = true;
    NewGame();
    EXPECT_EQ(game.ReplayNo, 4711.5F);
    EXPECT_THAT(board.Captions, ElementsAre("The Puddle  (4711.5)"));
    const auto deck = game.EnvDeck[3];
    board.ReplayBox = "no number";
    NewGame();
    EXPECT_NE(game.ReplayNo, 4711.5F);
    EXPECT_GE(game.ReplayNo, 0);
    EXPECT_LT(game.ReplayNo, 86401);
    board.ReplayBox = "4711.5";
    NewGame();
    EXPECT_EQ(game.EnvDeck[3], deck);
}

TEST_F(NewGameTest, ClanNamesComeFromTheSettings) {
    MemorySettings settings;
    settings.Save("players", "name1", "Blue ones");
    settings.Save("players", "name2", "   ");
    settings.Save("players", "name4", "Thirty characters are too much");
    services.Settings = &settings;
    Begin(1, 4);
    EXPECT_EQ(game.Players[1].Name, "Blue ones");
    EXPECT_EQ(game.Players[2].Name, "Player 2");
    EXPECT_EQ(game.Players[3].Name, "Player 3");
    EXPECT_EQ(game.Players[4].Name, "Thirty characters ar");
    services.Settings = nullptr;
}

TEST_F(NewGameTest, NoTwoPiecesOfAClanShareAName) {
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

TEST_F(NewGameTest, NamesAreDrawnFromWhatIsLeftInTheOrderOfTheFile) {
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

TEST_F(NewGameTest, NamesOfTheFileAreDealtFitForALine) {
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

TEST_F(NewGameTest, TheStartingOrderIsShuffledByOneDieAPlace) {
    Begin(3, 4);
    std::vector<int> order(game.PlayOrder.begin() + 1, game.PlayOrder.begin() + 5);
    std::sort(order.begin(), order.end());
    EXPECT_THAT(order, ElementsAre(1, 2, 3, 4));
}

TEST_F(NewGameTest, NothingOfAnEarlierGameIsLeft) {
    Begin(1, 6);
    game.Genes[5][6] = true;
    game.FoodHistory[3][2][4] = 7;
    game.AutoFlags[3][1] = true;
    game.GameOver = true;
    Begin(2, 3);
    EXPECT_FALSE(game.Genes[5][6]);
    EXPECT_EQ(game.FoodHistory[3][2][4], 0);
    EXPECT_FALSE(game.AutoFlags[3][1]);
    EXPECT_FALSE(game.GameOver);
    EXPECT_EQ(game.Amoeba[1][6].Square, 0);
    EXPECT_EQ(game.Food[1][6], 0);
}

TEST_F(NewGameTest, SixClansOnTwelveSquaresTakeEverySquare) {
    SetBoard(3, 4);
    Begin(5, 6);
    for (int square = 1; square <= 12; ++square) {
        EXPECT_EQ(game.Occupancy[square][0], 1) << square;
    }
}

}  // namespace
}  // namespace plasmos::testing
