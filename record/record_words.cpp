// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/record_words.h"

#include "files/encoding.h"

namespace plasmos {

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            quoted += '\\';
        }
        quoted += c;
    }
    return quoted + "\"";
}

bool TakeQuoted(std::string_view& line, std::string& text) {
    text.clear();
    std::size_t at = line.find_first_not_of(' ');
    if (at == std::string_view::npos || line[at] != '"') {
        return false;
    }
    for (++at; at < line.size() && line[at] != '"'; ++at) {
        if (line[at] == '\\' && ++at == line.size()) {
            return false;
        }
        text += line[at];
    }
    if (at >= line.size()) {
        return false;
    }
    line.remove_prefix(at + 1);
    return true;
}

std::string Shown(std::string_view line) {
    constexpr std::size_t most = 60;
    const auto text = OneLine(FromFileBytes(line.substr(0, most)));
    return line.size() > most ? text + "..." : text;
}

}  // namespace plasmos
