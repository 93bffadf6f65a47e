// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a fuzzing target over the inputs kept for it, and over cut and changed copies of each, without
// the fuzzer: the short form that any compiler builds.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

#include "model/pcg32.h"
#include "tests/fuzz/fuzz.h"

namespace {

constexpr int CopiesOfEach = 300;

void RunCopies(const std::vector<std::uint8_t>& input, std::uint64_t seed) {
    plasmos::Pcg32 dice;
    dice.Seed(seed, 1);
    for (int copy = 0; copy < CopiesOfEach; ++copy) {
        auto changed = input;
        changed.resize(changed.empty() ? 0 : changed.size() - dice.Next() % changed.size() / 4);
        for (std::uint32_t change = dice.Next() % 8; change > 0 && !changed.empty(); --change) {
            changed[dice.Next() % changed.size()] = static_cast<std::uint8_t>(dice.Next());
        }
        LLVMFuzzerTestOneInput(changed.data(), changed.size());
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "one argument is needed: the folder of inputs\n";
        return 2;
    }
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        files.push_back(entry.path());
    }
    std::uint64_t seed = 0;
    for (const auto& file : files) {
        std::ifstream stream(file, std::ios::binary);
        const std::vector<std::uint8_t> input{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
        LLVMFuzzerTestOneInput(input.data(), input.size());
        RunCopies(input, ++seed);
    }
    LLVMFuzzerTestOneInput(nullptr, 0);
    std::cout << files.size() << " inputs and " << CopiesOfEach << " changed copies of each\n";
    return files.empty() ? 1 : 0;
}
