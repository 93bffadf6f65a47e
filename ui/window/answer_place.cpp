// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/answer_place.h"

#include <QAbstractButton>
#include <string>

#include "files/text.h"
#include "questions/answer.h"
#include "ui/board/puddle_view.h"
#include "ui/look/palette.h"

namespace plasmos {

namespace {

/// The name of the control for an answer; empty: it is no button.
std::string ControlName(const Answer& answer) {
    using Kind = Answer::Kind;
    switch (answer.What) {
        case Kind::Yes: return "yesb";
        case Kind::No: return "nob";
        case Kind::Number:
        case Kind::Amoeba: return Concat("amopt", answer.Number);
        case Kind::Nobody: return "amoptb";
        case Kind::Suggestion: return "suggestb";
        case Kind::Parasitism: return "paropt";
        case Kind::Struggle: return "sfsopt";
        case Kind::Eat: return "eatb";
        case Kind::Victim: return "victimb";
        case Kind::Starve:
        case Kind::CarryNothing: return "closeb";
        case Kind::Carry: return "eatb";
        case Kind::Mark: return Concat("figure", answer.Number);
        case Kind::Tick:
        case Kind::Untick: return Concat("gcheck", answer.Number);
        case Kind::Reset: return "resetb";
        case Kind::Pick:
        case Kind::Done: return "doneb";
        case Kind::Acknowledge: return "okb";
        case Kind::Square:
        case Kind::Field:
        case Kind::LeaveField:
        case Kind::Fight:
        case Kind::LookAway:
        case Kind::Pay:
        case Kind::Close: break;
    }
    return {};
}

}  // namespace

QRect AnswerPlace::Place() const {
    const auto* puddle = qobject_cast<const PuddleView*>(Control);
    return puddle != nullptr ? puddle->SquareRect(Square) : Control->rect();
}

AnswerPlace PlaceOfAnswer(QWidget& window, const Answer& answer) {
    if (answer.What == Answer::Kind::Square) {
        return {window.findChild<PuddleView*>(), answer.Number};
    }
    const std::string name = ControlName(answer);
    if (name.empty()) {
        return {};
    }
    for (auto* button : window.findChildren<QAbstractButton*>(ToQt(name))) {
        if (button->isEnabled() && button->isVisible()) {
            return {button, 0};
        }
    }
    return {};
}

}  // namespace plasmos
