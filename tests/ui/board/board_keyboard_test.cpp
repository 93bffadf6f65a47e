// SPDX-License-Identifier: GPL-3.0-or-later
//
// The board by keys: a cursor that is seen on every ground goes through the squares.

#include <QImage>

#include "questions/ask.h"
#include "tests/ui/support/position.h"
#include "ui/board/puddle_painter.h"
#include "ui/board/puddle_view.h"
#include "ui/look/palette.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

const QString Board = QStringLiteral("Picture1");

void Press(Scene& scene, std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys) {
        scene.Key(Board, key);
    }
}

/// Whether dark and light lines of the cursor's frame cross the left edge of a square, on five columns.
bool HasFrame(Scene& scene, int square) {
    const QImage picture = scene.Puddle().grab().toImage();
    bool dark = false;
    bool light = false;
    for (int x = 0; x < 110; x += 4) {
        const QPointF units((square - 1) % 5 * 1200 + x, (square - 1) / 5 * 1200 + 400);
        const int lightness = picture.pixelColor(scene.Puddle().PointAt(units).toPoint()).lightness();
        dark = dark || lightness < 50;
        light = light || lightness > 235;
    }
    return dark && light;
}

}  // namespace

class BoardKeyboardTest : public QObject {
    Q_OBJECT

private slots:
    void tabGoesThroughTheOfferedSquares();
    void whoComesByTab();
    void theCursorIsKept();
    void theCursorIsSeenOnEveryGround();
    void theOfferAndTheFoodAreSeenUnderTheCursor();
    void aSquareThatIsNotOfferedSaysSo();
    void squaresAreReadWithoutAQuestion();
};

void BoardKeyboardTest::tabGoesThroughTheOfferedSquares() {
    PositionScene scene;
    scene.Then(QuestionKind::Square, [&] {
        std::vector<int> visited;
        for (int i = 0; i < 3; ++i) {
            scene.Key(Board, Qt::Key_Tab);
            visited.push_back(scene.Puddle().CursorSquare());
        }
        QCOMPARE(visited, (std::vector<int>{2, 6, 12}));
        scene.Key(Board, Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(scene.Puddle().CursorSquare(), 6);
        scene.Key(Board, Qt::Key_Return);
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {2, 6, 12}), 6));
}

// After the last square Tab goes on to the other controls; back again, the first or the last is at hand.
void BoardKeyboardTest::whoComesByTab() {
    PositionScene scene;
    scene.Then(QuestionKind::Square, [&] {
        Press(scene, {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab});
        QVERIFY(scene.Board().focusWidget() != &scene.Puddle());
        QTest::keyClick(scene.Board().windowHandle(), Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(scene.Board().focusWidget(), &scene.Puddle());
        QCOMPARE(scene.Puddle().CursorSquare(), 12);
        scene.Key(Board, Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(scene.Puddle().CursorSquare(), 2);
        scene.Key(Board, Qt::Key_Tab, Qt::ShiftModifier);
        QVERIFY(scene.Board().focusWidget() != &scene.Puddle());
        QTest::keyClick(scene.Board().windowHandle(), Qt::Key_Tab);
        QCOMPARE(scene.Board().focusWidget(), &scene.Puddle());
        QCOMPARE(scene.Puddle().CursorSquare(), 2);
        scene.Key(Board, Qt::Key_Space);
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {2, 12}), 2));
}

void BoardKeyboardTest::theCursorIsKept() {
    PositionScene scene;
    scene.Then(QuestionKind::Square, [&] { Press(scene, {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Space}); });
    scene.Then(QuestionKind::YesNo, [&] { scene.Click(QStringLiteral("yesb")); });
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(scene.Puddle().CursorSquare(), 11);
        Press(scene, {Qt::Key_Right, Qt::Key_Return});
    });
    GameState small;
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {6, 11}), 11); QVERIFY(AskYesNo(3, "Really?"));
          QCOMPARE(AskSquare(3, "Where?", {12, 13}), 12); small = game; small.NumRows = 2; small.NumSquares = 10;
          scene.Board().ShowState(small); QCOMPARE(scene.Puddle().CursorSquare(), 0); scene.Board().ShowState(game));
}

void BoardKeyboardTest::theCursorIsSeenOnEveryGround() {
    PositionScene scene;
    Put(1, 2, 8, 1);
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(!HasFrame(scene, 6));
        scene.Key(Board, Qt::Key_Tab);
        QVERIFY2(HasFrame(scene, 6), "on an offered square");
        scene.Key(Board, Qt::Key_Up);
        QVERIFY2(HasFrame(scene, 1), "on the water");
        QVERIFY(!HasFrame(scene, 6));
        Press(scene, {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right});
        QVERIFY2(HasFrame(scene, 8), "on a square with pieces");
        scene.ClickSquare(6);
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {6, 12}), 6));
}

// The gold frame goes round the cursor, and the food lies on it.
void BoardKeyboardTest::theOfferAndTheFoodAreSeenUnderTheCursor() {
    PositionScene scene;
    Feed(6, {3, 0, 2, 1});
    scene.Then(QuestionKind::Square, [&] {
        const auto lowestCubes = [&scene] {
            std::vector<QRgb> colours;
            const QImage picture = scene.Puddle().grab().toImage();
            for (const int clan : {1, 3, 4}) {
                const QRectF food = FoodRect(game, 6, clan, scene.Puddle().width() / 6000.0);
                constexpr QPointF beside(0.25, 0.2);  // of a cube, off its sign
                const QPointF point(food.left() + food.width() * beside.x(), food.bottom() - food.width() * beside.y());
                colours.push_back(picture.pixel(scene.Puddle().PointAt(point).toPoint()));
            }
            return colours;
        };
        const auto before = lowestCubes();
        scene.Key(Board, Qt::Key_Tab);
        QVERIFY(HasFrame(scene, 6));
        QCOMPARE(lowestCubes(), before);
        const QPoint edge = scene.Puddle().PointAt(QPointF(14, 1200 + 600)).toPoint();
        QCOMPARE(scene.Puddle().grab().toImage().pixelColor(edge), Shade(Tone::OfferEdge));
        scene.ClickSquare(6);
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {6, 12}), 6));
}

void BoardKeyboardTest::aSquareThatIsNotOfferedSaysSo() {
    const QString seven = QStringLiteral("Square 7 cannot be chosen now; the glowing ones can.");
    PositionScene scene;
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(scene.Text(QStringLiteral("hintlab")), QStringLiteral("Click one of the glowing squares."));
        scene.ClickSquare(7);
    });
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(scene.Sees(QStringLiteral("hintlab")));
        QCOMPARE(scene.Text(QStringLiteral("hintlab")), seven);
        scene.ClickSquare(12);
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {6, 12}), 12));
    QVERIFY(scene.Text(QStringLiteral("hintlab")) != seven);
}

void BoardKeyboardTest::squaresAreReadWithoutAQuestion() {
    PositionScene scene;
    scene.Then(QuestionKind::YesNo, [&] {
        scene.Puddle().setFocus(Qt::TabFocusReason);
        QCOMPARE(scene.Puddle().CursorSquare(), 0);
        Press(scene, {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return});
        QCOMPARE(scene.Puddle().CursorSquare(), 7);
        QVERIFY2(HasFrame(scene, 7), "without a question");
        scene.Key(Board, Qt::Key_Tab);
        QVERIFY(scene.Board().focusWidget() != &scene.Puddle());
        scene.Click(QStringLiteral("nob"));
    });
    PHASE(scene, QVERIFY(!AskYesNo(3, "Divide?")));
}

WINDOW_TESTS(board_keyboard_test, BoardKeyboardTest)

}  // namespace plasmos::testing

#include "board_keyboard_test.moc"
