// SPDX-License-Identifier: GPL-3.0-or-later
#include "record/held_files.h"

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

void HeldFiles::LetGo() {
    if (!holds_) {
        return;
    }
    holds_ = false;
    for (const auto& [name, held] : held_) {
        try {
            held.Whole ? files_->Rewrite(name, held.Text) : files_->Append(name, held.Text);
        } catch (const RuntimeError& error) {
            AppendErrorRecord(error, 0, 0);
        }
    }
    held_.clear();
}

}  // namespace plasmos
