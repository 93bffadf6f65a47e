// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <charconv>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>

namespace plasmos {

/// A text of at most `Capacity` bytes of UTF-8 that lives inside its owner. A longer text is cut at
/// the end of the last character that fits.
template <int Capacity>
class FixedText {
public:
    static_assert(Capacity < 65536);

    constexpr FixedText() = default;
    constexpr FixedText(std::string_view text) { *this = text; }
    constexpr FixedText(const char* text) { *this = std::string_view(text); }

    constexpr FixedText& operator=(std::string_view text) {
        auto length = std::min(text.size(), static_cast<std::size_t>(Capacity));
        while (length < text.size() && length > 0 && IsContinuation(text[length])) {
            --length;
        }
        std::copy_n(text.begin(), length, text_);
        length_ = static_cast<Length>(length);
        return *this;
    }

    constexpr FixedText& operator=(const char* text) { return *this = std::string_view(text); }

    constexpr operator std::string_view() const { return {text_, length_}; }
    constexpr std::string_view View() const { return {text_, length_}; }
    std::string String() const { return std::string(View()); }
    constexpr bool Empty() const { return length_ == 0; }

    constexpr FixedText& operator+=(std::string_view more) {
        const auto room = static_cast<std::size_t>(Capacity - length_);
        const auto added = std::min(more.size(), room);
        std::copy_n(more.begin(), added, text_ + length_);
        length_ = static_cast<Length>(length_ + added);
        return *this;
    }

    friend constexpr bool operator==(const FixedText& a, const FixedText& b) { return a.View() == b.View(); }
    friend constexpr bool operator==(const FixedText& a, std::string_view b) { return a.View() == b; }
    friend constexpr bool operator==(const FixedText& a, const char* b) { return a.View() == b; }

private:
    using Length = std::conditional_t<(Capacity < 256), std::uint8_t, std::uint16_t>;

    static constexpr bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

    Length length_ = 0;
    char text_[Capacity]{};
};

inline void AppendPiece(std::string& text, std::string_view piece) {
    text.append(piece);
}

inline void AppendPiece(std::string& text, std::integral auto number) {
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    text.append(digits, end);
}

/// Joins texts and whole numbers (plain decimal, no blanks) to one text.
template <class... Pieces>
std::string Concat(const Pieces&... pieces) {
    std::string text;
    (AppendPiece(text, pieces), ...);
    return text;
}

/// Takes an expected beginning off a line. False: it begins otherwise, and is left as it is.
constexpr bool TakeWord(std::string_view& line, std::string_view word) {
    if (line.substr(0, word.size()) != word) {
        return false;
    }
    line.remove_prefix(word.size());
    return true;
}

/// Takes a whole number off a line, with the blank before it. False: there is none, and the line is left as it is.
inline bool TakeNumber(std::string_view& line, int& number) {
    std::string_view rest = line;
    TakeWord(rest, " ");
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    if (error != std::errc()) {
        return false;
    }
    line = rest.substr(static_cast<std::size_t>(end - rest.data()));
    return true;
}

}  // namespace plasmos
