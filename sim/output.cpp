// SPDX-License-Identifier: GPL-3.0-or-later
#include "sim/output.h"

#include <cerrno>
#include <utility>

#include "files/text.h"

namespace plasmos {

namespace {

constexpr std::size_t MostPending = 65536;

}  // namespace

Output::Output(std::string name, std::function<bool()> stop) : name_(std::move(name)), stream_(std::move(stop)) {
    if (name_.empty()) {
        Check(stream_.OpenStandardOutput());
    } else if (DiskStream::Is(name_)) {
        Check(stream_.Open(name_));
    } else {
        RemoveAbandonedDrafts(name_);
        Check(draft_.Open(name_));
    }
}

void Output::Check(int reason) const {
    if (reason == EINTR) {
        throw WaitEnded{};
    }
    if (reason != 0) {
        throw OutputError(
            Concat(name_.empty() ? "standard output" : name_.c_str(), " cannot be written: ", ReasonText(reason)));
    }
}

void Output::Send() {
    Check(draft_.IsOpen() ? draft_.Write(pending_) : stream_.Write(pending_));
    pending_.clear();
}

void Output::Write(std::string_view text) {
    pending_ += text;
    if (pending_.size() >= MostPending) {
        Send();
    }
}

void Output::Finish() {
    Send();
    if (!draft_.IsOpen()) {
        Check(stream_.Close());
    }
}

void Output::Commit() {
    if (draft_.IsOpen()) {
        Check(draft_.Commit());
    }
}

FileIdentity Output::Identity() const {
    return draft_.IsOpen() ? IdentityOf(draft_.Target()) : IdentityOf(stream_.File());
}

bool Output::IsSameAs(const Output& other) const {
    const bool drafts = draft_.IsOpen() && other.draft_.IsOpen();
    return (drafts && draft_.Target() == other.draft_.Target()) || Identity().IsSameAs(other.Identity());
}

void PrintOut(std::string_view text, const std::function<bool()>& stop) {
    Output output({}, stop);
    output.Write(text);
    output.Finish();
}

}  // namespace plasmos
