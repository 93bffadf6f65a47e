// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "files/disk_file.h"

namespace plasmos {

/// The lines of a file, one after the other, however large it is. What cannot be read raises UsageError.
class LineSource {
public:
    explicit LineSource(std::string path);

    /// The next line without its end. False: there is none. A last line without an end is no whole one, and is told.
    bool Next(std::string& line);
    /// The number of the line that came last, from 1.
    std::int64_t Number() const { return number_; }
    const std::string& Path() const { return path_; }

private:
    bool Fill();

    std::string path_;
    DiskFile file_;
    std::string bytes_;
    std::size_t used_ = 0;
    std::int64_t number_ = 0;
};

}  // namespace plasmos
