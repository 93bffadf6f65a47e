// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/runtime_error.h"

namespace plasmos {

/// A table of the game with the index bounds `Lo` to `Hi`, both included, checked in every build:
/// an index outside them raises error 9, "Subscript out of range".
/// The game's tables start at 0 and leave index 0 unused.
template <class T, int Lo, int Hi>
class Table {
public:
    static_assert(Lo <= Hi);

    constexpr T& operator[](int index) { return items_[Position(index)]; }
    constexpr const T& operator[](int index) const { return items_[Position(index)]; }

    constexpr T* begin() { return items_; }
    constexpr T* end() { return items_ + Size; }
    constexpr const T* begin() const { return items_; }
    constexpr const T* end() const { return items_ + Size; }

    friend constexpr bool operator==(const Table&, const Table&) = default;

private:
    static constexpr int Size = Hi - Lo + 1;

    static constexpr unsigned Position(int index) {
        const auto position = static_cast<unsigned>(index) - static_cast<unsigned>(Lo);
        if (position >= static_cast<unsigned>(Size)) [[unlikely]] {
            RaiseSubscriptError();
        }
        return position;
    }

    T items_[Size]{};
};

}  // namespace plasmos
