// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QRadioButton>
#include <array>

#include "questions/food_form.h"
#include "ui/dialogs/question_panel.h"

namespace plasmos {

class MealChips;

/// What to eat, or what a tentacle carries: an entry field for each colour in the square.
class FoodPanel : public QuestionPanel {
public:
    FoodPanel(QWidget* parent, const GameState& state, FoodForm& form);
    void Reread() override;
    void CloseAsked() override;
    QWidget* FirstControl() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void Redress() override;

private:
    struct Row {
        QWidget* Line = nullptr;
        QLabel* Cube = nullptr;
        QLabel* Name = nullptr;
        QLabel* Count = nullptr;
        QLineEdit* Entry = nullptr;
        QPushButton* Less = nullptr;
        QPushButton* More = nullptr;
    };

    void MakeRow(int field);
    void MakeMeals();
    void MakeAlternatives();
    void MakeButtons();
    void RereadRow(int field);
    void RereadMeals();
    void Step(int field, int by);
    void NameRow(int field);
    /// Whether what is entered would be taken, and why not.
    void ShowVerdict();
    QString VerdictText(const EntryVerdict& verdict) const;
    QString ClosingText() const;

    FoodForm& form_;
    bool rereading_ = false;
    std::array<Row, 8> rows_;
    bool made_ = false;
    QPushButton* suggest_;
    QLabel* hosts_;
    QLabel* legal_;
    QLabel* oneClick_;
    MealChips* meals_;
    QLabel* verdict_;
    QRadioButton* paropt_;
    QRadioButton* sfsopt_;
    QPushButton* eatb_;
    QPushButton* victimb_;
};

}  // namespace plasmos
