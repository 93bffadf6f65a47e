// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/encoding.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/game_fixture.h"

namespace plasmos::testing {
namespace {

using namespace std::string_view_literals;

/// A text of the program and its bytes in a file.
struct BytesRow {
    std::string_view Name;
    std::string_view Text;
    std::string_view Bytes;
};

void PrintTo(const BytesRow& row, std::ostream* out) {
    *out << row.Name;
}

class FileBytes : public ::testing::TestWithParam<BytesRow> {};

TEST_P(FileBytes, AreOneByteACharacterWithCrLf) {
    EXPECT_EQ(ToFileBytes(GetParam().Text), GetParam().Bytes);
}

constexpr BytesRow BytesRows[] = {
    {"plain", "Otto", "Otto"},
    {"empty", "", ""},
    {"line_end", "a\nb\n", "a\r\nb\r\n"},
    {"empty_line", "a\n\n", "a\r\n\r\n"},
    {"a_cr_lf_stays_one", "a\r\nb", "a\r\nb"},
    {"umlauts", "\xC3\xA4\xC3\x96\xC3\x9F", "\xE4\xD6\xDF"},
    {"euro", "\xE2\x82\xAC", "\x80"},
    {"quotation_marks", "\xE2\x80\x9Ex\xE2\x80\x9D", "\x84x\x94"},
    {"dash", "\xE2\x80\x93", "\x96"},
    {"capital_y_with_dots", "\xC5\xB8", "\x9F"},
    {"no_break_space", "\xC2\xA0", "\xA0"},
    {"greek_is_outside", "\xCE\xB1\xCE\xB2", "??"},
    {"an_emoji_is_one_character", "\xF0\x9F\x98\x80!", "?!"},
};

INSTANTIATE_TEST_SUITE_P(Texts, FileBytes, ::testing::ValuesIn(BytesRows), RowName());

TEST(FileLines, ThatAreUtf8AreTakenAsUtf8) {
    EXPECT_EQ(FromFileBytes("J\xC3\xBCrgen"), "J\xC3\xBCrgen");
    EXPECT_EQ(FromFileBytes("Otto"), "Otto");
    EXPECT_EQ(FromFileBytes("\xCE\xB1"), "\xCE\xB1");
}

TEST(FileLines, ThatAreNotAreTakenAsWindows1252) {
    EXPECT_EQ(FromFileBytes("J\xFCrgen"), "J\xC3\xBCrgen");
    EXPECT_EQ(FromFileBytes("\x80"), "\xE2\x82\xAC");
    EXPECT_EQ(FromFileBytes("\xE4\xD6\xDF"), "\xC3\xA4\xC3\x96\xC3\x9F");
}

RC_GTEST_PROP(FileLines, WhateverTheBytesTheTextIsUtf8, (const std::string& bytes)) {
    RC_ASSERT(IsValidUtf8(FromFileBytes(bytes)));
}

RC_GTEST_PROP(FileLines, EveryCharacterOfTheCodePageComesBack, ()) {
    // A single byte beyond ASCII is no UTF-8, so it is read in the code page.
    const auto byte = *rc::gen::inRange(0xA0, 0x100);
    const std::string bytes(1, static_cast<char>(byte));
    RC_ASSERT(ToFileBytes(FromFileBytes(bytes)) == bytes);
}

TEST(Utf8, IsToldFromOtherBytes) {
    EXPECT_TRUE(IsValidUtf8(""));
    EXPECT_TRUE(IsValidUtf8("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"));
    EXPECT_FALSE(IsValidUtf8("\xC3")) << "cut off";
    EXPECT_FALSE(IsValidUtf8("\xE2\x82")) << "cut off";
    EXPECT_FALSE(IsValidUtf8("\x80")) << "a byte in the middle alone";
    EXPECT_FALSE(IsValidUtf8("\xC0\xAF")) << "too long a form";
    EXPECT_FALSE(IsValidUtf8("\xE0\x80\xAF")) << "too long a form";
    EXPECT_FALSE(IsValidUtf8("\xED\xA0\x80")) << "half of a pair";
    EXPECT_FALSE(IsValidUtf8("\xF4\x90\x80\x80")) << "beyond the last character";
    EXPECT_FALSE(IsValidUtf8("\xFF"));
}

TEST(FirstCharactersOfAName, CountCharactersNotBytes) {
    EXPECT_EQ(FirstCharacters("\xC3\xA4\xC3\xB6\xC3\xBCx", 3), "\xC3\xA4\xC3\xB6\xC3\xBC");
    EXPECT_EQ(FirstCharacters("Otto", 20), "Otto");
    EXPECT_EQ(FirstCharacters("Otto", 0), "");
}

TEST(FirstCharactersOfAName, LeaveControlCharactersOut) {
    EXPECT_EQ(FirstCharacters("O\tt\nt\x7Fo\x1B", 20), "Otto");
    EXPECT_EQ(FirstCharacters("a\0b"sv, 20), "ab");
}

/// Characters that would break a line or turn its direction.
constexpr std::string_view BreaksAndTurns[] = {
    "\u0085", "\u061C", "\u200E", "\u200F", "\u2028", "\u2029", "\u202A", "\u202B",
    "\u202C", "\u202D", "\u202E", "\u2066", "\u2067", "\u2068", "\u2069",
};

TEST(Names, HaveABlankForWhatBreaksALineOrTurnsItsDirection) {
    for (const auto character : BreaksAndTurns) {
        const auto name = Concat("a", character, "b");
        EXPECT_EQ(FirstCharacters(name, 20), "a b") << ::testing::PrintToString(name);
        EXPECT_EQ(OneLine(name), "a b") << ::testing::PrintToString(name);
        EXPECT_EQ(FirstCharacters(name, 2), "a ") << "it counts";
    }
    EXPECT_EQ(OneLine("a\tb\x7F\x1B"), "a b  ");
    EXPECT_EQ(OneLine("\u00D6nd\u00F3ttr \u200B\u2027\u202F\u2065\u206A"),
              "\u00D6nd\u00F3ttr \u200B\u2027\u202F\u2065\u206A")
        << "their neighbours stay";
}

}  // namespace
}  // namespace plasmos::testing
