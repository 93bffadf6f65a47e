// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/dice.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

using ::testing::ElementsAre;

class Dice : public GameTest {};

std::vector<int> Rolls(int n, int count) {
    std::vector<int> rolls;
    for (int i = 0; i < count; ++i) {
        rolls.push_back(RollDie(n));
    }
    return rolls;
}

TEST_F(Dice, TheGeneratorGivesItsPublishedNumbers) {
    Pcg32 generator;
    generator.Seed(42, 54);
    for (const std::uint32_t number : {0xa15c02b7U, 0x7b47f409U, 0xba1d3330U, 0x83d2f293U, 0xbfa4784bU, 0xcbed606eU}) {
        EXPECT_EQ(generator.Next(), number);
    }
}

TEST_F(Dice, TheFirstRollsOfTwoReplayNumbersNeverChange) {
    SeedRandom(1);
    EXPECT_THAT(Rolls(6, 12), ElementsAre(1, 1, 4, 2, 4, 1, 4, 6, 3, 1, 1, 5));
    SeedRandom(2.5F);
    EXPECT_THAT(Rolls(6, 12), ElementsAre(4, 3, 4, 3, 1, 4, 5, 6, 3, 2, 5, 6));
}

TEST_F(Dice, TheSameReplayNumberGivesTheSameRolls) {
    SeedRandom(77.25F);
    const auto first = Rolls(24, 200);
    SeedRandom(77.25F);
    EXPECT_EQ(Rolls(24, 200), first);
    SeedRandom(77.5F);
    EXPECT_NE(Rolls(24, 200), first);
}

TEST_F(Dice, OneFaceIsAlwaysOne) {
    SeedRandom(3);
    for (const int roll : Rolls(1, 1000)) {
        ASSERT_EQ(roll, 1);
    }
}

TEST_F(Dice, ADieOfSixShowsOneToSixAndEveryFace) {
    SeedRandom(4);
    std::vector<int> count(8);
    for (const int roll : Rolls(6, 60000)) {
        ASSERT_GE(roll, 1);
        ASSERT_LE(roll, 6);
        ++count[static_cast<std::size_t>(roll)];
    }
    for (std::size_t face = 1; face <= 6; ++face) {
        EXPECT_NEAR(count[face], 10000, 500) << "face " << face;
    }
}

TEST_F(Dice, NoFaceAtAllGivesOneAndStillDrawsANumber) {
    SeedRandom(5);
    const auto expected = Rolls(6, 3);
    for (const int n : {0, -1, -1000}) {
        SeedRandom(5);
        EXPECT_EQ(RollDie(n), 1);
        EXPECT_EQ(RollDie(6), expected[1]);
    }
}

RC_GTEST_FIXTURE_PROP(Dice, ARollIsTheWholePartOfNTimesRPlusOne, ()) {
    const auto seed = static_cast<float>(*rc::gen::inRange(0, 1000000));
    const int n = *rc::gen::inRange(1, 1000);
    SeedRandom(seed);
    Pcg32 twin = game.Generator;
    const double r = twin.Next() / 4294967296.0;
    RC_ASSERT(RollDie(n) == static_cast<int>(std::floor(n * r + 1)));
}

TEST_F(Dice, AScriptReplacesTheDice) {
    Script script({6, 1, 3});
    EXPECT_EQ(RollDie(6), 6);
    EXPECT_EQ(RollDie(1), 1);
    EXPECT_EQ(RollDie(4), 3);
    EXPECT_TRUE(script.AtEnd());
}

TEST_F(Dice, AScriptThatDoesNotFitIsAnError) {
    Script script({5});
    script.MayBeLeft();
    EXPECT_THROW(RollDie(4), RuntimeError) << "a die of four shows no five";
    EXPECT_EQ(RollDie(6), 5);
    EXPECT_THROW(RollDie(6), RuntimeError) << "the script is at its end";
}

TEST_F(Dice, EveryRollChangesTheSignature) {
    SeedRandom(6);
    const auto before = game.Signature;
    RollDie(6);
    EXPECT_NE(game.Signature, before);
}

/// What is typed as a replay number, and the number read.
struct ReplayRow {
    std::string_view Name;
    std::string_view Typed;
    bool Numeric;
    float Number;
};

void PrintTo(const ReplayRow& row, std::ostream* out) {
    *out << '"' << row.Typed << '"';
}

class ReplayNumbers : public GameRows<ReplayRow> {};

TEST_P(ReplayNumbers, AreReadAsPlainDecimals) {
    float number = -12345;
    EXPECT_EQ(ParseReplayNumber(GetParam().Typed, number), GetParam().Numeric);
    EXPECT_EQ(number, GetParam().Numeric ? GetParam().Number : -12345);
}

constexpr ReplayRow ReplayRows[] = {
    {"whole", "42", true, 42},
    {"zero", "0", true, 0},
    {"blanks_around", "  7 \t", true, 7},
    {"fraction", "43210.5", true, 43210.5F},
    {"point_first", ".5", true, 0.5F},
    {"point_last", "5.", true, 5},
    {"minus", "-3.25", true, -3.25F},
    {"plus", "+8", true, 8},
    {"exponent", "1e3", true, 1000},
    {"capital_exponent", "2.5E-2", true, 0.025F},
    {"exponent_with_plus", "1e+2", true, 100},
    {"leading_zeros", "007", true, 7},
    {"largest_single", "3.4028234e38", true, std::numeric_limits<float>::max()},
    {"nothing", "", false, 0},
    {"only_blanks", "   ", false, 0},
    {"word", "otto", false, 0},
    {"word_behind", "12 apples", false, 0},
    {"inf", "inf", false, 0},
    {"infinity", "infinity", false, 0},
    {"nan", "nan", false, 0},
    {"hex", "0x10", false, 0},
    {"hex_capital", "&H10", false, 0},
    {"comma", "1,5", false, 0},
    {"thousands", "1,000", false, 0},
    {"blank_inside", "1 2", false, 0},
    {"blank_behind_the_sign", "- 1", false, 0},
    {"two_points", "1.2.3", false, 0},
    {"two_signs", "--1", false, 0},
    {"plus_minus", "+-1", false, 0},
    {"only_a_sign", "-", false, 0},
    {"only_a_plus", "+", false, 0},
    {"only_a_point", ".", false, 0},
    {"exponent_without_digits", "1e", false, 0},
    {"only_an_exponent", "e5", false, 0},
    {"too_large", "3.5e38", false, 0},
    {"far_too_large", "1e400", false, 0},
};

INSTANTIATE_TEST_SUITE_P(Typed, ReplayNumbers, ::testing::ValuesIn(ReplayRows), RowName());

TEST(ReplayTexts, AreTheShortestThatReadBack) {
    EXPECT_EQ(ReplayText(1), "1");
    EXPECT_EQ(ReplayText(0), "0");
    EXPECT_EQ(ReplayText(-0.0F), "-0");
    EXPECT_EQ(ReplayText(-3.25F), "-3.25");
    EXPECT_EQ(ReplayText(0.1F), "0.1");
    EXPECT_EQ(ReplayText(43210.5F), "43210.5");
    EXPECT_EQ(ReplayText(16777216), "16777216");
}

TEST(ReplayTexts, MinusZeroIsReadAsItself) {
    float number = 1;
    EXPECT_TRUE(ParseReplayNumber("-0", number));
    EXPECT_EQ(ReplayText(number), "-0");
}

RC_GTEST_PROP(ReplayTexts, ReadBackToTheSameSingle, ()) {
    const auto bits = *rc::gen::arbitrary<std::uint32_t>();
    float number = 0;
    static_assert(sizeof number == sizeof bits);
    std::memcpy(&number, &bits, sizeof number);
    RC_PRE(std::isfinite(number));
    float again = 0;
    RC_ASSERT(ParseReplayNumber(ReplayText(number), again));
    RC_ASSERT(std::memcmp(&again, &number, sizeof number) == 0);
}

}  // namespace
}  // namespace plasmos::testing
