// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/meal_chips.h"

#include <QGridLayout>
#include <QIcon>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <numeric>

#include "ui/dialogs/question_panel.h"
#include "ui/look/colour_names.h"
#include "ui/look/cube.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

constexpr int Across = 3;
constexpr int CubeSide = 11;

}  // namespace

QPixmap MealChips::Pieces(const std::vector<int>& amounts, double ratio) {
    const int count = std::max(std::accumulate(amounts.begin(), amounts.end(), 0), 1);
    QPixmap picture(QSize(count * CubeSide, CubeSide + 1) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    int place = 0;
    for (int colour = 1; colour <= static_cast<int>(amounts.size()); ++colour) {
        for (int piece = 0; piece < amounts[static_cast<std::size_t>(colour - 1)]; ++piece) {
            DrawCube(painter, colour, QRectF(place++ * CubeSide + 0.5, 0.5, CubeSide - 1, CubeSide));
        }
    }
    return picture;
}

QString MealChips::InWords(const PossibleMeal& meal) {
    QStringList parts;
    for (int colour = 1; colour <= static_cast<int>(meal.Amounts.size()); ++colour) {
        if (const int amount = meal.Amounts[static_cast<std::size_t>(colour - 1)]; amount > 0) {
            parts << QStringLiteral("%1 %2").arg(amount).arg(ToQt(ColourName(colour)));
        }
    }
    return QStringLiteral("Meal %1: %2").arg(meal.Menu).arg(parts.join(QStringLiteral(", ")));
}

MealChips::MealChips(QWidget* parent) : QWidget(parent), grid_(new QGridLayout(this)) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setSpacing(4);
}

void MealChips::Make(const FoodForm& form) {
    for (const int menu : form.LegalMenus) {
        auto* button = new QPushButton(QString::number(menu), this);
        button->setObjectName(QStringLiteral("meal%1").arg(menu));
        WearSheet(*button, QStringLiteral("padding:2px 5px;min-height:@18px;font-size:@12px"));
        RefuseRepeats(button);
        const auto place = chips_.size();
        connect(button, &QPushButton::clicked, this, [this, place] { OnMeal(chips_[place].Meal); });
        chips_.push_back({button, {}});
    }
}

std::vector<QWidget*> MealChips::Buttons() const {
    std::vector<QWidget*> buttons;
    for (const Chip& chip : chips_) {
        buttons.push_back(chip.Button);
    }
    return buttons;
}

void MealChips::Reread(const FoodForm& form) {
    auto meals = form.PossibleMeals();
    const std::vector<int> suggested = form.Suggestion();
    std::erase_if(meals, [&](const PossibleMeal& one) { return one.Amounts == suggested; });
    const auto entry = form.Entry();
    int place = 0;
    for (Chip& chip : chips_) {
        const QString menu = chip.Button->text();
        const auto meal = std::find_if(meals.begin(), meals.end(),
                                       [&](const PossibleMeal& one) { return QString::number(one.Menu) == menu; });
        chip.Button->setVisible(meal != meals.end());
        grid_->removeWidget(chip.Button);
        if (meal == meals.end()) {
            continue;
        }
        chip.Meal = *meal;
        const QPixmap pieces = Pieces(meal->Amounts, devicePixelRatioF());
        chip.Button->setIcon(pieces);
        chip.Button->setIconSize(pieces.deviceIndependentSize().toSize());
        chip.Button->setToolTip(InWords(*meal));
        chip.Button->setAccessibleName(InWords(*meal));
        chip.Button->setEnabled(entry != meal->Amounts);
        grid_->addWidget(chip.Button, place / Across, place % Across);
        ++place;
    }
    setVisible(place > 0);
}

}  // namespace plasmos
