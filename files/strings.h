// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace plasmos {

/// A text without the blanks, tabs and line ends around it.
constexpr std::string_view Trim(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n\v\f";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace plasmos
