// SPDX-License-Identifier: GPL-3.0-or-later
//
// How a menu is entered in the food dialog: by typing, by the step buttons, by keys.

#include "rules/feeding.h"
#include "tests/ui/support/meal.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

class DialogsFeedingEntryTest : public QObject {
    Q_OBJECT

private slots:
    void textsThatAreNoNumbers_data();
    void textsThatAreNoNumbers();
    void theStepButtons();
    void quickClicksAllCount();
    void theTabKeyGoesThroughTheDialog();
};

void DialogsFeedingEntryTest::textsThatAreNoNumbers_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("left");
    QTest::newRow("letters are not taken") << "abc"
                                           << "0"
                                           << "0";
    QTest::newRow("a sign is not taken") << "-1"
                                         << "0"
                                         << "0";
    QTest::newRow("a plus is not taken") << "+1"
                                         << "0"
                                         << "0";
    QTest::newRow("a fraction is not taken") << "1.5"
                                             << "0"
                                             << "0";
    QTest::newRow("empty") << ""
                           << ""
                           << "0";
    QTest::newRow("another alphabet's digits are not taken") << QString::fromUtf8("١") << "0"
                                                             << "0";
    QTest::newRow("a number stays") << "1"
                                    << "1"
                                    << "1";
    QTest::newRow("a large number stays") << "99999999999999999999"
                                          << "99999999999999999999"
                                          << "99999999999999999999";
}

void DialogsFeedingEntryTest::textsThatAreNoNumbers() {
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QFETCH(QString, left);
    MealScene scene;
    scene.ThenFood([&] {
        if (text.isEmpty()) {
            scene.Type(Field(2), text);
        } else {
            scene.Paste(Field(2), text);
        }
        QCOMPARE(scene.Text(Field(2)), shown);
        scene.Find(Field(4))->setFocus();
        QCOMPARE(scene.Text(Field(2)), left);
        scene.Enter({1, 1, 0, 1});
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(FoodOn(7), (std::vector<int>{0, 0, 7, 0}));
}

void DialogsFeedingEntryTest::theStepButtons() {
    MealScene scene;
    scene.ThenFood([&] {
        QVERIFY(!scene.Enabled(QStringLiteral("less1")) && scene.Enabled(QStringLiteral("more1")));
        QVERIFY(!scene.Enabled(QStringLiteral("more3")));
        scene.Click(QStringLiteral("more1"));
        QCOMPARE(scene.Text(Field(1)), QStringLiteral("1"));
        QVERIFY2(!scene.Enabled(QStringLiteral("more1")), "there is one piece only");
        scene.Click(QStringLiteral("less1"));
        QCOMPARE(scene.Text(Field(1)), QStringLiteral("0"));
        QVERIFY(game.Food[7][2] >= 1);
        scene.DoubleClick(scene.Find(QStringLiteral("more1")));
        QCOMPARE(scene.Text(Field(1)), QStringLiteral("1"));
        for (const int colour : {2, 4}) {
            scene.Click(QStringLiteral("more%1").arg(colour));
        }
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(FoodOn(7), (std::vector<int>{0, 0, 7, 0}));
}

void DialogsFeedingEntryTest::quickClicksAllCount() {
    MealScene scene;
    Feed(7, {4, 4, 0, 4});
    scene.ThenFood([&] {
        scene.DoubleClick(scene.Find(QStringLiteral("more2")));
        scene.Click(QStringLiteral("more2"));
        QCOMPARE(scene.Text(Field(2)), QStringLiteral("3"));
        scene.Enter({1, 1, 0, 1});
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
}

void DialogsFeedingEntryTest::theTabKeyGoesThroughTheDialog() {
    MealScene scene;
    scene.ThenFood([&] {
        const char* names[] = {"fdtxt1", "fdtxt2", "fdtxt4", "suggestb", "eatb"};
        for (const char* name : names) {
            QCOMPARE(QApplication::focusWidget()->objectName(), QString::fromLatin1(name));
            QTest::keyClick(scene.Board().windowHandle(), Qt::Key_Tab);
        }
        scene.Enter({1, 1, 0, 1});
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
}

WINDOW_TESTS(dialogs_feeding_entry_test, DialogsFeedingEntryTest)

}  // namespace plasmos::testing

#include "dialogs_feeding_entry_test.moc"
