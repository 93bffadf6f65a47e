// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/game_files.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "files/disk_file.h"
#include "files/encoding.h"
#include "files/file_draft.h"
#include "files/file_place.h"
#include "files/line_collector.h"
#include "files/runtime_error.h"
#include "files/text.h"

namespace plasmos {

namespace fs = std::filesystem;

namespace {

int ErrorNumber(int reason, const std::string& path) {
    switch (reason) {
        case ENOENT: {
            std::error_code error;
            return fs::is_directory(fs::path(WithoutLinks(path)).parent_path(), error) ? 53 : 76;
        }
        case ENOTDIR: return 76;
        case EACCES:
        case EPERM:
        case EROFS: return 70;
        case EISDIR:
        case EEXIST:
        case ELOOP:
        case ENAMETOOLONG:
        case NotAFile: return 75;
        case ENOSPC:
        case EFBIG:
#ifdef EDQUOT
        case EDQUOT:
#endif
            return 61;
        default: return 57;
    }
}

std::string_view ErrorName(int number) {
    switch (number) {
        case 53: return "File not found";
        case 61: return "Disk full";
        case 70: return "Permission denied";
        case 75: return "Path/File access error";
        case 76: return "Path not found";
        default: return "Device I/O error";
    }
}

[[noreturn]] void RaiseFileError(int number, const std::string& path, int reason) {
    throw RuntimeError(number, Concat(ErrorName(number), ": ", path, " (", ReasonText(reason), ")"));
}

void RaiseUnlessDone(const std::string& path, int reason) {
    if (reason != 0) {
        RaiseFileError(ErrorNumber(reason, path), path, reason);
    }
}

DiskFile OpenFile(const std::string& path, OpenFor use) {
    int reason = 0;
    DiskFile file = OpenDiskFile(path, use, reason);
    RaiseUnlessDone(path, reason);
    return file;
}

}  // namespace

std::string DataFolder::PathOf(std::string_view name) const {
    return name.empty() ? folder_ : (fs::path(folder_) / name).string();
}

void DataFolder::MakeFolder() {
    std::error_code error;
    if (fs::is_directory(folder_, error)) {
        for (const auto name : {NamesFile, MoveFile, OptionsFile}) {
            RemoveAbandonedDrafts(PathOf(name));
        }
        return;
    }
    if (fs::exists(folder_, error)) {
        RaiseFileError(75, folder_, EEXIST);
    }
    if (!fs::create_directories(folder_, error) && error) {
        const int reason = error.value();
        const bool leadsNowhere = reason == ENOENT || reason == EEXIST;
        RaiseFileError(leadsNowhere ? 76 : ErrorNumber(reason, folder_), folder_, leadsNowhere ? ENOENT : reason);
    }
}

bool DataFolder::Exists(std::string_view name) const {
    std::error_code error;
    return fs::exists(PathOf(name), error);
}

void DataFolder::Append(std::string_view name, std::string_view text) {
    const auto path = PathOf(name);
    RaiseUnlessDone(path, OpenFile(path, OpenFor::Appending).Append(ToFileBytes(text)));
}

void DataFolder::Rewrite(std::string_view name, std::string_view text) {
    const auto path = PathOf(name);
    FileDraft draft;
    RaiseUnlessDone(path, draft.Open(path));
    RaiseUnlessDone(path, draft.Write(ToFileBytes(text)));
    RaiseUnlessDone(path, draft.Commit());
}

std::vector<std::string> DataFolder::ReadLines(std::string_view name, int most) const {
    const auto path = PathOf(name);
    const DiskFile file = OpenFile(path, OpenFor::Reading);
    LineCollector lines(most);
    char bytes[16384];
    for (std::size_t count = 1; count > 0 && !lines.Full();) {
        RaiseUnlessDone(path, file.Read(bytes, sizeof bytes, count));
        lines.Take({bytes, count});
    }
    return lines.Lines();
}

}  // namespace plasmos
