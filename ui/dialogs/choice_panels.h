// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "questions/ask.h"
#include "questions/choice_forms.h"
#include "ui/dialogs/question_panel.h"

namespace plasmos {

/// How many: one button for each number 0 to 7.
class NumberPanel : public QuestionPanel {
public:
    NumberPanel(QWidget* parent, const GameState& state, AmNumfrm& form);
    void Reread() override;
    void CloseAsked() override;
    QWidget* FirstControl() override;

private:
    AmNumfrm& form_;
    QLabel* question_;
    std::array<QPushButton*, 8> options_{};
};

/// Which amoeba: one button for each piece, and None.
class AmoebaPanel : public QuestionPanel {
public:
    AmoebaPanel(QWidget* parent, const GameState& state, AmChoicefrm& form);
    void Reread() override;
    void CloseAsked() override;
    QWidget* FirstControl() override;

protected:
    void Redress() override;

private:
    AmChoicefrm& form_;
    bool made_ = false;
    QLabel* question_;
    std::array<QPushButton*, 8> options_{};
    QPushButton* none_;
};

/// A message with OK.
class BoxPanel : public QuestionPanel {
public:
    BoxPanel(QWidget* parent, const GameState& state, BoxQuestion& box);
    void Reread() override;
    void CloseAsked() override;
    QWidget* FirstControl() override { return ok_; }

private:
    BoxQuestion& box_;
    QLabel* text_;
    QPushButton* ok_;
};

/// A wrapped line of text for the body of a panel.
QLabel* MakeText(QWidget* parent, const char* name, int pixels);

}  // namespace plasmos
