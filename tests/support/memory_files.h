// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "files/game_files.h"
#include "files/line_collector.h"
#include "files/runtime_error.h"
#include "files/text.h"
#include "model/game_state.h"
#include "model/services.h"

namespace plasmos::testing {

/// The files of a game in memory, which fail when they are told to.
class MemoryFiles : public GameFiles {
public:
    MemoryFiles() { services.Files = this; }
    ~MemoryFiles() override { services.Files = nullptr; }

    std::string PathOf(std::string_view name) const override { return Concat("memory/", name); }
    void MakeFolder() override {
        if (FolderFails) {
            throw RuntimeError(70, "Permission denied: memory (forbidden)");
        }
    }
    bool Exists(std::string_view name) const override { return Files.count(std::string(name)) > 0; }
    void Append(std::string_view name, std::string_view text) override {
        ++Tries;
        if (Failures > 0) {
            --Failures;
            throw RuntimeError(61, Concat("Disk full: ", PathOf(name), " (no space)"));
        }
        if (!Refused.empty() && text.find(Refused) != std::string_view::npos) {
            throw RuntimeError(61, Concat("Disk full: ", PathOf(name), " (no space)"));
        }
        Files[std::string(name)] += text;
    }
    void Rewrite(std::string_view name, std::string_view text) override { Files[std::string(name)] = text; }
    std::vector<std::string> ReadLines(std::string_view name, int most) const override {
        LineCollector lines(most);
        lines.Take(Files.at(std::string(name)));
        return lines.Lines();
    }

    bool FolderFails = false;

    std::string Moves() { return Files[std::string(MoveFile)]; }
    std::string Errors() { return Files[std::string(ErrorFile)]; }

    std::map<std::string, std::string> Files;
    int Failures = 0;     ///< so many appends fail
    std::string Refused;  ///< every append of a text that contains this fails; "": none
    int Tries = 0;        ///< appends that were tried
};

}  // namespace plasmos::testing
