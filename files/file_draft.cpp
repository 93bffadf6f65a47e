// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/file_draft.h"

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <vector>

#include "files/file_place.h"
#include "files/platform.h"
#include "files/text.h"

namespace plasmos {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view DraftEnd = ".plasmos-draft";

/// How the names of a file's drafts begin; a long name leaves room for what comes behind.
std::string DraftBegin(const fs::path& target) {
    constexpr std::size_t most = 200;
    return target.filename().string().substr(0, most) + ".";
}

/// "4711-3": the number of the program and of the draft in it.
bool AreDraftNumbers(std::string_view text) {
    const auto dash = text.find('-');
    const auto isNumber = [](std::string_view digits) {
        return !digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos;
    };
    return dash != std::string_view::npos && isNumber(text.substr(0, dash)) && isNumber(text.substr(dash + 1));
}

bool IsDraft(std::string_view name, std::string_view begin) {
    return name.size() > begin.size() + DraftEnd.size() && name.substr(0, begin.size()) == begin &&
           name.substr(name.size() - DraftEnd.size()) == DraftEnd &&
           AreDraftNumbers(name.substr(begin.size(), name.size() - begin.size() - DraftEnd.size()));
}

/// Removes a draft that no living program claims.
void RemoveUnclaimed(const std::string& draft) {
    int reason = 0;
    const DiskFile file = OpenDiskFile(draft, OpenFor::Reading, reason);
#ifndef _WIN32  // the system itself does not remove a file that a program has open
    if (!file.IsOpen() || !file.Claim()) {
        return;
    }
#endif
    std::error_code error;
    fs::remove(draft, error);
}

}  // namespace

FileDraft::~FileDraft() {
    if (IsOpen()) {
        Discard();
    }
}

int FileDraft::Open(const std::string& path) {
    target_ = WithoutLinks(path);
    if (const int reason = WhyNotWritable(target_); reason != 0) {
        return reason;
    }
    return OpenUnderFreeName();
}

int FileDraft::OpenUnderFreeName() {
    static std::atomic<unsigned> drafts = 0;
    constexpr int mostTries = 1000;
    const fs::path target(target_);
    int reason = EEXIST;
    for (int tried = 0; tried < mostTries && reason == EEXIST; ++tried) {
        const auto name = Concat(DraftBegin(target), ProcessNumber(), "-", ++drafts, DraftEnd);
        draft_ = (target.parent_path() / name).string();
        file_ = OpenDiskFile(draft_, OpenFor::Draft, reason);
        if (file_.IsOpen() && !(file_.Claim() && !file_.IsGone())) {
            file_.Close();
            reason = EEXIST;
        }
    }
    return IsOpen() ? 0 : reason;
}

void FileDraft::Discard() {
    std::error_code error;
#ifdef _WIN32
    file_.Close();
    fs::remove(draft_, error);
#else
    fs::remove(draft_, error);
    file_.Close();
#endif
}

// A file that its folder does not let go of, such as one that is mounted there, takes the draft's content.
int FileDraft::TakePlace() {
    std::error_code error;
    fs::rename(draft_, target_, error);
    if (!error) {
        return 0;
    }
    const int reason = error.value();
    if (!fs::copy_file(draft_, target_, fs::copy_options::overwrite_existing, error)) {
        return reason;
    }
    fs::remove(draft_, error);
    return 0;
}

// The draft stays claimed until it has its place. What stands there now counts, not what stood there first.
int FileDraft::Commit() {
    int reason = file_.Settle();
    if (reason == 0) {
        reason = WhyNotWritable(target_);
    }
    if (reason == 0) {
        std::error_code error;
        if (const auto old = fs::status(target_, error); old.type() == fs::file_type::regular) {
            fs::permissions(draft_, old.permissions(), error);
        }
#ifdef _WIN32
        file_.Close();
#endif
        reason = TakePlace();
    }
    if (reason != 0) {
        Discard();
    }
    file_.Close();
    return reason;
}

int FileDraft::CommitForGood() {
    int reason = file_.Flush();
    if (reason == 0) {
        reason = Commit();
    }
    if (reason == 0) {
        FlushFolder(fs::path(target_).parent_path().string());
    }
    return reason;
}

void RemoveAbandonedDrafts(const std::string& path) {
    const fs::path target(WithoutLinks(path));
    const std::string begin = DraftBegin(target);
    std::vector<std::string> found;
    std::error_code error;
    for (fs::directory_iterator entry(target.parent_path(), error), end; !error && entry != end;
         entry.increment(error)) {
        if (IsDraft(entry->path().filename().string(), begin)) {
            found.push_back(entry->path().string());
        }
    }
    for (const std::string& draft : found) {
        RemoveUnclaimed(draft);
    }
}

}  // namespace plasmos
