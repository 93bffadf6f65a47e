// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/disk_stream.h"

#include <fcntl.h>
#ifdef _WIN32
#include <io.h>
#else
#include <poll.h>
#include <unistd.h>
#endif

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <filesystem>
#include <system_error>

#include "files/platform.h"

namespace plasmos {

namespace fs = std::filesystem;

#ifdef _WIN32

bool DiskStream::Is(const std::string& path) {
    std::error_code error;
    return fs::status(path, error).type() == fs::file_type::character;
}

int DiskStream::TakeNumber(int number) {
    file_ = DiskFile(::_dup(number));
    return file_.IsOpen() ? 0 : errno;
}

int DiskStream::Open(const std::string& path) {
    file_ = DiskFile(::_open(path.c_str(), _O_WRONLY | _O_BINARY));
    return file_.IsOpen() ? 0 : errno;
}

int DiskStream::Write(std::string_view bytes) const {
    return file_.Write(bytes);
}

#else

namespace {

constexpr int Patience = 100;
/// So often a reader is still waited for when the program is to end.
constexpr int LastWaits = 10;
/// The number of the open file that a path such as /dev/stdout leads to; -1: it leads to none.
int OpenNumberOf(const std::string& path) {
    constexpr int mostLinks = 40;
    std::error_code error;
    const fs::path numbers = fs::canonical("/proc/self/fd", error);
    fs::path place = fs::absolute(path, error);
    for (int links = 0; links < mostLinks; ++links) {
        const std::string name = place.filename().string();
        if (fs::canonical(place.parent_path(), error) == numbers && !error && !numbers.empty()) {
            int number = -1;
            const auto end = std::from_chars(name.data(), name.data() + name.size(), number);
            return end.ec == std::errc{} && end.ptr == name.data() + name.size() ? number : -1;
        }
        const fs::path target = fs::read_symlink(place, error);
        if (error) {
            return -1;
        }
        place = place.parent_path() / target;
    }
    return -1;
}

/// False: nobody makes room, and the program is to end.
bool WaitForRoom(const DiskFile& file, const std::function<bool()>& stop) {
    for (int waits = 0; waits < LastWaits;) {
        pollfd waited{file.Number(), POLLOUT, 0};
        const int ready = ::poll(&waited, 1, Patience);
        if (ready > 0 || (ready < 0 && errno != EINTR)) {
            return true;
        }
        if (ready == 0 && stop()) {
            ++waits;
        }
    }
    return false;
}

}  // namespace

bool DiskStream::Is(const std::string& path) {
    std::error_code error;
    switch (fs::status(path, error).type()) {
        case fs::file_type::fifo:
        case fs::file_type::character: return true;
        default: return OpenNumberOf(path) >= 0;
    }
}

int DiskStream::TakeNumber(int number) {
    const int mode = ::fcntl(number, F_GETFL);
    if (mode < 0 || (mode & O_ACCMODE) == O_RDONLY) {
        return EBADF;
    }
    file_ = DiskFile(::fcntl(number, F_DUPFD_CLOEXEC, 0));
    return file_.IsOpen() ? 0 : errno;
}

// A pipe that nobody reads from yet cannot be opened without waiting.
int DiskStream::Open(const std::string& path) {
    if (const int number = OpenNumberOf(path); number >= 0) {
        return TakeNumber(number);
    }
    std::error_code error;
    const bool waits = fs::is_fifo(path, error);
    for (;;) {
        file_ = DiskFile(::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
        if (file_.IsOpen()) {
            return 0;
        }
        if (errno != EINTR && (errno != ENXIO || !waits)) {
            return errno;
        }
        if (stop_()) {
            return EINTR;
        }
        SleepMilliseconds(Patience / 4);
    }
}

int DiskStream::Write(std::string_view bytes) const {
    while (!bytes.empty()) {
        if (!WaitForRoom(file_, stop_)) {
            return EINTR;
        }
        // A pipe that has room at all takes so much at once.
        const auto count = ::write(file_.Number(), bytes.data(), std::min<std::size_t>(bytes.size(), PIPE_BUF));
        if (count >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EINTR && errno != EAGAIN) {
            return errno;
        }
    }
    return 0;
}

#endif

int DiskStream::OpenStandardOutput() {
    return TakeNumber(1);
}

int DiskStream::Close() {
    return file_.Close();
}

}  // namespace plasmos
