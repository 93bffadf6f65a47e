// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

#include "ui/look/card.h"

namespace plasmos {

/// The note of the guided game below the board: what is asked and why, what is recommended, and the way out.
class GuideBar : public Card {
public:
    explicit GuideBar(QWidget* parent);

    QPushButton* endguideb;

    /// Lesson so many of so many, its note, and the recommended answer in words; number 0: no lesson, an empty
    /// recommendation: none.
    void Show(int number, int lessons, const QString& note, const QString& recommended);
    /// Height it takes below the board.
    static int Height();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void Redress() override { Arrange(); }

private:
    void Arrange();

    QLabel* title_;
    FitLabel* note_;
    QLabel* recommended_;
};

}  // namespace plasmos
