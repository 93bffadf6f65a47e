// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>
#include <map>

#include "questions/food_form.h"

class QGridLayout;
class QPushButton;

namespace plasmos {

/// The legal meals that a square holds, each a button with its digits and the colours it would take. The suggested one
/// stands apart, and is not shown a second time.
class MealChips : public QWidget {
public:
    explicit MealChips(QWidget* parent);

    /// Called with the meal of a button that is pressed.
    std::function<void(const PossibleMeal&)> OnMeal;

    /// Shows the meals that are possible now besides the suggested one; the one that the fields hold has been chosen
    /// already.
    void Reread(const FoodForm& form);
    /// A button for each menu that the clan may eat, in the order in which they are shown.
    std::vector<QWidget*> Buttons() const;
    /// Makes the buttons; call it once.
    void Make(const FoodForm& form);

    /// The pieces of a meal side by side, so many of the colours 1, 2, ...
    static QPixmap Pieces(const std::vector<int>& amounts, double ratio);
    /// The same in words: "Meal 21: 2 red, 1 blue".
    static QString InWords(const PossibleMeal& meal);

private:
    struct Chip {
        QPushButton* Button = nullptr;
        PossibleMeal Meal;
    };

    QGridLayout* grid_;
    std::vector<Chip> chips_;
};

}  // namespace plasmos
