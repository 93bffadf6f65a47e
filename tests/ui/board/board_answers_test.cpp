// SPDX-License-Identifier: GPL-3.0-or-later
//
// Answers at the board window: by the mouse, by keys, pressed twice, held, or where nobody asks.

#include <QTimer>
#include <QWindow>
#include <cstring>

#include "questions/ask.h"
#include "rules/movement.h"
#include "tests/ui/support/position.h"
#include "ui/board/puddle_view.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

class BoardAnswersTest : public QObject {
    Q_OBJECT

private slots:
    void aClickThatNobodyWants();
    void yesIsNoSquare();
    void doubleClicksAnswerOnce();
    void heldKeysAnswerNothing();
    void keysAnswer();
    void squaresByTheKeyboard();
    void clicksAtAnySize_data();
    void clicksAtAnySize();
};

void BoardAnswersTest::aClickThatNobodyWants() {
    PositionScene scene;
    scene.Then(QuestionKind::YesNo, [&] {
        const GameState before = game;
        for (int square = 1; square <= 25; ++square) {
            scene.ClickSquare(square);
            scene.ClickSquare(square, Qt::RightButton);
        }
        QCOMPARE(std::memcmp(&before, &game, sizeof before), 0);
        scene.Click(QStringLiteral("nob"));
    });
    PHASE(scene, QVERIFY(!AskYesNo(3, "Really?")));
    const GameState before = game;
    scene.ClickSquare(7);
    QCOMPARE(std::memcmp(&before, &game, sizeof before), 0);
}

void BoardAnswersTest::yesIsNoSquare() {
    PositionScene scene;
    scene.Then(QuestionKind::Square, [&] {
        yesb_Click();
        QCOMPARE(game.Reply, ReplyYes);
    });
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(game.WantSquare);
        QCOMPARE(game.Reply, -1);
        scene.ClickSquare(8);
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {6, 8}), 8));
    QVERIFY(!game.WantSquare);
}

void BoardAnswersTest::doubleClicksAnswerOnce() {
    PositionScene scene;
    scene.Then(QuestionKind::YesNo, [&] { scene.DoubleClick(scene.Find(QStringLiteral("yesb"))); });
    scene.Then(QuestionKind::YesNo, [&] {
        QCOMPARE(game.Reply, 0);
        scene.Click(QStringLiteral("nob"));
    });
    scene.Then(QuestionKind::Square, [&] {
        const QPointF middle = scene.Puddle().PointAt({600.0, 600.0 + 1200});
        scene.DoubleClick(&scene.Puddle(), middle.toPoint());
    });
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(game.ReplyY, -1);
        scene.ClickSquare(8);
    });
    PHASE(scene, QVERIFY(AskYesNo(3, "First?")); QVERIFY(!AskYesNo(3, "Second?"));
          QCOMPARE(AskSquare(3, "Where?", {6, 8}), 6); QCOMPARE(AskSquare(3, "Where now?", {6, 8}), 8));
}

void BoardAnswersTest::heldKeysAnswerNothing() {
    PositionScene scene;
    const auto hold = [&scene](const QString& name, Qt::Key key) {
        QWidget* widget = scene.Find(name);
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(widget, &event);
        }
    };
    scene.Then(QuestionKind::YesNo, [&] {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            hold(QStringLiteral("yesb"), key);
            hold(QStringLiteral("nob"), key);
        }
        QCOMPARE(game.Reply, 0);
        scene.Key(QStringLiteral("yesb"), Qt::Key_Space);
    });
    scene.Then(QuestionKind::Square, [&] {
        scene.Key(QStringLiteral("Picture1"), Qt::Key_Right);
        hold(QStringLiteral("Picture1"), Qt::Key_Return);
        QCOMPARE(game.Reply, -1);
        scene.ClickSquare(8);
    });
    scene.Then(QuestionKind::Box, [&] {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape}) {
            hold(QStringLiteral("okb"), key);
        }
        QCoreApplication::processEvents();
        QVERIFY(scene.Sees(QStringLiteral("okb")));
        scene.Key(QStringLiteral("okb"), Qt::Key_Return);
    });
    PHASE(scene, QVERIFY(AskYesNo(3, "Really?")); QCOMPARE(AskSquare(3, "Where?", {6, 8}), 8); ShowBox(3, "There."));
}

void BoardAnswersTest::keysAnswer() {
    PositionScene scene;
    scene.Then(QuestionKind::YesNo, [&] { QTest::keyClick(scene.Board().windowHandle(), Qt::Key_Y); });
    scene.Then(QuestionKind::YesNo, [&] { QTest::keyClick(scene.Board().windowHandle(), Qt::Key_N); });
    scene.Then(QuestionKind::YesNo, [&] {
        QCOMPARE(scene.Board().focusWidget(), scene.Find(QStringLiteral("yesb")));
        scene.Key(QStringLiteral("yesb"), Qt::Key_Return);
    });
    scene.Then(QuestionKind::Box, [&] { scene.Key(QStringLiteral("okb"), Qt::Key_Escape); });
    PHASE(scene, QVERIFY(AskYesNo(3, "One?")); QVERIFY(!AskYesNo(3, "Two?")); QVERIFY(AskYesNo(3, "Three?"));
          ShowBox(3, "Four."));
}

void BoardAnswersTest::squaresByTheKeyboard() {
    PositionScene scene;
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(scene.Board().focusWidget(), &scene.Puddle());
        for (const Qt::Key key :
             {Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up, Qt::Key_Left}) {
            scene.Key(QStringLiteral("Picture1"), key);
        }
        scene.Key(QStringLiteral("Picture1"), Qt::Key_Return);
    });
    scene.Then(QuestionKind::Square, [&] {
        scene.Key(QStringLiteral("Picture1"), Qt::Key_Right);
        scene.Key(QStringLiteral("Picture1"), Qt::Key_Space);
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {6, 8}), 8));
}

void BoardAnswersTest::clicksAtAnySize_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("cols");
    for (const QSize size : {QSize(940, 640), QSize(1320, 860), QSize(1900, 1000)}) {
        for (const auto& [rows, cols] : {std::pair{5, 5}, std::pair{4, 9}, std::pair{9, 4}, std::pair{3, 4}}) {
            QTest::addRow("%dx%d, %d rows, %d columns", size.width(), size.height(), rows, cols)
                << size << rows << cols;
        }
    }
}

void BoardAnswersTest::clicksAtAnySize() {
    QFETCH(QSize, size);
    QFETCH(int, rows);
    QFETCH(int, cols);
    Scene scene({{"board", "rows", std::to_string(rows)}, {"board", "cols", std::to_string(cols)}});
    scene.Board().resize(size);
    NewPosition(4, rows, cols);
    Person(3);
    game.UVLevel = 10;
    QCoreApplication::processEvents();
    std::vector<int> all;
    for (int square = 1; square <= rows * cols; ++square) {
        all.push_back(square);
    }
    PuddleView& puddle = scene.Puddle();
    QVERIFY2(std::abs(puddle.width() * rows - puddle.height() * cols) <= rows * cols, "the squares are not square");
    for (const int square : {1, cols, cols + 1, (rows - 1) * cols + 1, rows * cols}) {
        for (const double inset : {12.0, 600.0, 1187.0}) {
            scene.Then(QuestionKind::Square, [&scene, &puddle, square, cols, inset] {
                const QPointF units((square - 1) % cols * 1200 + inset, (square - 1) / cols * 1200 + inset);
                const QPoint point = puddle.PointAt(units).toPoint();
                scene.Press(&puddle, Qt::LeftButton,
                            {std::min(point.x(), puddle.width() - 1), std::min(point.y(), puddle.height() - 1)});
            });
        }
    }
    PHASE(
        scene, for (const int square
                    : {1, cols, cols + 1, (rows - 1) * cols + 1, rows * cols}) {
            for (int time = 1; time <= 3; ++time) {
                QCOMPARE(AskSquare(3, "Where?", all), square);
            }
        });
}

WINDOW_TESTS(board_answers_test, BoardAnswersTest)

}  // namespace plasmos::testing

#include "board_answers_test.moc"
