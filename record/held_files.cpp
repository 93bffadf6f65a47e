// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/held_files.h"

#include <cstdio>

#include "files/runtime_error.h"
#include "model/trace.h"

namespace plasmos {

void HeldFiles::Append(std::string_view name, std::string_view text) {
    if (holds_) {
        held_[std::string(name)].Text += text;
    } else {
        files_->Append(name, text);
    }
}

void HeldFiles::Rewrite(std::string_view name, std::string_view text) {
    if (holds_) {
        held_[std::string(name)] = {true, std::string(text)};
    } else {
        files_->Rewrite(name, text);
    }
}

HeldFiles::~HeldFiles() {
    const auto errors = held_.find(ErrorFile);
    if (holds_ && errors != held_.end()) {
        try {
            Write(ErrorFile, errors->second);
        } catch (const RuntimeError& error) {
            std::fprintf(stderr, "%s\n%s", error.what(), errors->second.Text.c_str());
        }
    }
}

void HeldFiles::Write(std::string_view name, const Held& held) const {
    WriteWithPatience([&] { held.Whole ? files_->Rewrite(name, held.Text) : files_->Append(name, held.Text); });
}

std::string HeldFiles::LetGo() {
    std::string fault;
    if (!holds_) {
        return fault;
    }
    holds_ = false;
    for (const auto& [name, held] : held_) {
        try {
            Write(name, held);
        } catch (const RuntimeError& error) {
            AppendErrorRecord(error, 0, 0);
            fault = error.what();
        }
    }
    held_.clear();
    return fault;
}

}  // namespace plasmos
