// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/line_collector.h"

#include <algorithm>
#include <utility>

#include "files/encoding.h"

namespace plasmos {

namespace {

constexpr std::size_t LongestLine = 1000;

/// A line of the greatest length without the character that the cut has broken at its end.
std::string_view WithoutBrokenEnd(std::string_view line) {
    constexpr std::size_t longestRest = 3;
    for (std::size_t rest = 0; rest <= longestRest; ++rest) {
        if (const auto whole = line.substr(0, line.size() - rest); IsValidUtf8(whole)) {
            return whole;
        }
    }
    return line;
}

}  // namespace

void LineCollector::Take(std::string_view bytes) {
    while (!bytes.empty() && !Full()) {
        const auto end = bytes.find('\n');
        const auto part = bytes.substr(0, end);
        line_.append(part.substr(0, LongestLine - std::min(LongestLine, line_.size())));
        if (end == std::string_view::npos) {
            return;
        }
        Finish();
        bytes.remove_prefix(end + 1);
    }
}

std::vector<std::string> LineCollector::Lines() {
    if (!line_.empty() && !Full()) {
        Finish();
    }
    return std::move(lines_);
}

void LineCollector::Finish() {
    std::string_view line = line_;
    if (lines_.empty() && line.substr(0, 3) == "\xEF\xBB\xBF") {
        line.remove_prefix(3);
    }
    if (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    if (line_.size() == LongestLine) {
        line = WithoutBrokenEnd(line);
    }
    lines_.push_back(FromFileBytes(line));
    line_.clear();
}

}  // namespace plasmos
