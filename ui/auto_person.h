// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/question.h"

namespace plasmos {

class UBoard;

/// Somebody who answers every question of a window at once and sensibly enough to see a game through:
/// the window's own controls are used, so that what is seen is what happens.
class AutoPerson {
public:
    explicit AutoPerson(UBoard& board) : board_(board) {}

    void Answer(Question& question);

private:
    void Click(const char* name);
    void ClickSquare(int square);
    void AnswerFood(class FoodForm& form);
    void AnswerGenes(class GeneForm& form);

    UBoard& board_;
    int turns_ = 0;
};

}  // namespace plasmos
