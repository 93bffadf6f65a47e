// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the window marks: squares that may be clicked or are spoken of, and the clans' mutation levels.

#include <QTextEdit>
#include <algorithm>
#include <cmath>

#include "model/narration.h"
#include "questions/ask.h"
#include "tests/ui/support/position.h"
#include "ui/board/puddle_painter.h"
#include "ui/board/puddle_view.h"
#include "ui/look/palette.h"
#include "ui/strip/environment_view.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

class BoardMarksTest : public QObject {
    Q_OBJECT

private slots:
    void whatGlows();
    void theSquareAQuestionSpeaksOf();
    void whoALogLineIsAbout();
    void countsAreReadOnSmallSquares();
    void everyLevelIsSeen_data();
    void everyLevelIsSeen();
};

namespace {

/// The colour near a square's upper left corner, on a board of five columns.
QRgb CornerOf(Scene& scene, int square) {
    const QImage picture = scene.Puddle().grab().toImage();
    const QPointF point = scene.Puddle().PointAt(QPointF((square - 1) % 5 * 1200 + 150, (square - 1) / 5 * 1200 + 150));
    return picture.pixel(point.toPoint());
}

}  // namespace

void BoardMarksTest::theSquareAQuestionSpeaksOf() {
    PositionScene scene;
    const QRgb plain = CornerOf(scene, 12);
    scene.Then(QuestionKind::YesNo, [&] {
        QVERIFY(CornerOf(scene, 12) != plain);
        QVERIFY(scene.Puddle().Offered().empty());
        scene.Click(QStringLiteral("yesb"));
    });
    PHASE(scene, QVERIFY(AskYesNo(3, "Grendel will drift into 12.", 12)));
    QCOMPARE(CornerOf(scene, 12), plain);
    scene.Then(QuestionKind::YesNo, [&] {
        QCOMPARE(scene.Puddle().SpokenOf(), 0);
        scene.Click(QStringLiteral("nob"));
    });
    PHASE(scene, QVERIFY(!AskYesNo(3, "Divide?")));
}

void BoardMarksTest::whatGlows() {
    PositionScene scene;
    const auto pixel = [&scene](int square) { return CornerOf(scene, square); };
    const QRgb plain = pixel(12);
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(pixel(12) != plain);
        QCOMPARE(scene.Puddle().cursor().shape(), Qt::PointingHandCursor);
        scene.ClickSquare(12);
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {12, 13}), 12));
    QCOMPARE(pixel(12), plain);
    QCOMPARE(scene.Puddle().cursor().shape(), Qt::ArrowCursor);
}

void BoardMarksTest::whoALogLineIsAbout() {
    PositionScene scene;
    game.CurPlayer = 2;
    PHASE(scene, LogLine("by the acting clan"); TellPerson(3, "told to another"); game.AutoPlay = true;
          ShowBox(0, "told to all"); game.AutoPlay = false);
    const QString log = scene.Board().findChild<QTextEdit*>(QStringLiteral("txtLog"))->toPlainText();
    QVERIFY2(
        log.endsWith(SignCharacter(2) + " by the acting clan\n" + SignCharacter(3) + " told to another\ntold to all"),
        qPrintable(log));
}

// A figure of at least 8 pixels, in the smallest window with the most clans.
void BoardMarksTest::countsAreReadOnSmallSquares() {
    PositionScene scene(6);
    scene.Board().resize(940, 640);
    Feed(13, {0, 0, 0, 9, 0, 0});
    const QImage picture = scene.Puddle().grab().toImage();
    const double scale = scene.Puddle().width() / 6000.0;
    QVERIFY2(scale * 1200 < 100, "the squares are small");
    const QRectF food = FoodRect(game, 13, 4, scale);
    const QRect above = QRectF(scene.Puddle().PointAt(food.topLeft() - QPointF(0, 240)),
                               scene.Puddle().PointAt(food.topRight() - QPointF(0, 12)))
                            .toRect();
    int rows = 0;
    for (int y = above.top(); y < above.bottom(); ++y) {
        bool ink = false;
        for (int x = above.left(); x < above.right(); ++x) {
            ink = ink || picture.pixelColor(x, y).lightness() < 80;
        }
        rows += ink ? 1 : 0;
    }
    QVERIFY2(rows >= 8 && rows <= 14, Concat("rows of ink: ", rows).c_str());
}

void BoardMarksTest::everyLevelIsSeen_data() {
    QTest::addColumn<QList<int>>("levels");
    QTest::addColumn<bool>("exact");
    QTest::newRow("far apart") << QList<int>{0, 7, 14} << true;
    QTest::newRow("next to each other") << QList<int>{4, 5, 6, 14} << true;
    QTest::newRow("two below the bar and one at its start") << QList<int>{-2, -5, 0} << true;
    QTest::newRow("two above the bar") << QList<int>{25, 22, 3} << true;
    QTest::newRow("three alike") << QList<int>{9, 9, 9, 0} << true;
    QTest::newRow("six alike") << QList<int>{0, 0, 0, 0, 0, 0} << false;
    QTest::newRow("six alike at the end") << QList<int>{20, 20, 20, 20, 20, 20} << false;
    QTest::newRow("six almost alike") << QList<int>{4, 5, 4, 6, 5, 4} << false;
}

void BoardMarksTest::everyLevelIsSeen() {
    QFETCH(QList<int>, levels);
    QFETCH(bool, exact);
    PositionScene scene(static_cast<int>(levels.size()));
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        game.Players[clan].MutationLevel = levels[clan - 1];
    }
    const QRectF bar(100, 36, 96, 11);
    const std::vector<QPointF> marks = LevelMarks(game, bar);
    QCOMPARE(static_cast<int>(marks.size()), game.NumPlayers);
    for (std::size_t one = 0; one < marks.size(); ++one) {
        for (std::size_t other = 0; other < one; ++other) {
            const QPointF apart = marks[one] - marks[other];
            QVERIFY2(std::hypot(apart.x(), apart.y()) >= 9, "two marks cover each other");
        }
        const double level = std::clamp(levels[static_cast<int>(one)], 0, 20);
        const double aside = std::abs(marks[one].x() - (bar.left() + bar.width() * level / 20));
        QVERIFY2(exact ? aside < 0.01 : aside <= 12, "a mark stands far from its level");
        QVERIFY2(marks[one].y() > bar.bottom() && marks[one].y() <= bar.bottom() + 32, "a mark leaves the card");
    }
}

WINDOW_TESTS(board_marks_test, BoardMarksTest)

}  // namespace plasmos::testing

#include "board_marks_test.moc"
