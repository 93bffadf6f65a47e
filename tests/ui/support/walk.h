// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <string>
#include <vector>

#include "tests/ui/support/position.h"

namespace plasmos::testing {

/// Pixels that a square of the board has at least on every screen.
inline constexpr int LeastSquare = 24;

/// A question as large as it gets, and what makes the rules ask it.
struct AskedRow {
    const char* Name;
    QuestionKind Kind;
    void (*Ask)();
};

/// Every kind of question, in all its forms.
const std::vector<AskedRow>& EveryQuestion();

/// A visible button or field.
bool IsControl(const QWidget* widget);
/// Why a control cannot be pressed at its middle and at its corners; empty: it can.
std::string WhyNotWhole(QWidget* control);

/// A window in which one question is asked again and again until each of its controls has been pressed.
class Walk : public PositionScene {
public:
    explicit Walk(QSet<QString>& pressed);

    /// Presses arrow keys at the question, and answers it when none of them has led out of it.
    void StepAbout(const AskedRow& row);
    qsizetype Visited() const { return visited_; }

    void Ask(const AskedRow& row);

private:
    /// Presses what has not been pressed, until something answers; when all has been, ends the question.
    void PressAll(Question& question);
    /// What a press has changed finds its place before a hand gets to the next control.
    static void Settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); }
    QWidget* PartOf(const Question& question);
    /// Nothing arranges itself again and again while a question is open.
    void SeeThatItRests();
    /// The board is there with squares that can be hit, and the question stands whole beside it.
    void SeeTheBoard(const Question& question);
    /// With PLASMOS_PICTURES=folder what was walked over can be looked at.
    void TakePicture(std::string_view name);

    QSet<QString>& pressed_;
    qsizetype visited_ = 0;
};

}  // namespace plasmos::testing
