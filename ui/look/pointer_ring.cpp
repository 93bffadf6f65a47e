// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/pointer_ring.h"

#include <QEvent>
#include <QPainter>
#include <utility>

#include "ui/look/theme.h"

namespace plasmos {

namespace {

constexpr int Around = 5;
constexpr double Halo = 5;
constexpr double Line = 3.5;

}  // namespace

PointerRing::PointerRing(QWidget* table) : QWidget(table) {
    setObjectName(QStringLiteral("pointerRing"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

// Whatever the control lies in may move, be hidden or scrolled.
void PointerRing::Listen(bool on) {
    for (QWidget* each = control_; each != nullptr && each != parentWidget(); each = each->parentWidget()) {
        if (on) {
            each->installEventFilter(this);
        } else {
            each->removeEventFilter(this);
        }
    }
}

void PointerRing::PointAt(QWidget* control, std::function<QRect()> place) {
    Listen(false);
    control_ = control;
    place_ = std::move(place);
    Listen(true);
    Follow();
}

QRect PointerRing::Place() const {
    if (control_ == nullptr) {
        return {};
    }
    return place_ ? place_() : control_->rect();
}

void PointerRing::Follow() {
    const bool shown = control_ != nullptr && control_->isVisible() && control_->isEnabled() &&
                       control_->visibleRegion().intersects(Place());
    if (shown) {
        const QRect place(control_->mapTo(parentWidget(), Place().topLeft()), Place().size());
        setGeometry(place.adjusted(-Around, -Around, Around, Around).intersected(parentWidget()->rect()));
        raise();
    }
    setVisible(shown);
}

bool PointerRing::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::EnabledChange:
            // The other filters and the widget itself come first.
            QMetaObject::invokeMethod(
                this, [this] { Follow(); }, Qt::QueuedConnection);
            break;
        default: break;
    }
    return QWidget::eventFilter(watched, event);
}

void PointerRing::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ring = QRectF(rect()).adjusted(Halo / 2, Halo / 2, -Halo / 2, -Halo / 2);
    painter.setPen(QPen(Shade(Tone::Card), Halo));
    painter.drawRoundedRect(ring, 10, 10);
    painter.setPen(QPen(Shade(Tone::Guide), Line));
    painter.drawRoundedRect(ring, 10, 10);
}

}  // namespace plasmos
