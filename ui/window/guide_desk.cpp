// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/guide_desk.h"

#include <QAbstractButton>
#include <QScopeGuard>
#include <QScrollArea>

#include "record/guided_game.h"
#include "ui/look/palette.h"
#include "ui/look/pointer_ring.h"
#include "ui/window/answer_place.h"
#include "ui/window/guide_bar.h"
#include "ui/window/table_top.h"

namespace plasmos {

namespace {

const char* const OthersMove =
    "The other clans act, and a die decides what is not yours to decide. The log beside the board tells it line by "
    "line.";
const char* const OwnWay = "You go your own way now. What is asked is explained, and you decide. ";
const char* const Over =
    "That was the last lesson: play on as you like, what comes is explained; or end the tour and press Go. ";

QString Recommendation(const Answer& answer, const QWidget& window) {
    if (answer.What == Answer::Kind::Square) {
        return QStringLiteral("Recommended: click square %1").arg(answer.Number);
    }
    const auto* button = qobject_cast<const QAbstractButton*>(&window);
    QString caption = button != nullptr ? button->text() : QString();
    if (caption.isEmpty()) {
        caption = window.accessibleName();
    }
    return QStringLiteral("Recommended: %1").arg(caption.remove(QLatin1Char('&')).section(QLatin1Char('\n'), 0, 0));
}

/// Scrolls what lies around a control until the control is seen.
void BringIntoSight(QWidget* control, const QRect& place) {
    for (QWidget* each = control->parentWidget(); each != nullptr; each = each->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(each)) {
            const QPoint middle = control->mapTo(area->widget(), place.center());
            area->ensureVisible(middle.x(), middle.y(), 0, place.height());
        }
    }
}

}  // namespace

GuideDesk::GuideDesk(TableTop& table) : table_(&table), ring_(new PointerRing(&table)) {}

void GuideDesk::Play(const std::function<void()>& begun, const std::function<void()>& play) {
    GuidedGame guided;
    guided_ = &guided;
    table_->ShowGuide(true);
    const auto end = qScopeGuard([this] {
        guided_ = nullptr;
        ring_->PointAt(nullptr);
        table_->ShowGuide(false);
    });
    begun();
    Show(nullptr);
    play();
}

void GuideDesk::Show(const Question* top) {
    if (guided_ == nullptr) {
        return;
    }
    ring_->PointAt(nullptr);
    if (top == nullptr) {
        table_->Guide->Show(0, 0, QString::fromLatin1(OthersMove), {});
        return;
    }
    const Advice advice = guided_->AdviceFor(*top);
    QString note = ToQt(advice.Note);
    if (advice.Number == 0) {
        note.prepend(QString::fromLatin1(guided_->OnPath() ? Over : OwnWay));
    }
    QString recommended;
    if (advice.Recommended) {
        if (const AnswerPlace place = PlaceOfAnswer(*table_, *advice.Recommended); place.Control != nullptr) {
            BringIntoSight(place.Control, place.Place());
            if (qobject_cast<QAbstractButton*>(place.Control) != nullptr) {
                place.Control->setFocus(Qt::OtherFocusReason);
            }
            ring_->PointAt(place.Control, [place] { return place.Place(); });
            recommended = Recommendation(*advice.Recommended, *place.Control);
        }
    }
    table_->Guide->Show(advice.Number, static_cast<int>(Lessons().size()), note, recommended);
}

}  // namespace plasmos
