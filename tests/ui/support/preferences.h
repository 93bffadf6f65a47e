// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>

#include "model/board_size.h"
#include "tests/ui/support/scene.h"
#include "ui/options/options_dialog.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

/// A window whose options dialog is opened, used and closed.
class Preferences : public Scene {
public:
    explicit Preferences(const std::vector<SavedValue>& saved = {}) : Scene(saved) { OpenDialog(); }

    void OpenDialog() {
        Menu(QStringLiteral("pref_men"));
        QCoreApplication::processEvents();
    }
    OptionsDialog* Dialog() { return Board().findChild<OptionsDialog*>(QStringLiteral("frmOptions")); }
    bool IsOpen() { return Dialog() != nullptr && Dialog()->isVisible(); }
    QSpinBox* Side(const char* name) { return Dialog()->findChild<QSpinBox*>(QString::fromLatin1(name)); }
    QString Values() {
        return QStringLiteral("%1x%2 %3")
            .arg(Side("rowUD")->value())
            .arg(Side("colsUD")->value())
            .arg(Side("blockUD")->value());
    }
    void Step(const char* name, int by) {
        for (int i = 0; i < std::abs(by); ++i) {
            QTest::keyClick(Side(name), by > 0 ? Qt::Key_Up : Qt::Key_Down);
        }
    }
    QWidget* Picture() { return Dialog()->findChild<QWidget*>(QStringLiteral("optZyPict")); }
    /// The middle of a square of the small board.
    QPoint PlaceOf(int square) {
        const int cols = Side("colsUD")->value();
        const int side = Picture()->width() / cols;
        return {(square - 1) % cols * side + side / 2, (square - 1) / cols * side + side / 2};
    }
    void ClickPicture(int square, Qt::MouseButton button = Qt::LeftButton) {
        Scene::Press(Picture(), button, PlaceOf(square));
    }
    /// The border of a square's marker: "black", "yellow", or "none" where there is no marker.
    const char* Border(int square) {
        const QPoint left(PlaceOf(square).x() - 16, PlaceOf(square).y());
        const QColor colour = Picture()->grab().toImage().pixelColor(left);
        const bool dark = colour.red() < 90 && colour.green() < 90;
        return dark ? "black" : colour.red() > 200 && colour.green() > 200 && colour.blue() < 90 ? "yellow" : "none";
    }
    void Press(const char* button) {
        Scene::Press(Dialog()->findChild<QPushButton*>(QString::fromLatin1(button)));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    void TypeName(int clan, const QString& name) {
        auto* field = Dialog()->findChild<QLineEdit*>(QStringLiteral("pname%1").arg(clan));
        Dialog()->findChild<QTabWidget*>()->setCurrentIndex(1);
        field->setFocus();
        field->selectAll();
        name.isEmpty() ? field->del() : field->insert(name);
    }
    QString Label(const char* name) { return Dialog()->findChild<QLabel*>(QString::fromLatin1(name))->text(); }
    std::string Saved(const char* section, const char* key) { return Settings().Get(section, key, "none"); }
};

}  // namespace plasmos::testing
