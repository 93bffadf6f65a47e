// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>

#include "rules/feeding.h"
#include "rules/menus.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

/// The food on offer, and the menu that is suggested for it.
struct Offer {
    int Food;
    int Menu;
};

/// One chain of suggestions, by genes and number of clans, with the offers at its boundaries. The
/// digits of an offer fall or stay equal, and there are at most as many as foreign colours.
struct ChainRow {
    std::string_view Name;
    std::vector<std::string_view> Genes;
    int Clans;
    std::vector<Offer> Offers;
};

void PrintTo(const ChainRow& row, std::ostream* out) {
    *out << row.Name;
}

/// Lays the digits of an offer down in the colours after the eater's own, which is clan 2's.
void LayOffer(int food) {
    const std::string digits = food == 0 ? "" : std::to_string(food);
    int colour = 1;
    for (const char digit : digits) {
        game.Food[8][colour] = digit - '0';
        colour += colour == 1 ? 2 : 1;
    }
}

class Suggestions : public GameRows<ChainRow> {};

TEST_P(Suggestions, FollowTheChain) {
    const ChainRow& row = GetParam();
    for (const Offer& offer : row.Offers) {
        NewPosition(row.Clans);
        for (const auto code : row.Genes) {
            Give(2, code);
        }
        Give(1, {"mv1", "int"});
        LayOffer(offer.Food);
        game.Food[8][2] = 5;
        EXPECT_EQ(SuggestMenu(8, 2), offer.Menu) << "of " << offer.Food;
        EXPECT_EQ(CanEat(8, 2), offer.Menu > 0) << offer.Food;
    }
}

// clang-format off
const ChainRow ChainRows[] = {
    {"three_clans", {}, 3, {{0, 0}, {9, 0}, {11, 0}, {21, 21}, {22, 21}, {31, 21}, {99, 21}}},
    {"four_clans", {}, 4, {{9, 0}, {99, 0}, {111, 111}, {211, 111}, {999, 111}}},
    {"five_clans", {}, 5, {{99, 0}, {111, 0}, {999, 0}, {1111, 1111}, {9999, 1111}}},
    {"six_clans_like_five", {}, 6, {{999, 0}, {1111, 1111}, {9999, 1111}, {11111, 1111}, {54321, 1111}}},
    {"three_clans_with_substitution", {"sub"}, 3,
     {{3, 0}, {4, 4}, {9, 4}, {11, 0}, {21, 21}, {22, 21}, {31, 31}, {32, 31}, {99, 31}}},
    {"four_clans_with_substitution", {"sub"}, 4,
     {{4, 0}, {9, 0}, {11, 0}, {21, 0}, {22, 22}, {31, 31}, {33, 31}, {99, 31}, {111, 111}, {311, 111}}},
    {"five_clans_with_substitution", {"sub"}, 5, {{31, 0}, {99, 0}, {111, 0}, {211, 0}, {221, 221}, {222, 221}, {311,
     311}, {321, 311}, {999, 311}, {1111, 1111}, {2111, 1111}}},
    {"six_clans_with_substitution_like_five", {"sub"}, 6,
     {{211, 0}, {221, 221}, {222, 221}, {311, 311}, {999, 311}, {1111, 1111}, {11111, 1111}}},
    {"three_clans_with_frugality", {"fru"}, 3, {{1, 0}, {2, 2}, {9, 2}, {11, 11}, {21, 21}, {31, 21}, {99, 21}}},
    {"four_clans_with_frugality", {"fru"}, 4,
     {{3, 0}, {9, 0}, {11, 11}, {21, 11}, {22, 11}, {99, 11}, {111, 111}, {999, 111}}},
    {"five_clans_with_frugality_leave_21_22_and_31", {"fru"}, 5,
     {{21, 0}, {22, 0}, {31, 0}, {99, 0}, {111, 111}, {211, 111}, {999, 111}, {1111, 1111}, {9999, 1111}}},
    {"six_clans_with_frugality_like_five", {"fru"}, 6,
     {{99, 0}, {111, 111}, {999, 111}, {1111, 1111}, {11111, 1111}}},
    {"three_clans_with_both_eat_2_of_one_colour_never_3_or_4", {"sub", "fru"}, 3,
     {{1, 0}, {2, 2}, {3, 2}, {4, 2}, {9, 2}, {11, 11}, {21, 21}, {22, 21}, {31, 31}, {99, 31}}},
    {"four_clans_with_both", {"sub", "fru"}, 4,
     {{1, 0}, {2, 0}, {3, 3}, {9, 3}, {11, 11}, {21, 21}, {22, 22}, {31, 31}, {99, 31}, {111, 111}, {999, 111}}},
    {"five_clans_with_both_leave_21", {"sub", "fru"}, 5, {{9, 0}, {11, 0}, {21, 0}, {22, 22}, {31, 31}, {99, 31},
     {111, 111}, {211, 211}, {221, 221}, {222, 221}, {311, 311}, {999, 311}, {1111, 1111}, {2111, 1111}}},
    {"six_clans_with_both_like_five", {"sub", "fru"}, 6, {{11, 0}, {21, 0}, {22, 22}, {31, 31}, {99, 31}, {111, 111},
     {211, 211}, {221, 221}, {222, 221}, {311, 311}, {999, 311}, {1111, 1111}, {11111, 1111}}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Chains, Suggestions, ::testing::ValuesIn(ChainRows), RowName());

class LookingAhead : public GameTest {
protected:
    static inline const std::vector<std::vector<std::string_view>> GenesOfTaste = {
        {}, {"sub"}, {"fru"}, {"sub", "fru"}};

    /// Counts square 8's food up like a number, 0 to `most` of each colour; false: it began anew.
    static bool NextFood(int clans, int most) {
        for (int colour = 1; colour <= clans; ++colour) {
            if (++game.Food[8][colour] <= most) {
                return true;
            }
            game.Food[8][colour] = 0;
        }
        return false;
    }
};

TEST_F(LookingAhead, FindsAMenuExactlyWhereOneIsSuggested) {
    constexpr int most = 5;
    for (int clans = 3; clans <= MaxClans; ++clans) {
        for (const auto& genes : GenesOfTaste) {
            NewPosition(clans);
            for (const auto code : genes) {
                Give(2, code);
            }
            do {
                ASSERT_EQ(CanEat(8, 2), SuggestMenu(8, 2) > 0) << ::testing::PrintToString(game.Food[8]);
            } while (NextFood(clans, most));
        }
    }
}

class AnyFood : public GameTest {
protected:
    /// Any number of clans, any genes of feeding, any food in square 8; gives the eater.
    static int AnyPosition() {
        const int clans = *rc::gen::inRange(3, 7);
        NewPosition(clans);
        const int eater = *rc::gen::inRange(1, clans + 1);
        for (const char* code : {"sub", "fru", "par"}) {
            if (*rc::gen::arbitrary<bool>()) {
                Give(eater, code);
            }
        }
        for (int colour = 1; colour <= clans; ++colour) {
            game.Food[8][colour] = *rc::gen::weightedElement<int>({{4, 0}, {4, 1}, {3, 2}, {2, 3}, {1, 9}, {1, 12}});
        }
        game.CurPlayer = eater;
        return eater;
    }
    static int LeastFood() { return *std::min_element(game.Food[8].begin(), game.Food[8].end()); }
};

RC_GTEST_FIXTURE_PROP(AnyFood, CanBeEatenExactlyWhereAMenuIsSuggested, ()) {
    const int eater = AnyPosition();
    const bool canEat = CanEat(8, eater);
    RC_ASSERT(canEat == (SuggestMenu(8, eater) > 0));
}

RC_GTEST_FIXTURE_PROP(AnyFood, NeverFallsBelowNothing, ()) {
    const int eater = AnyPosition();
    const int before = game.Food[8][eater];
    const int menu = SuggestMenu(8, eater);
    int digits = 0;
    for (int rest = menu; rest > 0; rest /= 10) {
        digits += rest % 10;
    }
    const auto sum = [] {
        int all = 0;
        for (const int pieces : game.Food[8]) {
            all += pieces;
        }
        return all;
    };
    const int all = sum();
    EatSuggestion(menu, 8);
    RC_ASSERT(LeastFood() >= 0);
    RC_ASSERT(sum() == all - digits + (menu > 0 ? 2 : 0));
    RC_ASSERT(game.Food[8][eater] == before + (menu > 0 ? 2 : 0));
}

RC_GTEST_FIXTURE_PROP(AnyFood, SuggestedIsAlwaysLegal, ()) {
    const int eater = AnyPosition();
    const int menu = SuggestMenu(8, eater);
    RC_PRE(menu > 0);
    RC_ASSERT(LegalEat(menu));
}

RC_GTEST_FIXTURE_PROP(AnyFood, OfAParasiteNeverFallsBelowNothing, ()) {
    const int eater = AnyPosition();
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        if (*rc::gen::arbitrary<bool>()) {
            Put(clan, 1, 8);
        }
        game.BP[clan] = *rc::gen::inRange(0, 2);
    }
    RC_PRE(!CanEat(8, eater));
    const auto before = game.Food[8];
    const ParasiteMeal meal = FindParasiteMeal(8, eater);
    RC_ASSERT(std::equal(before.begin(), before.end(), game.Food[8].begin()));
    if (meal.Menu != 0) {
        RC_ASSERT(HasGene(eater, "par"));
        EatAsParasite(meal, 8);
        RC_ASSERT(LeastFood() >= 0);
        RC_ASSERT(*std::min_element(game.BP.begin(), game.BP.end()) >= 0);
    }
}

}  // namespace
}  // namespace plasmos::testing
