// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/line_source.h"

#include <utility>

#include "files/text.h"
#include "sim/options.h"

namespace plasmos {

namespace {

constexpr std::size_t PieceSize = 1 << 16;
constexpr std::size_t LongestLine = 1 << 16;

}  // namespace

LineSource::LineSource(std::string path) : path_(std::move(path)) {
    int reason = 0;
    file_ = OpenDiskFile(path_, OpenFor::Reading, reason);
    if (!file_.IsOpen()) {
        throw UsageError(Concat("--merge: ", path_, " cannot be opened: ", ReasonText(reason)));
    }
}

bool LineSource::Fill() {
    bytes_.erase(0, used_);
    used_ = 0;
    const auto before = bytes_.size();
    bytes_.resize(before + PieceSize);
    std::size_t count = 0;
    if (const int reason = file_.Read(bytes_.data() + before, PieceSize, count); reason != 0) {
        throw UsageError(Concat("--merge: ", path_, " cannot be read: ", ReasonText(reason)));
    }
    bytes_.resize(before + count);
    return count > 0;
}

bool LineSource::Next(std::string& line) {
    auto end = bytes_.find('\n', used_);
    while (end == std::string::npos && bytes_.size() - used_ <= LongestLine && Fill()) {
        end = bytes_.find('\n', used_);
    }
    if (end == std::string::npos && used_ == bytes_.size()) {
        return false;
    }
    ++number_;
    if (end == std::string::npos) {
        throw UsageError(Concat("--merge: ", path_, ", line ", number_, ": the line has no end; is the file cut off?"));
    }
    line = bytes_.substr(used_, end - used_);
    used_ = end + 1;
    return true;
}

}  // namespace plasmos
