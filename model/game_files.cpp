// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/game_files.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <system_error>

#include "model/encoding.h"
#include "model/line_collector.h"
#include "model/platform.h"
#include "model/runtime_error.h"
#include "model/text.h"

namespace plasmos {

namespace fs = std::filesystem;

namespace {

int ErrorNumber(int systemError) {
    switch (systemError) {
        case ENOENT: return 53;
        case ENOTDIR: return 76;
        case EACCES:
        case EPERM:
        case EROFS: return 70;
        case EISDIR:
        case EEXIST: return 75;
        case ENOSPC:
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

[[noreturn]] void RaiseFileError(const std::string& path, int systemError) {
    const int number = ErrorNumber(systemError);
    throw RuntimeError(number, Concat(ErrorName(number), ": ", path, " (",
                                      std::generic_category().message(systemError == 0 ? EIO : systemError), ")"));
}

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

/// Opens a file; an error names it as the person knows it.
File OpenFile(const std::string& path, const char* mode, const std::string& knownAs) {
    errno = 0;
    File file(std::fopen(path.c_str(), mode));
    if (!file) {
        RaiseFileError(knownAs, errno);
    }
    return file;
}

/// A name that no other writer uses, be it another program: what is written here is renamed when it is
/// whole.
std::string DraftName(const std::string& path) {
    static std::atomic<unsigned> drafts = 0;
    return Concat(path, ".", ProcessNumber(), "-", static_cast<int>(++drafts), ".new");
}

void WriteAll(File file, const std::string& path, std::string_view bytes) {
    errno = 0;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    const bool flushed = std::fflush(file.get()) == 0;
    const int reason = errno;
    const bool closed = std::fclose(file.release()) == 0;
    if (!written || !flushed || !closed) {
        RaiseFileError(path, written && flushed ? errno : reason);
    }
}

}  // namespace

std::string DataFolder::PathOf(std::string_view name) const {
    return name.empty() ? folder_ : (fs::path(folder_) / name).string();
}

void DataFolder::MakeFolder() {
    std::error_code error;
    if (fs::is_directory(folder_, error)) {
        return;
    }
    if (fs::exists(folder_, error)) {
        RaiseFileError(folder_, EEXIST);
    }
    if (!fs::create_directories(folder_, error) && error) {
        RaiseFileError(folder_, error.value());
    }
}

bool DataFolder::Exists(std::string_view name) const {
    std::error_code error;
    return fs::exists(PathOf(name), error);
}

void DataFolder::Append(std::string_view name, std::string_view text) {
    const auto path = PathOf(name);
    WriteAll(OpenFile(path, "ab", path), path, ToFileBytes(text));
}

void DataFolder::Rewrite(std::string_view name, std::string_view text) {
    const auto path = PathOf(name);
    const auto draft = DraftName(path);
    std::error_code error;
    if (fs::is_directory(path, error)) {
        RaiseFileError(path, EISDIR);
    }
    try {
        WriteAll(OpenFile(draft, "wb", path), path, ToFileBytes(text));
        fs::rename(draft, path, error);
    } catch (const RuntimeError&) {
        fs::remove(draft, error);
        throw;
    }
    if (error) {
        const int reason = error.value();
        fs::remove(draft, error);
        RaiseFileError(path, reason);
    }
}

std::vector<std::string> DataFolder::ReadLines(std::string_view name, int most) const {
    const auto path = PathOf(name);
    std::error_code error;
    if (fs::is_directory(path, error)) {
        RaiseFileError(path, EISDIR);
    }
    const File file = OpenFile(path, "rb", path);
    LineCollector lines(most);
    char bytes[16384];
    while (!lines.Full()) {
        const auto count = std::fread(bytes, 1, sizeof bytes, file.get());
        lines.Take({bytes, count});
        if (count < sizeof bytes) {
            if (std::ferror(file.get()) != 0) {
                RaiseFileError(path, errno);
            }
            break;
        }
    }
    return lines.Lines();
}

}  // namespace plasmos
