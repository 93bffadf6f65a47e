// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/disk_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#ifdef _WIN32
#include <io.h>
#else
#include <sys/file.h>
#include <unistd.h>
#endif

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace plasmos {

namespace fs = std::filesystem;

// The calls of the system under one name each.
namespace {

#ifdef _WIN32

constexpr int Common = _O_BINARY | _O_NOINHERIT;

int Open(const std::string& path, int flags) {
    return ::_open(path.c_str(), flags | Common, _S_IREAD | _S_IWRITE);
}
int CloseNumber(int file) {
    return ::_close(file);
}
int Duplicate(int file) {
    return ::_dup(file);
}
long long ReadSome(int file, char* bytes, std::size_t size) {
    return ::_read(file, bytes, static_cast<unsigned>(size));
}
long long WriteSome(int file, const char* bytes, std::size_t size) {
    return ::_write(file, bytes, static_cast<unsigned>(size));
}
long long PlaceIn(int file) {
    return ::_telli64(file);
}
long long SizeOf(int file) {
    return ::_filelengthi64(file);
}
void CutTo(int file, long long size) {
    ::_chsize_s(file, size);
}
int FlushNumber(int file) {
    return ::_commit(file);
}

#else

// What is no file after all must not be waited for; what is one does not know the difference.
constexpr int Common = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

int Open(const std::string& path, int flags) {
    constexpr mode_t forEverybody = 0666;
    return ::open(path.c_str(), flags | Common, forEverybody);
}
int CloseNumber(int file) {
    return ::close(file);
}
int Duplicate(int file) {
    return ::fcntl(file, F_DUPFD_CLOEXEC, 0);
}
long long ReadSome(int file, char* bytes, std::size_t size) {
    return ::read(file, bytes, size);
}
long long WriteSome(int file, const char* bytes, std::size_t size) {
    return ::write(file, bytes, size);
}
long long PlaceIn(int file) {
    return ::lseek(file, 0, SEEK_CUR);
}
long long SizeOf(int file) {
    struct stat status {};
    return ::fstat(file, &status) == 0 ? status.st_size : -1;
}
void CutTo(int file, long long size) {
    const int cut = ::ftruncate(file, size);
    static_cast<void>(cut);
}
int FlushNumber(int file) {
    return ::fdatasync(file);
}

#endif

int FlagsOf(OpenFor use) {
    switch (use) {
        case OpenFor::Reading: return O_RDONLY;
        case OpenFor::Appending: return O_WRONLY | O_CREAT | O_APPEND;
        case OpenFor::Draft: return O_WRONLY | O_CREAT | O_EXCL;
    }
    return O_RDONLY;
}

int ReasonOfKind(fs::file_type type) {
    switch (type) {
        case fs::file_type::directory: return EISDIR;
        case fs::file_type::none:
        case fs::file_type::not_found:
        case fs::file_type::regular: return 0;
        default: return NotAFile;
    }
}

int LastReason() {
    return errno == 0 ? EIO : errno;
}

/// Keeps other games from a file while a line is written to it, or taken back. Who holds it for long is not
/// waited for.
class AloneWith {
public:
#ifdef _WIN32
    explicit AloneWith(int) {}
#else
    explicit AloneWith(int number) : number_(number) {
        constexpr int mostTries = 20;
        for (int tries = 0; tries < mostTries && ::flock(number_, LOCK_EX | LOCK_NB) != 0; ++tries) {
            ::usleep(1000);
        }
    }
    ~AloneWith() {
        ::flock(number_, LOCK_UN);
    }
#endif
    AloneWith(const AloneWith&) = delete;
    AloneWith& operator=(const AloneWith&) = delete;

#ifndef _WIN32
private:
    int number_;
#endif
};

}  // namespace

std::string ReasonText(int reason) {
    return reason == NotAFile ? "a pipe or a device is in its place"
                              : std::generic_category().message(reason == 0 ? EIO : reason);
}

DiskFile& DiskFile::operator=(DiskFile&& other) noexcept {
    if (this != &other) {
        Close();
        number_ = other.number_;
        other.number_ = -1;
    }
    return *this;
}

int DiskFile::Close() {
    if (!IsOpen()) {
        return 0;
    }
    const int number = number_;
    number_ = -1;
    return CloseNumber(number) == 0 ? 0 : LastReason();
}

int DiskFile::Read(char* bytes, std::size_t size, std::size_t& count) const {
    for (;;) {
        const auto read = ReadSome(number_, bytes, size);
        if (read >= 0) {
            count = static_cast<std::size_t>(read);
            return 0;
        }
        if (errno != EINTR) {
            return LastReason();
        }
    }
}

int DiskFile::Write(std::string_view bytes, std::size_t& written) const {
    written = 0;
    while (written < bytes.size()) {
        const auto count = WriteSome(number_, bytes.data() + written, bytes.size() - written);
        if (count >= 0) {
            written += static_cast<std::size_t>(count);
        } else if (errno != EINTR) {
            return LastReason();
        }
    }
    return 0;
}

int DiskFile::Write(std::string_view bytes) const {
    std::size_t written = 0;
    return Write(bytes, written);
}

int DiskFile::Append(std::string_view bytes) const {
    const AloneWith alone(number_);
    return AppendToClaimed(bytes);
}

int DiskFile::AppendToClaimed(std::string_view bytes) const {
    std::size_t written = 0;
    int reason = Write(bytes, written);
    if (reason == 0) {
        reason = Settle();
    }
    if (reason != 0 && written > 0) {
        // Another program's line behind it would go with it; then it must stay.
        const auto end = PlaceIn(number_);
        if (end >= 0 && end == SizeOf(number_)) {
            CutTo(number_, end - static_cast<long long>(written));
        }
    }
    return reason;
}

// Some disks tell of their troubles only when a file is closed, and then at any of its numbers.
int DiskFile::Settle() const {
    DiskFile second(Duplicate(number_));
    return second.IsOpen() ? second.Close() : LastReason();
}

// What knows no difference between written and on the disk has nothing to flush.
int DiskFile::Flush() const {
    return FlushNumber(number_) == 0 || errno == EINVAL || errno == ENOTSUP ? 0 : LastReason();
}

#ifdef _WIN32

bool DiskFile::Claim() const {
    return true;
}

bool DiskFile::IsGone() const {
    return false;  // the system itself does not remove a file that a program has open
}

#else

bool DiskFile::Claim() const {
    return ::flock(number_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool DiskFile::IsGone() const {
    struct stat status {};
    return ::fstat(number_, &status) != 0 || status.st_nlink == 0;
}

#endif

DiskFile OpenDiskFile(const std::string& path, OpenFor use, int& reason) {
    std::error_code error;
    reason = ReasonOfKind(fs::status(path, error).type());
    if (reason != 0) {
        return {};
    }
    errno = 0;
    DiskFile file(Open(path, FlagsOf(use)));
    if (!file.IsOpen()) {
        reason = LastReason();
        return {};
    }
#ifndef _WIN32
    struct stat status {};
    if (::fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode)) {
        reason = NotAFile;
        return {};
    }
#endif
    return file;
}

// Whoever may write everything keeps to the marks of a file all the same.
int WhyNotWritable(const std::string& path) {
    std::error_code error;
    const auto status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found) {
        return 0;
    }
    if (const int reason = ReasonOfKind(status.type()); reason != 0) {
        return reason;
    }
    constexpr auto writable = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if (status.type() == fs::file_type::regular && (status.permissions() & writable) == fs::perms::none) {
        return EACCES;
    }
    errno = 0;
    const DiskFile file(Open(path, O_WRONLY));
    return file.IsOpen() ? 0 : LastReason();
}

}  // namespace plasmos
