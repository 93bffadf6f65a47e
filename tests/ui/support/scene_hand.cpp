// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the person of a scene presses and types.

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>

#include "tests/ui/support/scene.h"
#include "ui/board/puddle_view.h"
#include "ui/look/piece_layout.h"
#include "ui/window/leave_guard.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

void Scene::Click(const QString& name, Qt::MouseButton button) {
    QWidget* widget = Find(name);
    if (widget == nullptr || !widget->isVisible()) {
        Fail("there is no " + name.toStdString() + " to click");
        return;
    }
    Press(widget, button);
}

// Gives the point its place, brings it into sight, and says whether a press there arrives.
bool Scene::InReach(QWidget* control, QPoint& point) {
    if (control == nullptr) {
        Fail("there is no such control to press");
        return false;
    }
    if (point.x() < 0) {
        point = control->rect().center();
    }
    if (control->isVisible()) {
        hand_.Reveal(*control, point);
    }
    const std::string why = WhyOutOfReach(*control, point);
    if (!why.empty()) {
        Fail(why);
    }
    return why.empty();
}

void Scene::Press(QWidget* control, Qt::MouseButton button, QPoint point) {
    if (InReach(control, point)) {
        QTest::mouseClick(control->window()->windowHandle(), button, Qt::NoModifier,
                          control->mapTo(control->window(), point));
    }
}

void Scene::Hold(QWidget* control, Qt::MouseButton button) {
    if (QPoint point(-1, -1); InReach(control, point)) {
        QTest::mousePress(control->window()->windowHandle(), button, Qt::NoModifier,
                          control->mapTo(control->window(), point));
    }
}

void Scene::Release(QWidget* control, Qt::MouseButton button) {
    if (QPoint point(-1, -1); InReach(control, point)) {
        QTest::mouseRelease(control->window()->windowHandle(), button, Qt::NoModifier,
                            control->mapTo(control->window(), point));
    }
}

void Scene::DoubleClick(QWidget* widget, QPoint point, Qt::MouseButton button) {
    if (InReach(widget, point)) {
        QTest::mouseDClick(widget->window()->windowHandle(), button, Qt::NoModifier,
                           widget->mapTo(widget->window(), point));
    }
}

void Scene::Key(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* widget = Find(name);
    if (widget == nullptr || !widget->isVisible()) {
        Fail("there is no " + name.toStdString() + " for a key");
        return;
    }
    if (!widget->hasFocus() && widget->focusPolicy() != Qt::NoFocus) {
        Activate(*widget->window());
        widget->setFocus(Qt::TabFocusReason);
    }
    if (!widget->hasFocus()) {
        Fail(name.toStdString() + " has not got the keyboard");
        return;
    }
    QTest::keyClick(widget->window()->windowHandle(), key, modifiers);
}

QLineEdit* Scene::FieldToFill(const QString& name) {
    auto* field = qobject_cast<QLineEdit*>(Find(name));
    if (field == nullptr || !field->isVisible() || !field->isEnabled()) {
        Fail("there is no " + name.toStdString() + " to type into");
        return nullptr;
    }
    Activate(*field->window());
    field->setFocus();
    if (!field->hasFocus()) {
        Fail(name.toStdString() + " has not got the keyboard");
        return nullptr;
    }
    field->selectAll();
    return field;
}

void Scene::Type(const QString& name, const QString& text) {
    if (QLineEdit* field = FieldToFill(name); field != nullptr) {
        QWindow* window = field->window()->windowHandle();
        if (text.isEmpty()) {
            QTest::keyClick(window, Qt::Key_Delete);
        }
        for (const QChar letter : text) {
            QTest::keyClick(window, letter.toLatin1());
        }
    }
}

void Scene::Paste(const QString& name, const QString& text) {
    if (QLineEdit* field = FieldToFill(name); field != nullptr) {
        field->insert(text);
    }
}

void Scene::ClickSquare(int square, Qt::MouseButton button) {
    Press(&Puddle(), button, Puddle().PointAt(SquareMiddle(game, square)).toPoint());
}

void Scene::LeaveGame() {
    Menu(QStringLiteral("leavemen"));
    if (Sees(QStringLiteral("leavebox"))) {
        Click(QStringLiteral("leaveb"));
    }
}

QAction* Scene::Item(const QString& name) {
    return board_->findChild<QAction*>(name);
}

void Scene::Menu(const QString& name) {
    QAction* item = Item(name);
    if (item == nullptr) {
        Fail("there is no menu item " + name.toStdString());
        return;
    }
    std::vector<QMenu*> way;
    for (auto* menu = qobject_cast<QMenu*>(item->parent()); menu != nullptr;
         menu = qobject_cast<QMenu*>(menu->parentWidget())) {
        way.insert(way.begin(), menu);
    }
    if (way.empty()) {
        Fail(name.toStdString() + " is in no menu");
        return;
    }
    QMenuBar* bar = board_->menuBar();
    Press(bar, Qt::LeftButton, bar->actionGeometry(way.front()->menuAction()).center());
    for (std::size_t i = 0; i < way.size(); ++i) {
        if (!way[i]->isVisible()) {
            Fail("the menu " + way[i]->title().toStdString() + " does not open");
            return;
        }
        QAction* next = i + 1 < way.size() ? way[i + 1]->menuAction() : item;
        Press(way[i], Qt::LeftButton, way[i]->actionGeometry(next).center());
    }
    while (QWidget* open = QApplication::activePopupWidget()) {  // a greyed item leaves its menu open
        QTest::keyClick(open, Qt::Key_Escape);
    }
}

}  // namespace plasmos::testing
