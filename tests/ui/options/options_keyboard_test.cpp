// SPDX-License-Identifier: GPL-3.0-or-later
//
// The options dialog without a mouse.

#include "tests/ui/support/preferences.h"

namespace plasmos::testing {

class OptionsKeyboardTest : public QObject {
    Q_OBJECT

private slots:
    void tabs();
    void whatIsTypedCountsBeforeItIsLeft();
    void stonesByKeyboard();
};

void OptionsKeyboardTest::tabs() {
    Preferences window;
    auto* pages = window.Dialog()->findChild<QTabWidget*>(QStringLiteral("tbsOptions"));
    QCOMPARE(pages->currentIndex(), 0);
    for (const char* from : {"rowUD", "pname1", "colsUD", "pname6"}) {
        auto* focus = window.Dialog()->findChild<QWidget*>(QString::fromLatin1(from));
        focus->setFocus();
        const int before = pages->currentIndex();
        QTest::keyClick(focus, Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(pages->currentIndex(), (before + 1) % 2);
    }
}

void OptionsKeyboardTest::whatIsTypedCountsBeforeItIsLeft() {
    Preferences window;
    QSpinBox* rows = window.Side("rowUD");
    rows->setFocus();
    rows->selectAll();
    QTest::keyClick(rows, Qt::Key_7);
    window.ClickPicture(1);
    QCOMPARE(window.Values(), QStringLiteral("7x5 1"));
    rows->setFocus();
    rows->selectAll();
    QTest::keyClick(rows, Qt::Key_6);
    QTest::keyClick(window.Dialog(), Qt::Key_A, Qt::AltModifier);
    QCoreApplication::processEvents();
    window.Dialog()->cmdApply_Click();
    QCOMPARE(window.Saved("board", "rows"), "6");
    window.Press("cmdCancel");
    QCOMPARE(game.NumRows, 6);
}

void OptionsKeyboardTest::stonesByKeyboard() {
    Preferences window;
    QWidget* picture = window.Picture();
    picture->setFocus();
    const auto press = [picture](Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(picture, key, with);
    };
    press(Qt::Key_Left);
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    QCOMPARE(window.Border(7), "black");
    press(Qt::Key_Space, Qt::ShiftModifier);
    QCOMPARE(window.Border(7), "yellow");
    press(Qt::Key_Right);
    press(Qt::Key_Space, Qt::ShiftModifier);
    QCOMPARE(window.Border(7), "none");
    QCOMPARE(window.Border(8), "black");
    press(Qt::Key_Space);
    QCOMPARE(window.Values(), QStringLiteral("5x5 0"));
}

WINDOW_TESTS(options_keyboard_test, OptionsKeyboardTest)

}  // namespace plasmos::testing

#include "options_keyboard_test.moc"
