// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include "files/game_files.h"

namespace plasmos {

/// The files of a game that is played again at one go: what it writes is held until LetGo(), and written then at one
/// stroke for each file.
class HeldFiles : public GameFiles {
public:
    explicit HeldFiles(GameFiles& files) : files_(&files) {}

    /// A game that broke down before has told its errors all the same.
    ~HeldFiles() override;
    HeldFiles(const HeldFiles&) = delete;
    HeldFiles& operator=(const HeldFiles&) = delete;

    /// Writes what was held; from now on everything is written as it comes. What fails is recorded as an error, and
    /// comes back as one line; empty: nothing did.
    std::string LetGo();

    std::string PathOf(std::string_view name) const override { return files_->PathOf(name); }
    std::string GamesFolder() const override { return files_->GamesFolder(); }
    void MakeFolder() override { files_->MakeFolder(); }
    bool Exists(std::string_view name) const override { return files_->Exists(name); }
    void Append(std::string_view name, std::string_view text) override;
    void Rewrite(std::string_view name, std::string_view text) override;
    std::vector<std::string> ReadLines(std::string_view name, int most) const override {
        return files_->ReadLines(name, most);
    }

private:
    struct Held {
        bool Whole = false;  ///< what stood there before is gone
        std::string Text;
    };

    void Write(std::string_view name, const Held& held) const;

    GameFiles* files_;
    bool holds_ = true;
    std::map<std::string, Held, std::less<>> held_;
};

}  // namespace plasmos
