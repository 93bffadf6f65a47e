// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/arrow_keys.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <cstdlib>

namespace plasmos {

namespace {

constexpr QPoint Ways[] = {{-1, 0}, {0, -1}, {1, 0}, {0, 1}};

QPoint MiddleOf(const QWidget* control, const QWidget* part) {
    return control->mapTo(part, control->rect().center());
}

bool TakesFocus(const QWidget* control) {
    return control->isVisible() && control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) != 0;
}

}  // namespace

ArrowKeys::ArrowKeys(QWidget* part) : QObject(part), part_(part) {}

void ArrowKeys::Take() {
    for (QWidget* control : part_->findChildren<QWidget*>()) {
        if (control->focusPolicy() != Qt::NoFocus) {
            control->installEventFilter(this);
        }
    }
}

// A step aside counts three times. Where there is no control that way the focus stays.
bool ArrowKeys::Move(int key) {
    const QWidget* from = part_->focusWidget();
    if (key < Qt::Key_Left || key > Qt::Key_Down || from == nullptr || !part_->isAncestorOf(from)) {
        return false;
    }
    const QPoint way = Ways[key - Qt::Key_Left];
    QWidget* nearest = nullptr;
    int least = 0;
    for (QWidget* control : part_->findChildren<QWidget*>()) {
        const QPoint apart = MiddleOf(control, part_) - MiddleOf(from, part_);
        const int ahead = QPoint::dotProduct(apart, way);
        const int distance = ahead + 3 * std::abs(QPoint::dotProduct(apart, QPoint(way.y(), way.x())));
        if (control != from && TakesFocus(control) && ahead > 2 && (nearest == nullptr || distance < least)) {
            nearest = control;
            least = distance;
        }
    }
    if (nearest != nullptr) {
        nearest->setFocus(Qt::TabFocusReason);
    }
    return true;
}

// A field keeps the keys that move within its text.
bool ArrowKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool field = qobject_cast<QAbstractButton*>(watched) == nullptr;
    return !(field && (key == Qt::Key_Left || key == Qt::Key_Right)) && Move(key);
}

}  // namespace plasmos
