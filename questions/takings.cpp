// SPDX-License-Identifier: GPL-3.0-or-later
#include "questions/takings.h"

#include <algorithm>
#include <utility>

namespace plasmos {

void Takings::TakeMenu(int menu) {
    int lent = (form_.fdtxt[0].Visible ? 1 : 0) + (form_.fdtxt[7].Visible ? 1 : 0);
    std::vector<int> digits;
    for (int rest = menu; rest > 0; rest /= 10) {
        if (lent > 0 && rest % 10 == 1) {
            --lent;
        } else {
            digits.push_back(rest % 10);
        }
    }
    if (lent == 0) {
        TakeDigits(1, digits);
    }
}

// NOLINTNEXTLINE(misc-no-recursion): one colour deeper each time
void Takings::TakeDigits(int colour, const std::vector<int>& digits) {
    if (digits.empty()) {
        Found.push_back(taken_);
        return;
    }
    if (colour > game.NumPlayers) {
        return;
    }
    TakeDigits(colour + 1, digits);
    int tried = 0;
    for (std::size_t i = 0; i < digits.size() && colour != form_.Clan; ++i) {
        if (digits[i] != tried && digits[i] <= form_.fdtxt[colour].InSquare) {
            tried = digits[i];
            auto left = digits;
            left.erase(left.begin() + static_cast<std::ptrdiff_t>(i));
            Of(colour) = tried;
            TakeDigits(colour + 1, left);
            Of(colour) = 0;
        }
    }
}

std::vector<int> Takings::FromTheFullest() const {
    const auto worth = [this](const std::vector<int>& amounts) {
        std::pair<int, int> sum;
        for (int colour = 1; colour <= static_cast<int>(amounts.size()); ++colour) {
            const int pieces = amounts[static_cast<std::size_t>(colour - 1)];
            sum.first += pieces * form_.fdtxt[colour].InSquare;
            sum.second += pieces * game.Players[colour].Score;
        }
        return sum;
    };
    const auto best = std::max_element(Found.begin(), Found.end(),
                                       [&](const auto& one, const auto& other) { return worth(one) < worth(other); });
    return best != Found.end() ? *best : std::vector<int>();
}

// NOLINTNEXTLINE(misc-no-recursion): one colour deeper each time
void Takings::TakePieces(int colour, int left) {
    if (colour > game.NumPlayers) {
        Found.push_back(taken_);
        return;
    }
    for (int pieces = 0; pieces <= std::min(left, form_.fdtxt[colour].InSquare); ++pieces) {
        Of(colour) = pieces;
        TakePieces(colour + 1, left - pieces);
    }
    Of(colour) = 0;
}

}  // namespace plasmos
