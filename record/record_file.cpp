// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/record_file.h"

#include "files/disk_file.h"
#include "files/file_draft.h"

namespace plasmos {

namespace {

ReadRecord Unread(const std::string& path, std::string_view reason) {
    ReadRecord read;
    read.Fault.Text = Concat(path, " cannot be opened: ", reason);
    return read;
}

}  // namespace

ReadRecord ReadRecordFile(const std::string& path) {
    int reason = 0;
    const DiskFile file = OpenDiskFile(path, OpenFor::Reading, reason);
    if (!file.IsOpen()) {
        return Unread(path, ReasonText(reason));
    }
    std::string text;
    char bytes[65536];
    for (std::size_t count = 1; count > 0;) {
        if (const int fault = file.Read(bytes, sizeof bytes, count); fault != 0) {
            return Unread(path, ReasonText(fault));
        }
        text.append(bytes, count);
        if (text.size() > LargestRecord) {
            return Unread(path, Concat("it is larger than ", LargestRecord >> 20U, " MB, which no record is"));
        }
    }
    return ParseRecord(text);
}

std::string WriteRecordFile(const std::string& path, std::string_view text) {
    FileDraft draft;
    int reason = draft.Open(path);
    if (reason == 0) {
        reason = draft.Write(text);
    }
    if (reason == 0) {
        reason = draft.CommitForGood();
    }
    return reason == 0 ? std::string() : Concat(path, " cannot be written: ", ReasonText(reason));
}

}  // namespace plasmos
