// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "tests/ui/support/position.h"

namespace plasmos::testing {

inline QString Field(int colour) {
    return QStringLiteral("fdtxt%1").arg(colour);
}

/// A meal of 111 lies before the person's amoeba in square 7.
class MealScene : public PositionScene {
public:
    explicit MealScene(int clans = 4) : PositionScene(clans) { Feed(7, {1, 1, 5, 1}); }

    MealScene& ThenFood(std::function<void()> act) {
        Then(QuestionKind::Food, std::move(act));
        return *this;
    }
    void Enter(std::vector<int> amounts) {
        for (int colour = 1; colour <= static_cast<int>(amounts.size()); ++colour) {
            if (colour != 3) {
                Type(Field(colour), QString::number(amounts[static_cast<std::size_t>(colour - 1)]));
            }
        }
    }
    QString Fields() {
        QStringList texts;
        for (int colour = 1; colour <= game.NumPlayers; ++colour) {
            texts << Text(Field(colour));
        }
        return texts.join(QLatin1Char(' '));
    }
    void Eat() { Click(QStringLiteral("eatb")); }
};

}  // namespace plasmos::testing
