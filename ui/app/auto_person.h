// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <functional>
#include <string>

#include "questions/question.h"
#include "ui/app/hand.h"

class QWidget;

namespace plasmos {

class UBoard;

/// Somebody who answers every question of a window sensibly enough to see a game through. What is
/// answered is pressed where it stands in the window, so that what is seen is what happens.
class AutoPerson {
public:
    /// Where to press next.
    struct Touch {
        QWidget* Control;
        QPoint Point;
        bool Last;  ///< the rule looks at it, or the question is answered with it
    };

    explicit AutoPerson(UBoard& board) : board_(board), hand_(&ownHand_) {}
    AutoPerson(UBoard& board, Hand& hand) : board_(board), hand_(&hand) {}

    /// Presses until the rule looks; it asks again when there is more to do.
    void Answer(Question& question);
    /// The next press for the question as it stands now; no control: there is none to press.
    Touch Next(Question& question);

    /// Told why something could not be pressed.
    std::function<void(const std::string& why)> OnFault;

private:
    Touch At(const std::string& name, bool last);
    Touch AtSquare(int square);
    Touch NextForFood(class FoodForm& form);
    Touch NextForGenes(class GeneForm& form);
    Touch NextForVictim(class VictimForm& form);

    UBoard& board_;
    WindowHand ownHand_;
    Hand* hand_;
    std::string last_;  ///< the control that was last to be pressed
    int gene_ = 0;      ///< the gene that was looked at last
    int turns_ = 0;
    bool hasShopped_ = false;  ///< since it last had to adapt
};

}  // namespace plasmos
