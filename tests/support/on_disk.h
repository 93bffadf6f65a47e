// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "files/game_files.h"
#include "files/runtime_error.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {

/// A folder of the disk that is gone after the test.
class OnDisk : public GameTest {
protected:
    OnDisk() : home_(MakeHome()), folder((home_ / "QX" / "Plasmo6").string()), files(folder) {}
    ~OnDisk() override { std::filesystem::remove_all(home_); }

    std::string Bytes(std::string_view name) const {
        std::ifstream file(files.PathOf(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void Lay(std::string_view name, std::string_view bytes) const {
        std::ofstream(files.PathOf(name), std::ios::binary) << bytes;
    }
    /// The number of the run-time error that an operation raises; 0: none.
    template <class Operation>
    static int ErrorOf(Operation operation) {
        try {
            operation();
        } catch (const RuntimeError& error) {
            return error.Number;
        }
        return 0;
    }
    std::string Home() const { return home_.string(); }

private:
    static std::filesystem::path MakeHome() {
        std::string name = (std::filesystem::temp_directory_path() / "plasmos-test-XXXXXX").string();
        return {mkdtemp(name.data())};
    }

    std::filesystem::path home_;

protected:
    const std::string folder;
    DataFolder files;
};

}  // namespace plasmos::testing
