// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "questions/food_form.h"

namespace plasmos {

/// Every way to take pieces of the colours in a square, as a food dialog would be told: pieces of clan 1, of clan 2
/// and so on.
class Takings {
public:
    explicit Takings(const FoodForm& form) : form_(form) {}

    /// The digits of a menu, each from another foreign colour. A lent piece is always eaten, for a digit 1.
    void TakeMenu(int menu);
    /// Up to a number of pieces of any colour.
    void TakeUpTo(int most) { TakePieces(1, most); }

    /// The one of those found that takes its pieces where most lies; on a tie that of the clans with the higher
    /// scores. Empty: none was found.
    std::vector<int> FromTheFullest() const;

    std::vector<std::vector<int>> Found;

private:
    void TakeDigits(int colour, const std::vector<int>& digits);
    void TakePieces(int colour, int left);
    int& Of(int colour) { return taken_[static_cast<std::size_t>(colour - 1)]; }

    const FoodForm& form_;
    std::vector<int> taken_ = std::vector<int>(static_cast<std::size_t>(game.NumPlayers), 0);
};

}  // namespace plasmos
