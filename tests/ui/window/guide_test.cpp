// SPDX-License-Identifier: GPL-3.0-or-later
//
// The guided game: offered beside Go at the very first start and under Help for ever, followed by pressing what the
// ring is around, left at any moment.

#include <QAction>
#include <QPushButton>

#include "record/guided_game.h"
#include "tests/ui/support/scene.h"
#include "ui/app/auto_person.h"
#include "ui/look/card.h"
#include "ui/look/pointer_ring.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

PointerRing& Ring(Scene& scene) {
    return dynamic_cast<PointerRing&>(*scene.Board().findChild<QWidget*>(QStringLiteral("pointerRing")));
}

/// The note is there, in letters that are all seen.
void LookAtNote(Scene& scene) {
    auto* note = dynamic_cast<FitLabel*>(scene.Find(QStringLiteral("guidenote")));
    QVERIFY(note != nullptr && note->isVisible());
    QVERIFY(!note->text().isEmpty());
    QVERIFY2(note->height() >= note->LeastHeightAt(note->width()), qPrintable(note->text()));
    QCOMPARE(WhyOutOfReach(*scene.Find(QStringLiteral("endguideb")), QPoint(8, 8)), std::string());
}

/// Presses what the ring is around, as long as it goes on to another control of the same question.
void Follow(Scene& scene) {
    LookAtNote(scene);
    const PointerRing& ring = Ring(scene);
    QVERIFY2(ring.isVisible(), qPrintable(scene.Text(QStringLiteral("guidenote"))));
    QVERIFY(scene.Text(QStringLiteral("guideadvice")).startsWith(QStringLiteral("Recommended: ")));
    QVERIFY(ring.geometry().contains(ring.Control()->mapTo(ring.parentWidget(), ring.Place().center())));
    const QWidget* before = ring.Control();
    scene.Press(ring.Control(), Qt::LeftButton, ring.Place().center());
    const Question* question = scene.Board().TopQuestion();
    if (question != nullptr && !question->Answered() && ring.isVisible() && ring.Control() != before) {
        Follow(scene);
    }
}

}  // namespace

class GuideTest : public QObject {
    Q_OBJECT

private slots:
    void isPlayedByItsRing_data();
    void isPlayedByItsRing();
    void goesOnWithoutAdviceOnAnotherWay();
    void isOfferedUntilAGameHasBegun();
    void leavesTheWindowAsItWas();
    void asksNothingWhenItIsLeft();
};

void GuideTest::isPlayedByItsRing_data() {
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(1320, 860), QSize(940, 640)}) {
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
    }
}

void GuideTest::isPlayedByItsRing() {
    QFETCH(QSize, size);
    Scene scene;
    scene.Board().resize(size);
    const int lessons = static_cast<int>(Lessons().size());
    int last = 0;
    scene.AnswerBy([&](Question&) {
        const QString title = scene.Text(QStringLiteral("guidetitle"));
        if (!title.contains(QLatin1Char(':'))) {
            LookAtNote(scene);
            QVERIFY(!Ring(scene).isVisible());
            scene.Click(QStringLiteral("endguideb"));
            return;
        }
        last = title.section(QLatin1Char(' '), -3, -3).toInt();
        Follow(scene);
    });
    PLAY(scene, scene.Click(QStringLiteral("guideb")));
    QCOMPARE(last, lessons);
    QVERIFY(!scene.Sees(QStringLiteral("guidebar")));
    QVERIFY(!scene.Sees(QStringLiteral("leavebox")));
}

void GuideTest::goesOnWithoutAdviceOnAnotherWay() {
    Scene scene;
    scene.Then(QuestionKind::Number, [&] { scene.Click(QStringLiteral("amopt4")); });
    int asked = 0;
    scene.AnswerBy([&](Question& question) {
        LookAtNote(scene);
        QVERIFY(!Ring(scene).isVisible());
        QVERIFY(scene.Text(QStringLiteral("guidenote")).startsWith(QStringLiteral("You go your own way now.")));
        QVERIFY(scene.Text(QStringLiteral("guideadvice")).isEmpty());
        if (++asked == 12) {
            scene.Click(QStringLiteral("endguideb"));
        } else {
            scene.Player().Answer(question);
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("guideb")));
    QCOMPARE(asked, 12);
}

void GuideTest::isOfferedUntilAGameHasBegun() {
    Scene scene;
    QVERIFY(scene.Sees(QStringLiteral("guideb")));
    scene.Reopen();
    QVERIFY(scene.Sees(QStringLiteral("guideb")));
    scene.AnswerBy([&](Question&) { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(!scene.Sees(QStringLiteral("guideb")));
    scene.Reopen();
    QVERIFY(!scene.Sees(QStringLiteral("guideb")));
    scene.AnswerBy([&](Question&) {
        LookAtNote(scene);
        scene.Click(QStringLiteral("endguideb"));
    });
    PLAY(scene, scene.Menu(QStringLiteral("guidemen")));
    QVERIFY(scene.Item(QStringLiteral("guidemen"))->isEnabled());
}

void GuideTest::leavesTheWindowAsItWas() {
    Scene scene({{"board", "rows", "4"}, {"board", "cols", "3"}, {"players", "name3", "Me"}});
    scene.Menu(QStringLiteral("twoplayermen"));
    scene.AnswerBy([&](Question& question) {
        QCOMPARE(game.NumSquares, 25);
        QVERIFY(!scene.Item(QStringLiteral("victorymen"))->isEnabled());
        QVERIFY(!scene.Item(QStringLiteral("normmen"))->isEnabled());
        if (question.Kind == QuestionKind::YesNo) {
            scene.Click(QStringLiteral("endguideb"));
        } else {
            Follow(scene);
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("guideb")));
    QCOMPARE(game.NumSquares, 12);
    QVERIFY(game.Menu.twoplayermen);
    QVERIFY(game.Menu.normmen);
    QVERIFY(scene.Item(QStringLiteral("victorymen"))->isEnabled());
    QCOMPARE(scene.Settings().Get("results", "games3", "none"), std::string("none"));
    QVERIFY(services.Files == &scene.Files());
}

void GuideTest::asksNothingWhenItIsLeft() {
    Scene scene;
    scene.Then(QuestionKind::Number, [&] { Follow(scene); });
    scene.Then(QuestionKind::Square, [&] { scene.Menu(QStringLiteral("leavemen")); });
    PLAY(scene, scene.Click(QStringLiteral("guideb")));
    QVERIFY(!scene.Sees(QStringLiteral("leaveb")));
}

WINDOW_TESTS(guide_test, GuideTest)

}  // namespace plasmos::testing

#include "guide_test.moc"
