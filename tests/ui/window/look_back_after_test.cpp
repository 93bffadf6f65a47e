// SPDX-License-Identifier: GPL-3.0-or-later
//
// Looking back at a game that is over.

#include "tests/ui/support/stand.h"
#include "ui/board/puddle_view.h"
#include "ui/strip/summary_panel.h"
#include "ui/strip/turn_chart.h"
#include "ui/window/look_desk.h"

namespace plasmos::testing {

class LookBackAfterTest : public QObject {
    Q_OBJECT

private slots:
    void theSummaryLeadsToItsTurns();
    void playAgainFromATurn();
    void thePastOfAFinishedGameIsLeftForAnother_data();
    void thePastOfAFinishedGameIsLeftForAnother();

private:
    static bool LooksBack(Scene& scene) { return scene.Board().History().Looking().LooksBack(); }
    static SummaryPanel* SummaryOf(Scene& scene) {
        return static_cast<SummaryPanel*>(scene.Find(QStringLiteral("summary")));
    }
    static void PressTurn(Scene& scene, int turn) {
        auto* chart = static_cast<TurnChart*>(scene.Find(QStringLiteral("turnchart")));
        scene.Press(chart, Qt::LeftButton, chart->PlaceOf(turn));
    }
};

void LookBackAfterTest::theSummaryLeadsToItsTurns() {
    Scene scene;
    scene.Board().resize(1320, 860);
    game.RequestedClans = 4;
    PLAY(scene, scene.Click(QStringLiteral("watchb")));
    auto* summary = SummaryOf(scene);
    QVERIFY(summary->isVisible() && scene.Sees(QStringLiteral("savegameb")) &&
            scene.Sees(QStringLiteral("playagainb")));
    for (const int turn : {3, 7, 0}) {
        PressTurn(scene, turn);
        QVERIFY(LooksBack(scene));
        QCOMPARE(scene.Puddle().State().Turn, turn);
    }
    scene.Click(QStringLiteral("nowb"));
    QVERIFY(!LooksBack(scene));
    QVERIFY(summary->isVisible());
}

void LookBackAfterTest::playAgainFromATurn() {
    Scene scene;
    PlayTo(scene, 100000, [](Question&) {});
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(IsOver());
    auto* summary = SummaryOf(scene);
    bool asked = false;
    scene.AnswerBy([&](Question&) {
        asked = true;
        QCOMPARE(game.Turn, 4);
        scene.LeaveGame();
    });
    const auto again = [&] {
        PressTurn(scene, 4);
        QCOMPARE(scene.Text(QStringLiteral("playagainb")), QStringLiteral("Play it again from turn 4"));
        scene.Click(QStringLiteral("playagainb"));
        QTRY_VERIFY(asked && !scene.Board().Playing());
    };
    PLAY(scene, again());
    QVERIFY(!summary->isVisible());
}

void LookBackAfterTest::thePastOfAFinishedGameIsLeftForAnother_data() {
    QTest::addColumn<QString>("control");
    QTest::addRow("taken back") << QStringLiteral("backmen");
    QTest::addRow("resumed") << QStringLiteral("resumeb");
    QTest::addRow("new") << QStringLiteral("gob");
}

void LookBackAfterTest::thePastOfAFinishedGameIsLeftForAnother() {
    QFETCH(QString, control);
    Scene scene;
    scene.Board().resize(1320, 860);
    Deal(6);
    scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    PlayTo(scene, 100000, [](Question&) {});
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    PressTurn(scene, 3);
    QVERIFY(LooksBack(scene));
    bool asked = false;
    scene.AnswerBy([&](Question&) {
        asked = true;
        QVERIFY(!LooksBack(scene) && &scene.Puddle().State() == &game);
        scene.LeaveGame();
    });
    const auto other = [&] {
        control == QStringLiteral("backmen") ? scene.Menu(control) : scene.Click(control);
        QTRY_VERIFY(asked && !scene.Board().Playing());
    };
    PLAY(scene, other());
}

WINDOW_TESTS(look_back_after_test, LookBackAfterTest)

}  // namespace plasmos::testing

#include "look_back_after_test.moc"
