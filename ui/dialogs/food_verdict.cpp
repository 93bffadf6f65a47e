// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the food dialog says of what is entered, and of being closed.

#include "ui/dialogs/food_panel.h"

#include <QLabel>

#include "ui/look/dress.h"
#include "ui/look/palette.h"

namespace plasmos {

QString FoodPanel::VerdictText(const EntryVerdict& verdict) const {
    using Kind = EntryVerdict::Kind;
    switch (verdict.What) {
        case Kind::Starves:
            return form_.PossibleMeals().empty() ? QStringLiteral("Nothing to eat here: it starves, 1 damage.")
                                                 : QStringLiteral("Nothing entered: it starves, 1 damage.");
        case Kind::TooMuch: return QStringLiteral("Not legal: more than the square holds.");
        case Kind::TooHeavy: return QStringLiteral("Not legal: more than %1 pieces.").arg(form_.CarryingLimit);
        case Kind::Legal:
            return form_.Mode == "TENTACLE" ? QStringLiteral("Legal.") : QStringLiteral("Legal: %1.").arg(verdict.Menu);
        case Kind::NotLegal: break;
    }
    return verdict.Menu == 0 ? QStringLiteral("Nothing entered: your amoeba must eat.")
                             : QStringLiteral("Not legal: %1 is no menu of yours.").arg(verdict.Menu);
}

void FoodPanel::ShowVerdict() {
    if (!form_.Judge) {
        verdict_->hide();
        return;
    }
    const EntryVerdict verdict = form_.Judge(form_);
    const QString text = VerdictText(verdict);
    verdict_->setText(text);
    WearTone(*verdict_, verdict.Passes() ? Tone::Accent : form_.AllZero() ? Tone::Ink : Tone::Alarm);
    eatb_->setAccessibleDescription(text);
}

QString FoodPanel::ClosingText() const {
    return form_.Mode == "TENTACLE"   ? QStringLiteral("carries nothing")
           : form_.SuggestedMenu == 0 ? QStringLiteral("eats nothing; your amoeba starves")
                                      : QStringLiteral("is refused, as your amoeba can eat");
}

}  // namespace plasmos
