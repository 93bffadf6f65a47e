// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <string_view>

#include "tests/support/test_scale.h"

namespace plasmos::testing {
namespace {

/// The signature of the games with the replay numbers 1 to `Games`: one hash over every roll, move,
/// meal, purchase, attack and score. It is the same with every compiler, build type and machine. A
/// commit that changes how games are played names the new ones here.
struct SignatureRow {
    int Games;
    std::string_view Signature;
};

void PrintTo(const SignatureRow& row, std::ostream* out) {
    *out << row.Games << " games";
}

constexpr SignatureRow SignatureRows[] = {
    {200, "8be5f39e3d4f0a5e"},
    {2000, "080b5d10e4f24545"},
    {20000, "65e9d779fd086d53"},
};

class Signatures : public ::testing::TestWithParam<SignatureRow> {};

std::string OutputOf(const std::string& command) {
    std::string output;
    std::FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        return output;
    }
    char bytes[256];
    while (std::fgets(bytes, sizeof bytes, pipe) != nullptr) {
        output += bytes;
    }
    pclose(pipe);
    return output;
}

TEST_P(Signatures, AreTheSameEverywhere) {
    const int games = GetParam().Games;
    if (games > Scaled(SignatureRows[2].Games)) {
        GTEST_SKIP() << "left to a longer run";
    }
    const auto output = OutputOf(PLASMOS_SIM " --bench --games " + std::to_string(games));
    const auto found = output.find("signature=");
    ASSERT_NE(found, std::string::npos) << output;
    EXPECT_EQ(output.substr(found + 10, 16), GetParam().Signature) << output;
}

INSTANTIATE_TEST_SUITE_P(Bench, Signatures, ::testing::ValuesIn(SignatureRows),
                         [](const auto& row) { return "Games" + std::to_string(row.param.Games); });

}  // namespace
}  // namespace plasmos::testing
