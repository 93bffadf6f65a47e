// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/app/hand.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QWheelEvent>
#include <QWindow>

#include "files/text.h"

namespace plasmos {

namespace {

constexpr int MostTurns = 200;
constexpr int NotchAngle = 120;

std::string Called(const QWidget* widget) {
    if (widget == nullptr) {
        return "nothing";
    }
    const QString name = widget->objectName();
    return (name.isEmpty() ? QString::fromLatin1(widget->metaObject()->className()) : name).toStdString();
}

/// The area that a control is scrolled in; none: nullptr. An area's own bars are not scrolled.
QScrollArea* AreaAround(const QWidget& control) {
    for (QWidget* parent = control.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        auto* area = qobject_cast<QScrollArea*>(parent);
        if (area != nullptr && area->viewport()->isAncestorOf(&control)) {
            return area;
        }
    }
    return nullptr;
}

}  // namespace

std::string WhyOutOfReach(const QWidget& control, QPoint point) {
    const std::string name = Called(&control);
    if (!control.isVisible()) {
        return name + " is hidden";
    }
    QWidget* window = control.window();
    for (const QWidget* before : {QApplication::activePopupWidget(), QApplication::activeModalWidget()}) {
        if (before != nullptr && before->window() != window) {
            return name + " has to wait for " + Called(before);
        }
    }
    const QPoint place = control.mapTo(window, point);
    if (!window->rect().contains(place)) {
        return Concat(name, " is outside its window, at ", place.x(), ", ", place.y(), " of ", window->width(), " x ",
                      window->height());
    }
    const QScreen* screen = window->screen();
    if (screen != nullptr && !screen->availableGeometry().contains(window->mapToGlobal(place))) {
        return name + " is off the screen";
    }
    const QWidget* uppermost = window->childAt(place);
    if (uppermost == nullptr && window == &control) {
        return {};
    }
    if (uppermost != &control && !control.isAncestorOf(uppermost)) {
        return name + " is covered: a press there reaches " + Called(uppermost);
    }
    return {};
}

void Hand::Reveal(QWidget& control, QPoint point) {
    const QScrollArea* area = AreaAround(control);
    for (int turn = 0; area != nullptr && turn < MostTurns; ++turn) {
        const QWidget* port = area->viewport();
        const int at = control.mapTo(port, point).y();
        if (at >= 0 && at < port->height()) {
            return;
        }
        TurnWheel(*control.window()->windowHandle(), port->mapTo(port->window(), port->rect().center()), at < 0);
    }
}

std::string Hand::Press(QWidget& control, QPoint point, Qt::MouseButton button) {
    if (control.isVisible()) {
        Reveal(control, point);
    }
    std::string why = WhyOutOfReach(control, point);
    if (why.empty()) {
        PressWindow(*control.window()->windowHandle(), control.mapTo(control.window(), point), button);
    }
    return why;
}

std::string Hand::Press(QWidget& control, Qt::MouseButton button) {
    return Press(control, control.rect().center(), button);
}

void WindowHand::PressWindow(QWindow& window, QPoint place, Qt::MouseButton button) {
    const QPointF global = window.mapToGlobal(QPointF(place));
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool press = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, QPointF(place), QPointF(place), global, button, press ? button : Qt::NoButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
    }
}

// Only what the window system sends is handed on by a widget that has no use for it.
void WindowHand::TurnWheel(QWindow& window, QPoint place, bool up) {
    QWidget* top = QWidget::find(window.winId());
    QWidget* widget = top->childAt(place);
    bool taken = false;
    for (; widget != nullptr && !taken; widget = widget->parentWidget()) {
        const QPointF point = widget->mapFrom(top, QPointF(place));
        QWheelEvent event(point, widget->mapToGlobal(point), QPoint(), QPoint(0, up ? NotchAngle : -NotchAngle),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        taken = QCoreApplication::sendEvent(widget, &event) && event.isAccepted();
    }
}

}  // namespace plasmos
