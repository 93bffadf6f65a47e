// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#the-board-and-its-pieces

#include <bit>
#include <cstdint>
#include <vector>

#include "model/game_state.h"

namespace plasmos {

/// A set of squares 1..36.
class SquareSet {
public:
    void Add(int square) { bits_ |= Bit(square); }
    bool Has(int square) const { return square >= 1 && square <= MaxSquares && (bits_ & Bit(square)) != 0; }
    bool Empty() const { return bits_ == 0; }
    int Count() const { return std::popcount(bits_); }
    int Lowest() const { return bits_ == 0 ? 0 : std::countr_zero(bits_); }

    /// The n-th square in ascending order, 1..Count().
    int Nth(int n) const {
        std::uint64_t left = bits_;
        for (int skipped = 1; skipped < n; ++skipped) {
            left &= left - 1;
        }
        if (n < 1 || left == 0) {
            RaiseSubscriptError();
        }
        return std::countr_zero(left);
    }

    /// The squares in ascending order.
    std::vector<int> List() const {
        std::vector<int> squares;
        for (std::uint64_t left = bits_; left != 0; left &= left - 1) {
            squares.push_back(std::countr_zero(left));
        }
        return squares;
    }

private:
    static constexpr std::uint64_t Bit(int square) { return std::uint64_t{1} << static_cast<unsigned>(square); }

    std::uint64_t bits_ = 0;
};

}  // namespace plasmos
