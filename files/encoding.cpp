// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/encoding.h"

#include <array>
#include <cstdint>

namespace plasmos {

namespace {

/// The code points of the bytes 0x80 to 0x9F in Windows-1252; 0: the byte stands for itself.
constexpr std::array<std::uint16_t, 32> HighBytes = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                                     0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr char32_t Broken = 0xFFFFFFFF;

/// Takes one character off the front of a text; Broken where the bytes are no UTF-8.
char32_t NextCharacter(std::string_view& text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(0);
    const std::size_t length = first < 0x80          ? 1
                               : (first >> 5U) == 6  ? 2
                               : (first >> 4U) == 14 ? 3
                               : (first >> 3U) == 30 ? 4
                                                     : 0;
    if (length == 0 || length > text.size()) {
        text.remove_prefix(1);
        return Broken;
    }
    char32_t character = length == 1 ? first : first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U) {
            text.remove_prefix(1);
            return Broken;
        }
        character = character << 6U | (byte(i) & 0x3FU);
    }
    constexpr char32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    text.remove_prefix(length);
    return character < least[length] || surrogate || character > 0x10FFFF ? Broken : character;
}

void AppendUtf8(std::string& text, char32_t character) {
    const auto put = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | character >> 6U);
        put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        put(0xE0 | character >> 12U);
        put(0x80 | (character >> 6U & 0x3F));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xF0 | character >> 18U);
        put(0x80 | (character >> 12U & 0x3F));
        put(0x80 | (character >> 6U & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

char FileByte(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<char>(static_cast<unsigned char>(character));
    }
    for (std::size_t i = 0; i < HighBytes.size(); ++i) {
        if (HighBytes[i] == character) {
            return static_cast<char>(static_cast<unsigned char>(0x80 + i));
        }
    }
    return '?';
}

bool IsControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

/// Line ends that are no control characters of old, and marks that turn the direction of all that follows.
bool BreaksOrTurns(char32_t character) {
    return character == 0x85 || character == 0x61C || character == 0x200E || character == 0x200F ||
           (character >= 0x2028 && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069);
}

}  // namespace

std::string ToFileBytes(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() + 2);
    char last = '\0';
    while (!text.empty()) {
        const char byte = FileByte(NextCharacter(text));
        if (byte == '\n' && last != '\r') {
            bytes += '\r';
        }
        bytes += byte;
        last = byte;
    }
    return bytes;
}

bool IsValidUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        if (NextCharacter(bytes) == Broken) {
            return false;
        }
    }
    return true;
}

std::string FromFileBytes(std::string_view bytes) {
    if (IsValidUtf8(bytes)) {
        return std::string(bytes);
    }
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool high = byte >= 0x80 && byte < 0xA0 && HighBytes[byte - 0x80U] != 0;
        AppendUtf8(text, high ? HighBytes[byte - 0x80U] : byte);
    }
    return text;
}

std::string OneLine(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const char32_t character = NextCharacter(text);
        if (character != Broken) {
            AppendUtf8(line, IsControl(character) || BreaksOrTurns(character) ? U' ' : character);
        }
    }
    return line;
}

std::string FirstCharacters(std::string_view text, int most) {
    std::string kept;
    for (int count = 0; count < most && !text.empty();) {
        const char32_t character = NextCharacter(text);
        if (character != Broken && (!IsControl(character) || BreaksOrTurns(character))) {
            AppendUtf8(kept, BreaksOrTurns(character) ? U' ' : character);
            ++count;
        }
    }
    return kept;
}

}  // namespace plasmos
