// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the menus and the help behind them say: their letters, tool tips, signs and keys.

#include <QAction>
#include <QHelpEvent>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QToolTip>

#include "tests/ui/support/position.h"
#include "ui/look/dress.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

class MenuWordsTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { WantScheme(std::nullopt); }
    void noLetterIsMeantTwice();
    void darkIsD();
    void everySignAndKeyIsTold();
    void automaticEatingSaysThatItAttacks();
};

// In every menu, and in the bar of them, a letter means one item.
void MenuWordsTest::noLetterIsMeantTwice() {
    Scene scene;
    QList<QList<QAction*>> menus = {scene.Board().menuBar()->actions()};
    for (const QMenu* menu : scene.Board().findChildren<QMenu*>()) {
        menus << menu->actions();
    }
    int letters = 0;
    for (const QList<QAction*>& items : menus) {
        QMap<QKeySequence, QString> meant;
        for (const QAction* item : items) {
            const QKeySequence letter = QKeySequence::mnemonic(item->text());
            if (letter.isEmpty()) {
                continue;
            }
            ++letters;
            QVERIFY2(!meant.contains(letter), qPrintable(meant.value(letter) + " and " + item->text()));
            meant[letter] = item->text();
        }
    }
    QVERIFY(menus.size() >= 8 && letters >= 25);
}

void MenuWordsTest::darkIsD() {
    Scene scene;
    QTest::keyClick(scene.Board().windowHandle(), Qt::Key_V, Qt::AltModifier);
    for (const Qt::Key key : {Qt::Key_C, Qt::Key_D}) {
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QTest::keyClick(QApplication::activePopupWidget(), key);
    }
    QTRY_COMPARE(CurrentScheme(), Scheme::Dark);
}

void MenuWordsTest::everySignAndKeyIsTold() {
    Scene scene;
    scene.Menu(QStringLiteral("signsmen"));
    scene.Menu(QStringLiteral("keysmen"));
    QStringList told;
    for (const QLabel* label : scene.Board().findChildren<QLabel*>()) {
        told << label->text();
    }
    for (const char* text : {"The drift lets every amoeba go where it wants, free of charge.",
                             "the next and the previous control, or offered square"}) {
        QVERIFY2(told.contains(QString::fromLatin1(text)), text);
    }
    QCOMPARE(told.filter(QStringLiteral("attacks to eat, unasked")).size(), 1);
    QCOMPARE(told.filter(QStringLiteral("jumps over spaces that are taken")).size(), 1);
}

void MenuWordsTest::automaticEatingSaysThatItAttacks() {
    PositionScene scene;
    const QString tip = scene.Item(QStringLiteral("autoeat_men"))->toolTip();
    QVERIFY(tip.contains(QStringLiteral("attacks")) && tip.contains(QStringLiteral("Aggression")));
    QCOMPARE(scene.Board().findChild<QLabel*>(QStringLiteral("autoeatlab"))->toolTip(), tip);
    auto* options = scene.Board().findChild<QMenu*>(QStringLiteral("opt_men"));
    options->popup(scene.Board().mapToGlobal(QPoint(40, 40)));
    const QPoint item = options->actionGeometry(scene.Item(QStringLiteral("autoeat_men"))).center();
    QHelpEvent help(QEvent::ToolTip, item, options->mapToGlobal(item));
    QCoreApplication::sendEvent(options, &help);
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), tip);
    options->close();
}

WINDOW_TESTS(menu_words_test, MenuWordsTest)

}  // namespace plasmos::testing

#include "menu_words_test.moc"
