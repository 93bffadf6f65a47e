// SPDX-License-Identifier: GPL-3.0-or-later
//
// The window tests: `ui_tests NAME [what Qt Test understands]` runs those of one file.

#include <cstdio>
#include <map>
#include <string_view>

#include "tests/ui/support/window_tests.h"

namespace plasmos::testing {

namespace {

std::map<std::string_view, WindowProgram::Main>& Programs() {
    static std::map<std::string_view, WindowProgram::Main> programs;
    return programs;
}

int TellWhatThereIs() {
    std::fprintf(stderr, "usage: ui_tests NAME [what Qt Test understands]; the names:\n");
    for (const auto& [name, main] : Programs()) {
        std::fprintf(stderr, "  %s\n", name.data());
    }
    return 2;
}

}  // namespace

WindowProgram::WindowProgram(const char* name, Main main) {
    Programs().emplace(name, main);
}

}  // namespace plasmos::testing

int main(int argc, char** argv) {
    using namespace plasmos::testing;
    const auto chosen = argc > 1 ? Programs().find(argv[1]) : Programs().end();
    if (chosen == Programs().end()) {
        return TellWhatThereIs();
    }
    argv[1] = argv[0];
    return chosen->second(argc - 1, argv + 1);
}
