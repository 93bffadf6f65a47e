// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "files/disk_file.h"

namespace plasmos {

/// A file on its way to be replaced whole. It is written under a name that no other writer uses, be it
/// another program, in the folder of the file that its path leads to, and takes that file's place with
/// Commit(); without it the old file stays, and nothing else is left. Answers are reasons, as in DiskFile.
class FileDraft {
public:
    FileDraft() = default;
    FileDraft(FileDraft&& other) noexcept = default;
    FileDraft& operator=(FileDraft&& other) noexcept = delete;
    ~FileDraft();

    /// Opens the draft. A folder, a pipe, a device and a file that may not be written are refused.
    int Open(const std::string& path);
    bool IsOpen() const { return file_.IsOpen(); }
    int Write(std::string_view bytes) const { return file_.Write(bytes); }
    int Commit();
    /// The same, and a power cut right after it finds the file as it was written.
    int CommitForGood();

    /// The file that is replaced; links are followed.
    const std::string& Target() const { return target_; }

private:
    int OpenUnderFreeName();
    int TakePlace();
    void Discard();

    std::string target_;
    std::string draft_;
    DiskFile file_;
};

/// Removes the drafts of a file whose writers have ended without taking them away.
void RemoveAbandonedDrafts(const std::string& path);

}  // namespace plasmos
