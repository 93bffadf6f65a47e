// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "files/disk_stream.h"
#include "files/file_draft.h"
#include "files/file_place.h"

namespace plasmos {

/// An output that cannot be written; one line that says which and why.
struct OutputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// An output that nobody reads from kept the run waiting when it was asked to end.
struct WaitEnded {};

/// Standard output or a file. A file is written as a draft and takes its name with Commit(), so that it
/// is whole or not there; without Commit() nothing is left behind. A pipe, a terminal or a device is
/// written in place. What cannot be written throws OutputError, what waits in vain WaitEnded.
class Output {
public:
    /// An empty name: standard output. `stop` tells whether the run is to end.
    Output(std::string name, std::function<bool()> stop);

    void Write(std::string_view text);
    /// Everything is handed over.
    void Finish();
    /// Gives the file its name. Finish() goes before.
    void Commit();

    /// Whether both would write to the same place, whatever its names.
    bool IsSameAs(const Output& other) const;

private:
    void Send();
    void Check(int reason) const;
    FileIdentity Identity() const;

    std::string name_;
    std::string pending_;
    DiskStream stream_;
    FileDraft draft_;  ///< not open: the stream is written
};

/// Writes a text to standard output.
void PrintOut(std::string_view text, const std::function<bool()>& stop);

}  // namespace plasmos
