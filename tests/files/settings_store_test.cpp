// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/settings_store.h"

#include <gtest/gtest.h>

#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

TEST(Settings, WhatIsNotSavedHasItsDefault) {
    const MemorySettings store;
    EXPECT_EQ(store.Get("board", "rows", "5"), "5");
    EXPECT_EQ(store.Get("players", "name1", ""), "");
}

TEST(Settings, WhatIsSavedIsFoundUnderSectionAndKey) {
    MemorySettings store;
    EXPECT_TRUE(store.Save("players", "name1", "Ameera"));
    EXPECT_EQ(store.Get("players", "name1", "x"), "Ameera");
    EXPECT_EQ(store.Get("players", "name2", "x"), "x");
    EXPECT_EQ(store.Get("board", "name1", "x"), "x");
    EXPECT_TRUE(store.Save("players", "name1", ""));
    EXPECT_EQ(store.Get("players", "name1", "x"), "") << "an empty text is saved too";
}

/// What is saved as the number of rows (3 to 9), and the number it counts as.
struct NumberRow {
    std::string_view Name;
    std::string_view Saved;
    int Number;
};

void PrintTo(const NumberRow& row, std::ostream* out) {
    *out << '"' << row.Saved << '"';
}

class SavedNumbers : public ::testing::TestWithParam<NumberRow> {};

TEST_P(SavedNumbers, CountOnlyInsideTheirBounds) {
    MemorySettings store;
    store.Save("board", "rows", GetParam().Saved);
    EXPECT_EQ(GetNumber(store, "board", "rows", 5, 3, 9), GetParam().Number);
}

constexpr NumberRow NumberRows[] = {
    {"inside", "7", 7},         {"least", "3", 3},          {"most", "9", 9},         {"blanks_around", " 8 ", 8},
    {"too_small", "2", 5},      {"too_large", "10", 5},     {"minus", "-7", 5},       {"word", "seven", 5},
    {"fraction", "7.5", 5},     {"empty", "", 5},           {"blanks_only", "  ", 5}, {"word_behind", "7x", 5},
    {"huge", "99999999999", 5}, {"blank_inside", "1 2", 5},
};

INSTANTIATE_TEST_SUITE_P(Rows, SavedNumbers, ::testing::ValuesIn(NumberRows), RowName());

TEST(SavedNumber, WithoutAnythingSavedIsTheDefault) {
    EXPECT_EQ(GetNumber(MemorySettings{}, "board", "rows", 5, 3, 9), 5);
}

}  // namespace
}  // namespace plasmos::testing
