// SPDX-License-Identifier: GPL-3.0-or-later
//
// The small window that tells which amoeba is under the pointer. Runs at several scale factors.

#include <QCursor>
#include <QLabel>
#include <QTimer>
#include <QToolTip>
#include <cmath>

#include "questions/ask.h"
#include "tests/ui/support/position.h"
#include "ui/board/puddle_view.h"
#include "ui/board/ttip.h"
#include "ui/look/piece_layout.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

constexpr int Band = 40;

/// The first whole number that lies beyond an edge.
int Beyond(double edge) {
    return static_cast<int>(std::floor(edge)) + 1;
}

/// The last whole number up to and with an edge.
int Within(double edge) {
    return static_cast<int>(std::floor(edge));
}

}  // namespace

/// A board where the pointer is.
class TipScene : public PositionScene {
public:
    TipScene() {
        Board().move(0, 0);
        QCoreApplication::processEvents();
    }
    QLabel* Tip() { return Board().findChild<QLabel*>(QStringLiteral("TTwin")); }
    QTimer* Timer() { return Board().findChild<QTimer*>(QStringLiteral("ttTimer")); }
    void PointAt(QPointF units) { QCursor::setPos(Puddle().mapToGlobal(Puddle().PointAt(units).toPoint())); }
    /// The timer's next tick comes at once.
    void Tick() { QVERIFY(QMetaObject::invokeMethod(Timer(), "timeout", Qt::DirectConnection)); }
};

class TooltipTest : public QObject {
    Q_OBJECT

private slots:
    void theBand();
    void theText();
    void whoComesFirst();
    void theDeadAreSilent();
    void everyPieceTellsItself();
    void showsAndHides();
    void followsThePointer();
    void anotherPieceAnotherText();
    void goesWhenThePieceGoes();
    void isGoneAfterAPress();
    void isGoneWhenSomethingIsAsked();
    void fitsItsLetters();
    void pointsAndUnits();
};

void TooltipTest::theBand() {
    const TipScene scene;
    const QRectF marker = MarkerOf(game, 3, 1);
    QVERIFY(!marker.isEmpty());
    const int x = static_cast<int>(marker.center().x());
    const int y = static_cast<int>(marker.center().y());
    const std::string text = "1- C1 (0)";
    QCOMPARE(TipTextAt(game, Within(marker.left()), y), std::string());
    QCOMPARE(TipTextAt(game, Beyond(marker.left()), y), text);
    QCOMPARE(TipTextAt(game, Within(marker.right()), y), text);
    QCOMPARE(TipTextAt(game, Beyond(marker.right()), y), std::string());
    QCOMPARE(TipTextAt(game, x, Within(marker.top())), std::string());
    QCOMPARE(TipTextAt(game, x, Within(marker.top() + Band)), std::string());
    QCOMPARE(TipTextAt(game, x, Beyond(marker.top() + Band)), text);
    QCOMPARE(TipTextAt(game, x, Beyond(marker.bottom())), text);
    QCOMPARE(TipTextAt(game, x, Within(marker.bottom() + Band)), text);
    QCOMPARE(TipTextAt(game, x, Beyond(marker.bottom() + Band)), std::string());
    QCOMPARE(TipTextAt(game, -1, -1), std::string());
    QCOMPARE(TipTextAt(game, 100000, 100000), std::string());
}

void TooltipTest::theText() {
    const TipScene scene;
    Put(1, 3, 12);
    game.Amoeba[3][1].Name = "Blue3";
    game.Amoeba[3][1].Damage = 1;
    const QPoint middle = MarkerOf(game, 1, 3).center().toPoint();
    QCOMPARE(TipTextAt(game, middle.x(), middle.y()), std::string("3- Blue3 (1)"));
}

// Markers that overlap: the lower clan is told, then the lower number.
void TooltipTest::whoComesFirst() {
    struct Row {
        int Clan, Amoeba, OtherClan, OtherAmoeba;
        const char* Text;
    };
    for (const Row& row : {Row{1, 2, 4, 1, "2- A2 (0)"}, Row{4, 1, 1, 2, "2- A2 (0)"}, Row{2, 5, 2, 3, "3- B3 (0)"},
                           Row{4, 6, 4, 7, "6- D6 (0)"}}) {
        const TipScene scene;
        Put(row.Clan, row.Amoeba, 13, 15);
        Put(row.OtherClan, row.OtherAmoeba, 13, 16);
        const QRectF both = MarkerOf(game, row.Clan, row.Amoeba) & MarkerOf(game, row.OtherClan, row.OtherAmoeba);
        QVERIFY2(both.width() > 2 && both.height() > 2, "the markers do not overlap");
        const QPoint middle = both.center().toPoint() + QPoint(0, Band);
        QCOMPARE(TipTextAt(game, middle.x(), middle.y()), std::string(row.Text));
    }
}

void TooltipTest::theDeadAreSilent() {
    const TipScene scene;
    const QPoint middle = MarkerOf(game, 3, 1).center().toPoint();
    LiftPiece(3, 1);
    QCOMPARE(TipTextAt(game, middle.x(), middle.y()), std::string());
    PutPiece(3, 1, 7, 0);
    QCOMPARE(TipTextAt(game, middle.x(), middle.y()), std::string());
}

void TooltipTest::everyPieceTellsItself() {
    const TipScene scene;
    for (int clan = 1; clan <= 4; ++clan) {
        for (int amoeba = 2; amoeba <= 7; ++amoeba) {
            Put(clan, amoeba, clan * 6);
        }
    }
    for (int clan = 1; clan <= 4; ++clan) {
        for (int amoeba = 2; amoeba <= 7; ++amoeba) {
            const QRectF marker = MarkerOf(game, clan, amoeba);
            bool told = false;
            for (int y = Beyond(marker.top() + Band); y <= marker.bottom() + Band && !told; y += 7) {
                for (int x = Beyond(marker.left()); x <= marker.right() && !told; x += 7) {
                    told = TipTextAt(game, x, y) == Concat(amoeba, "- ", game.Amoeba[amoeba][clan].Name, " (0)");
                }
            }
            QVERIFY2(told, Concat("clan ", clan, ", amoeba ", amoeba).c_str());
        }
    }
}

void TooltipTest::showsAndHides() {
    TipScene scene;
    QCOMPARE(scene.Timer()->interval(), 1500);
    QVERIFY(scene.Timer()->isActive() && !scene.Tip()->isVisible());
    scene.PointAt(MarkerOf(game, 3, 1).center());
    scene.Tick();
    QVERIFY(scene.Tip()->isVisible());
    QCOMPARE(scene.Tip()->text(), QStringLiteral("1- C1 (0)"));
    QCOMPARE(scene.Tip()->pos(), QCursor::pos() + QPoint(20, -2));
    QCOMPARE(scene.Timer()->interval(), 5);
    QVERIFY(scene.Tip()->width() >= scene.Tip()->fontMetrics().horizontalAdvance(scene.Tip()->text()));
    QVERIFY2(scene.Board().isActiveWindow(), "the tip takes the focus");
    scene.PointAt(QPointF(5500, 5500));
    QTRY_VERIFY(!scene.Tip()->isVisible());
    QCOMPARE(scene.Timer()->interval(), 1500);
}

void TooltipTest::followsThePointer() {
    TipScene scene;
    const QPointF middle = MarkerOf(game, 3, 1).center();
    scene.PointAt(middle);
    scene.Tick();
    for (const QPointF step : {QPointF(60, 0), QPointF(0, 60), QPointF(-60, -60)}) {
        scene.PointAt(middle + step);
        const QPoint expected = QCursor::pos() + QPoint(20, -2);
        QTRY_COMPARE(scene.Tip()->pos(), expected);
        QVERIFY(scene.Tip()->isVisible());
    }
}

void TooltipTest::anotherPieceAnotherText() {
    TipScene scene;
    Put(1, 2, 9);
    game.Amoeba[2][1].Name = "A much longer name";
    scene.PointAt(MarkerOf(game, 3, 1).center());
    scene.Tick();
    const int narrow = scene.Tip()->width();
    scene.PointAt(MarkerOf(game, 1, 2).center());
    QTRY_COMPARE(scene.Tip()->text(), QStringLiteral("2- A much longer name (0)"));
    QVERIFY(scene.Tip()->width() > narrow);
}

void TooltipTest::goesWhenThePieceGoes() {
    TipScene scene;
    scene.PointAt(MarkerOf(game, 3, 1).center());
    scene.Tick();
    QVERIFY(scene.Tip()->isVisible());
    game.Amoeba[1][3].Damage = 1;
    QTRY_COMPARE(scene.Tip()->text(), QStringLiteral("1- C1 (1)"));
    LiftPiece(3, 1);
    QTRY_VERIFY(!scene.Tip()->isVisible());
}

// It comes back when the pointer has been elsewhere.
void TooltipTest::isGoneAfterAPress() {
    TipScene scene;
    Put(1, 2, 13);
    const QPointF piece = MarkerOf(game, 3, 1).center();
    scene.PointAt(piece);
    scene.Tick();
    QVERIFY(scene.Tip()->isVisible());
    scene.Press(&scene.Puddle(), Qt::LeftButton, scene.Puddle().PointAt(piece).toPoint());
    QVERIFY(!scene.Tip()->isVisible());
    scene.Tick();
    QVERIFY2(!scene.Tip()->isVisible(), "the pointer is where it was");
    scene.PointAt(MarkerOf(game, 1, 2).center());
    scene.Tick();
    QVERIFY(scene.Tip()->isVisible());
    scene.PointAt(piece);
    scene.Tick();
    QCOMPARE(scene.Tip()->text(), QStringLiteral("1- C1 (0)"));
    QVERIFY(scene.Tip()->isVisible());
}

void TooltipTest::isGoneWhenSomethingIsAsked() {
    TipScene scene;
    scene.Then(QuestionKind::YesNo, [&] {
        QVERIFY(!scene.Tip()->isVisible());
        QTRY_VERIFY(!QToolTip::isVisible());
        scene.Tick();
        QVERIFY(!scene.Tip()->isVisible());
        scene.Click(QStringLiteral("nob"));
    });
    PHASE(scene, scene.PointAt(MarkerOf(game, 3, 1).center()); scene.Tick(); QVERIFY(scene.Tip()->isVisible());
          QToolTip::showText(QCursor::pos(), QStringLiteral("Bio-points"), &scene.Board());
          QVERIFY(QToolTip::isVisible()); QVERIFY(!AskYesNo(3, "Divide?")));
}

void TooltipTest::fitsItsLetters() {
    TipScene scene;
    const QFont usual = QApplication::font();
    scene.PointAt(MarkerOf(game, 3, 1).center());
    scene.Tick();
    const int narrow = scene.Tip()->width();
    QFont large = usual;
    large.setPointSize(20);
    QApplication::setFont(large);
    const QSize wanted = scene.Tip()->sizeHint();
    const QSize shown = scene.Tip()->size();
    QApplication::setFont(usual);
    QVERIFY(shown.width() > narrow);
    QCOMPARE(shown, wanted);
}

// A square is 1200 units wide and high whatever its size on the screen.
void TooltipTest::pointsAndUnits() {
    TipScene scene;
    for (const QSize size : {QSize(940, 640), QSize(1500, 900)}) {
        scene.Board().resize(size);
        QCoreApplication::processEvents();
        for (const QPointF units : {QPointF(0, 0), QPointF(1200, 3600), QPointF(3000, 600), QPointF(5990, 5990)}) {
            const QPointF back = scene.Puddle().UnitsAt(scene.Puddle().PointAt(units));
            QVERIFY(std::abs(back.x() - units.x()) <= 1 && std::abs(back.y() - units.y()) <= 1);
        }
        const double side = scene.Puddle().width() / 5.0;
        QVERIFY(std::abs(scene.Puddle().PointAt({1200, 0}).x() - side) < 0.01);
    }
}

WINDOW_TESTS(tooltip_test, TooltipTest)

}  // namespace plasmos::testing

#include "tooltip_test.moc"
