// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/file_place.h"

#ifndef _WIN32
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <filesystem>
#include <system_error>

namespace plasmos {

namespace fs = std::filesystem;

std::string WithoutLinks(const std::string& path) {
    constexpr int mostLinks = 40;
    std::error_code error;
    fs::path place = fs::absolute(path, error);
    for (int links = 0; links < mostLinks && fs::is_symlink(fs::symlink_status(place, error)); ++links) {
        const fs::path target = fs::read_symlink(place, error);
        if (error) {
            break;
        }
        place = place.parent_path() / target;
    }
    const fs::path folder = fs::canonical(place.parent_path(), error);
    return error ? place.string() : (folder / place.filename()).string();
}

void FlushFolder([[maybe_unused]] const std::string& folder) {
#ifndef _WIN32  // whose system keeps its folders by itself
    const DiskFile file(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file.IsOpen()) {
        static_cast<void>(file.Flush());
    }
#endif
}

#ifdef _WIN32

FileIdentity IdentityOf(const std::string&) {
    return {};
}
FileIdentity IdentityOf(const DiskFile&) {
    return {};
}

#else

namespace {

FileIdentity IdentityFrom(bool known, const struct stat& status, bool terminal) {
    return {known, S_ISCHR(status.st_mode) && !terminal, status.st_dev, status.st_ino};
}

}  // namespace

FileIdentity IdentityOf(const std::string& path) {
    struct stat status {};
    const bool known = ::stat(path.c_str(), &status) == 0;
    return IdentityFrom(known, status, false);
}

FileIdentity IdentityOf(const DiskFile& file) {
    struct stat status {};
    const bool known = ::fstat(file.Number(), &status) == 0;
    return IdentityFrom(known, status, ::isatty(file.Number()) != 0);
}

#endif

}  // namespace plasmos
