// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <set>

#include "flow/personalities.h"
#include "tests/flow/begin.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

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

class PersonalitiesTest : public GameTest {};

TEST_F(PersonalitiesTest, TheMiserIsNeverDealtWithThreeClans) {
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

}  // namespace
}  // namespace plasmos::testing
