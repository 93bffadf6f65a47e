// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/output.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "model/text.h"

namespace plasmos {

namespace fs = std::filesystem;

namespace {

std::string Reason(int error) {
    return std::generic_category().message(error == 0 ? EIO : error);
}

/// Devices and pipes are written in place; what is new or a regular file is drafted first.
bool IsDrafted(const std::string& name) {
    std::error_code error;
    const auto status = fs::status(name, error);
    return status.type() == fs::file_type::not_found || status.type() == fs::file_type::regular;
}

}  // namespace

Output::Output(std::string name) : name_(std::move(name)) {
    if (name_.empty()) {
        file_ = stdout;
        return;
    }
    draft_ = IsDrafted(name_) ? name_ + ".new" : "";
    errno = 0;
    file_ = std::fopen(draft_.empty() ? name_.c_str() : draft_.c_str(), "wb");
    if (file_ == nullptr) {
        throw OutputError(Concat(name_, " cannot be written: ", Reason(errno)));
    }
}

Output::~Output() {
    if (file_ != nullptr && file_ != stdout) {
        std::fclose(file_);
    }
    if (!draft_.empty()) {
        std::error_code error;
        fs::remove(draft_, error);
    }
}

void Output::Fail(int reason) {
    throw OutputError(
        Concat(name_.empty() ? "standard output" : name_.c_str(), " cannot be written: ", Reason(reason)));
}

void Output::Write(std::string_view text) {
    errno = 0;
    if (std::fwrite(text.data(), 1, text.size(), file_) != text.size()) {
        Fail(errno);
    }
}

void Output::Finish() {
    errno = 0;
    if (std::fflush(file_) != 0 || std::ferror(file_) != 0) {
        Fail(errno);
    }
    if (file_ == stdout) {
        return;
    }
    std::FILE* const file = file_;
    file_ = nullptr;
    if (std::fclose(file) != 0) {
        Fail(errno);
    }
}

void Output::Commit() {
    if (draft_.empty()) {
        return;
    }
    std::error_code error;
    fs::rename(draft_, name_, error);
    if (error) {
        Fail(error.value());
    }
    draft_.clear();
}

}  // namespace plasmos
