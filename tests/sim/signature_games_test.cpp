// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cinttypes>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "model/rules_version.h"
#include "model/signature.h"
#include "sim/simulate.h"
#include "tests/support/game_fixture.h"
#include "tests/support/golden.h"
#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

class SignatureTest : public GameTest {};

std::string SignatureOf(int games) {
    SimOptions options;
    PrepareThread(options, nullptr);
    std::uint64_t signature = 0;
    for (int index = 0; index < games; ++index) {
        signature = FoldHash(signature, SimulateGame(options, index).Signature);
    }
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016" PRIx64, signature);
    return digits;
}

/// By version of the rules, from 1. Whoever changes play raises RulesVersion and adds the new signature: records of
/// games that were played otherwise are refused then, and not played wrongly.
constexpr std::string_view SignatureOfVersion[] = {"", "65e9d779fd086d53"};
static_assert(RulesVersion + 1 == std::size(SignatureOfVersion));

/// The signatures of the first games of the fixed set; a change of play changes them, nothing else does.
struct SignatureRow {
    std::string_view Name;
    int Games;
    std::string_view Signature;
};
void PrintTo(const SignatureRow& row, std::ostream* out) {
    *out << row.Name;
}

const SignatureRow Rows[] = {
    {"of_20_games", 20, "76bd0896b96d2144"},
    {"of_400_games", 400, "9d7d37798768530e"},
    {"of_20000_games", 20000, SignatureOfVersion[RulesVersion]},
};

class SignatureOfFixedGames : public GameRows<SignatureRow> {};

TEST_P(SignatureOfFixedGames, IsTheRecordedOne) {
    const SignatureRow& row = GetParam();
    if (row.Games > Scaled(20000)) {
        GTEST_SKIP() << "too many games for a slow build";
    }
    EXPECT_EQ(SignatureOf(row.Games), row.Signature);
    if (row.Games <= 400) {
        EXPECT_EQ(SignatureOf(row.Games), row.Signature) << "played again in the same process";
    }
}

INSTANTIATE_TEST_SUITE_P(Fixed, SignatureOfFixedGames, ::testing::ValuesIn(Rows), RowName());

TEST_F(SignatureTest, AChangedRollChangesIt) {
    EXPECT_NE(SignatureOf(1), SignatureOf(2));
}

class Golden : public ::testing::TestWithParam<GoldenGame> {};

TEST_P(Golden, IsPlayedStepByStepAsRecorded) {
    ForgetGame();
    const auto played = TellSteps(GetParam());
    std::ifstream file(GoldenFile(GetParam().Name));
    std::size_t number = 0;
    for (std::string recorded; std::getline(file, recorded); ++number) {
        ASSERT_LT(number, played.size()) << "the game is shorter than recorded; the next step was\n" << recorded;
        ASSERT_EQ(played[number], recorded) << "step " << number << " is the first that differs";
    }
    EXPECT_EQ(number, played.size()) << "the game is longer than recorded";
    ForgetGame();
}

INSTANTIATE_TEST_SUITE_P(Games, Golden, ::testing::ValuesIn(GoldenGames()),
                         [](const auto& row) { return row.param.Name; });

}  // namespace
}  // namespace plasmos::testing
