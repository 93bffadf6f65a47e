// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "files/text.h"

namespace plasmos::testing {

namespace fs = std::filesystem;

struct Ran {
    int ExitCode;  ///< -1: killed by a signal
    std::string Text;
};

/// The program plasmos-sim in a folder that is gone after the test.
class CommandLineTest : public ::testing::Test {
protected:
    CommandLineTest() {
        std::string name = (fs::temp_directory_path() / "plasmos-sim-XXXXXX").string();
        folder_ = mkdtemp(name.data());
    }
    ~CommandLineTest() override { fs::remove_all(folder_); }

    /// Runs a shell command in which $SIM stands for the program; the text is its standard output. A command
    /// that has not ended after a minute is killed with all it has started.
    Ran Shell(const std::string& command) const {
        setenv("SIM", PLASMOS_SIM, 1);
        setenv("SCRIPT", Concat("cd '", folder_.string(), "'; ", command).c_str(), 1);
        std::FILE* pipe = popen("exec timeout -k 1 60 bash -c \"$SCRIPT\"", "r");
        std::string text;
        char bytes[4096];
        for (std::size_t count = 0; (count = fread(bytes, 1, sizeof bytes, pipe)) > 0;) {
            text.append(bytes, count);
        }
        const int status = pclose(pipe);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, text};
    }

    std::string Read(const std::string& name) const {
        std::ifstream file(folder_ / name, std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_)) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

    fs::path folder_;
};

/// A command and what comes of it.
struct CommandRow {
    std::string Name;
    std::string Command;
    std::string Says;
};
inline void PrintTo(const CommandRow& row, std::ostream* out) {
    *out << row.Name;
}
struct CommandName {
    template <class Row>
    std::string operator()(const Row& row) const {
        return row.param.Name;
    }
};

}  // namespace plasmos::testing
