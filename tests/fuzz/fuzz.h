// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace plasmos::fuzz {

/// What must hold whatever the input is.
inline void Require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

/// Hands out an input byte by byte; after its end everything is 0.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    bool AtEnd() const { return size_ == 0; }

    int Next() {
        if (AtEnd()) {
            return 0;
        }
        --size_;
        return *data_++;
    }

    /// A number from 0 to n - 1.
    int Below(int n) { return n <= 1 ? 0 : Next() % n; }

    /// A text of at most `most` bytes, up to the next byte 0.
    std::string Text(int most) {
        std::string text;
        while (!AtEnd() && static_cast<int>(text.size()) < most) {
            const int byte = Next();
            if (byte == 0) {
                break;
            }
            text += static_cast<char>(byte);
        }
        return text;
    }

    std::string_view Rest() const { return {reinterpret_cast<const char*>(data_), size_}; }

private:
    const std::uint8_t* data_;
    std::size_t size_;
};

}  // namespace plasmos::fuzz

/// One input; every fuzzing target defines it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
