// SPDX-License-Identifier: GPL-3.0-or-later
//
// The labels of drift and UV level lend themselves to another figure at the right button.

#include <QLabel>
#include <QTimer>

#include "rules/environment.h"
#include "tests/ui/support/position.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

QString Drift() {
    return QStringLiteral("driftlab");
}

QString UV() {
    return QStringLiteral("UVlab");
}

QTimer* ZyTimer(Scene& scene) {
    return scene.Board().findChild<QTimer*>(QStringLiteral("zyTimer"));
}

}  // namespace

class LentLabelsTest : public QObject {
    Q_OBJECT

private slots:
    void driftTurnsBackAtASecondPress();
    void aLentLabelIsReadWhole();
    void driftLends();
    void driftGivesBackAtOnce();
    void uvLends_data();
    void uvLends();
    void oneLabelAtATime();
    void otherButtonsBorrowNothing();
};

void LentLabelsTest::driftTurnsBackAtASecondPress() {
    PositionScene scene;
    game.Drift = 5;
    game.ReplayNo = 47.5F;
    PHASE(scene, scene.Press(scene.Find(Drift()), Qt::RightButton);
          QCOMPARE(scene.Text(Drift()), QStringLiteral("47.5")); scene.Press(scene.Find(Drift()), Qt::RightButton);
          QCOMPARE(scene.Text(Drift()), QStringLiteral("Down"));
          scene.DoubleClick(scene.Find(Drift()), {-1, -1}, Qt::RightButton);
          QCOMPARE(scene.Text(Drift()), QStringLiteral("Down")));
}

void LentLabelsTest::aLentLabelIsReadWhole() {
    PositionScene scene;
    scene.Board().resize(940, 640);
    game.ReplayNo = 45231.42F;
    PHASE(
        scene, for (const QString& name
                    : {Drift(), UV()}) {
            auto* label = static_cast<QLabel*>(scene.Find(name));
            scene.Hold(label, Qt::RightButton);
            scene.Release(label, Qt::RightButton);
            QVERIFY2(label->fontMetrics().horizontalAdvance(label->text()) <= label->width(), qPrintable(name));
        });
}

void LentLabelsTest::driftLends() {
    PositionScene scene;
    game.Drift = 5;
    game.ReplayNo = 47.5F;
    PHASE(scene, QCOMPARE(scene.Text(Drift()), QStringLiteral("Down"));
          scene.Hold(scene.Find(Drift()), Qt::RightButton); QCOMPARE(scene.Text(Drift()), QStringLiteral("47.5"));
          QCOMPARE(ZyTimer(scene)->interval(), 3000); QVERIFY(ZyTimer(scene)->isActive()); game.Drift = 1;
          ZyTimer(scene)->start(1); QTRY_COMPARE(scene.Text(Drift()), QStringLiteral("Right"));
          QVERIFY(!ZyTimer(scene)->isActive()));
}

void LentLabelsTest::driftGivesBackAtOnce() {
    PositionScene scene;
    game.ReplayNo = 3;
    PHASE(scene, scene.Hold(scene.Find(Drift()), Qt::RightButton); QCOMPARE(scene.Text(Drift()), QStringLiteral("3"));
          scene.Hold(scene.Find(Drift()), Qt::RightButton); QCOMPARE(scene.Text(Drift()), QStringLiteral("in place"));
          QVERIFY(!ZyTimer(scene)->isActive()));
}

void LentLabelsTest::uvLends_data() {
    QTest::addColumn<int>("turn");
    QTest::addColumn<bool>("turned");
    QTest::addColumn<QString>("shown");
    QTest::newRow("cards to come: 12, 11, 10") << 8 << false << "11.0";
    QTest::newRow("the card of this turn has been turned: 11, 10") << 8 << true << "10.5";
    QTest::newRow("this turn's card lies there still: 11, 10") << 9 << false << "10.5";
    QTest::newRow("the last card") << 10 << false << "10.0";
    QTest::newRow("no card to come: the current level") << 10 << true << "09.0";
}

void LentLabelsTest::uvLends() {
    QFETCH(int, turn);
    QFETCH(bool, turned);
    QFETCH(QString, shown);
    PositionScene scene;
    game.EnvDeck[8].UV = 12;
    game.EnvDeck[9].UV = 11;
    game.EnvDeck[10].UV = 10;
    for (game.Turn = 1; game.Turn < turn || (game.Turn == turn && turned); ++game.Turn) {
        EnvironmentPhase();
    }
    game.Turn = turn;
    game.UVLevel = 9;
    PHASE(scene, scene.Hold(scene.Find(UV()), Qt::RightButton); QCOMPARE(scene.Text(UV()), QStringLiteral("9"));
          scene.Release(scene.Find(UV()), Qt::RightButton); QCOMPARE(scene.Text(UV()), shown);
          QCOMPARE(ZyTimer(scene)->interval(), 3000); QVERIFY(ZyTimer(scene)->isActive()); ZyTimer(scene)->start(1);
          QTRY_COMPARE(scene.Text(UV()), QStringLiteral("9")));
}

void LentLabelsTest::oneLabelAtATime() {
    PositionScene scene;
    game.ReplayNo = 3;
    game.Turn = game.TurnedCard = 10;
    PHASE(scene, scene.Hold(scene.Find(Drift()), Qt::RightButton); scene.Press(scene.Find(UV()), Qt::RightButton);
          QCOMPARE(scene.Text(Drift()), QStringLiteral("in place")); QCOMPARE(scene.Text(UV()), QStringLiteral("10.0"));
          ZyTimer(scene)->start(1); QTRY_COMPARE(scene.Text(UV()), QStringLiteral("10"));
          QCOMPARE(scene.Text(Drift()), QStringLiteral("in place")));
}

void LentLabelsTest::otherButtonsBorrowNothing() {
    PositionScene scene;
    PHASE(scene, scene.Press(scene.Find(Drift())); scene.Press(scene.Find(UV()));
          scene.Release(scene.Find(Drift()), Qt::RightButton);
          QCOMPARE(scene.Text(Drift()), QStringLiteral("in place")); QCOMPARE(scene.Text(UV()), QStringLiteral("10"));
          QVERIFY(!ZyTimer(scene)->isActive()));
}

WINDOW_TESTS(lent_labels_test, LentLabelsTest)

}  // namespace plasmos::testing

#include "lent_labels_test.moc"
