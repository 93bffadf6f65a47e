// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "files/disk_file.h"

namespace plasmos {

/// Where a path leads when its links are followed, whether anything is there or not; the folder as it is
/// known without links where it is there.
std::string WithoutLinks(const std::string& path);

/// What was renamed or made in a folder is on the disk itself when this returns, where the system can do that.
void FlushFolder(const std::string& folder);

/// What a file is known by, whatever its names.
struct FileIdentity {
    bool Known = false;         ///< false: there is none
    bool KeepsNothing = false;  ///< a device that is no terminal: what is written to it twice is not mixed
    std::uint64_t Disk = 0;
    std::uint64_t Number = 0;

    bool IsSameAs(const FileIdentity& other) const {
        return Known && other.Known && !KeepsNothing && Disk == other.Disk && Number == other.Number;
    }
};
FileIdentity IdentityOf(const std::string& path);
FileIdentity IdentityOf(const DiskFile& file);

}  // namespace plasmos
