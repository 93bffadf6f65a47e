// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace plasmos {

/// Why an operation on a file failed: 0, it did not; a number of the system (ENOENT and so on); or this one:
/// a pipe or a device stands where a file is wanted.
inline constexpr int NotAFile = -1;
std::string ReasonText(int reason);

/// An open file of the system; it is closed with its owner. What answers an `int` answers a reason.
class DiskFile {
public:
    DiskFile() = default;
    explicit DiskFile(int number) : number_(number) {}
    DiskFile(DiskFile&& other) noexcept : number_(other.number_) { other.number_ = -1; }
    DiskFile& operator=(DiskFile&& other) noexcept;
    ~DiskFile() { Close(); }

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    int Close();

    /// Up to `size` bytes; `count` is 0 at the end of the file.
    int Read(char* bytes, std::size_t size, std::size_t& count) const;
    /// Writes all of a text; `written` tells how far it came.
    int Write(std::string_view bytes, std::size_t& written) const;
    int Write(std::string_view bytes) const;
    /// Writes all of a text at the end of a file opened for appending, or nothing: what could be written
    /// in part only is taken back.
    int Append(std::string_view bytes) const;
    /// The same for a file that this program has claimed.
    int AppendToClaimed(std::string_view bytes) const;
    /// Whatever the system would tell of what was written when the file is closed.
    int Settle() const;
    /// What was written is on the disk itself when this returns, and not in the system's memory alone.
    int Flush() const;

    /// Marks the file as this program's as long as it is open. False: it is another's. (Where the system marks none,
    /// it is always this program's.)
    bool Claim() const;
    /// Whether its path leads nowhere any more: the file was removed, or its folder.
    bool IsGone() const;

private:
    int number_ = -1;
};

enum class OpenFor { Reading, Appending, Draft };

/// Opens a file without ever waiting for it; a folder, a pipe or a device is refused. For appending the
/// file is made when it is missing, for a draft it must be missing. Not open: the reason tells why.
DiskFile OpenDiskFile(const std::string& path, OpenFor use, int& reason);

/// Why an existing file may not be written, by anybody's rights or by its own marks; 0: it may, or is missing.
int WhyNotWritable(const std::string& path);

}  // namespace plasmos
