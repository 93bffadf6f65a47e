// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <stdexcept>
#include <string>
#include <string_view>

namespace plasmos {

/// An output that cannot be written; one line that says which and why.
struct OutputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Standard output or a file. A regular file is written under another name and takes its own with
/// Commit(), so that it is whole or not there; without Commit() nothing is left behind.
class Output {
public:
    /// An empty name: standard output. Throws OutputError when the file cannot be opened.
    explicit Output(std::string name);
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    /// Throws OutputError when something cannot be written.
    void Write(std::string_view text);
    /// Everything is on the disk; throws like Write.
    void Finish();
    /// Gives the file its name. Finish() goes before.
    void Commit();

private:
    [[noreturn]] void Fail(int reason);

    std::string name_;
    std::string draft_;  ///< the other name while the file is written; empty: written in place
    std::FILE* file_ = nullptr;
};

}  // namespace plasmos
