// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "files/disk_file.h"

namespace plasmos {

/// What is written in place, as it comes: standard output, a pipe, a terminal, a device. It waits for
/// whoever reads, but not for ever once `stop` is set. Answers are reasons, as in DiskFile; EINTR: the wait
/// was ended by `stop`.
class DiskStream {
public:
    explicit DiskStream(std::function<bool()> stop) : stop_(std::move(stop)) {}

    /// Whether a path leads to a stream rather than to a file, be it missing.
    static bool Is(const std::string& path);

    int OpenStandardOutput();
    int Open(const std::string& path);
    bool IsOpen() const { return file_.IsOpen(); }
    int Write(std::string_view bytes) const;
    int Close();
    const DiskFile& File() const { return file_; }

private:
    int TakeNumber(int number);

    std::function<bool()> stop_;
    DiskFile file_;
};

}  // namespace plasmos
