// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plasmos {

/// Splits the bytes of a file into lines as they come, so that neither a long file nor a long line
/// has to fit into memory. LF or CR LF ends a line; a byte order mark before the first is skipped; what
/// goes beyond 1000 bytes in a line is left out. The lines are UTF-8: see FromFileBytes.
class LineCollector {
public:
    /// At most `most` lines are collected.
    explicit LineCollector(int most) : most_(static_cast<std::size_t>(most)) {}

    bool Full() const { return lines_.size() >= most_; }
    void Take(std::string_view bytes);
    /// The lines; the file is at its end.
    std::vector<std::string> Lines();

private:
    void Finish();

    std::size_t most_;
    std::string line_;
    std::vector<std::string> lines_;
};

}  // namespace plasmos
