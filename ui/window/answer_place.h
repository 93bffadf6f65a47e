// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

class QWidget;

namespace plasmos {

struct Answer;

/// Where in a window an answer is given.
struct AnswerPlace {
    QWidget* Control = nullptr;  ///< none: nothing in sight gives it now
    int Square = 0;              ///< of the puddle; 0: the control as a whole

    /// Where in the control, as it lies now.
    QRect Place() const;
};

/// The enabled control in sight that puts an answer in, or a step towards it.
AnswerPlace PlaceOfAnswer(QWidget& window, const Answer& answer);

}  // namespace plasmos
