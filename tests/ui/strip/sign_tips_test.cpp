// SPDX-License-Identifier: GPL-3.0-or-later
//
// Signs tell what they mean where the pointer rests on them.

#include <QHelpEvent>
#include <QToolTip>

#include "tests/ui/support/position.h"
#include "ui/board/puddle_view.h"
#include "ui/strip/environment_view.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

/// What the desktop shows when the pointer rests at a point of a widget.
QString TipAt(QWidget* widget, QPoint point) {
    QToolTip::hideText();
    while (QToolTip::isVisible()) {
        constexpr int Moment = 20;
        QTest::qWait(Moment);
    }
    QHelpEvent help(QEvent::ToolTip, point, widget->mapToGlobal(point));
    QCoreApplication::sendEvent(widget, &help);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

}  // namespace

class SignTipsTest : public QObject {
    Q_OBJECT

private slots:
    void theFoodOfASquare();
    void theMarksUnderTheLevels();
    void scoreAndOrder();
};

void SignTipsTest::theFoodOfASquare() {
    PositionScene scene;
    Feed(12, {2, 0, 0, 1});
    game.Blocked[9] = true;
    const auto low = [&](int square) {
        return TipAt(
            &scene.Puddle(),
            scene.Puddle().PointAt({(square - 1) % 5 * 1200 + 500.0, (square - 1) / 5 * 1200 + 1100.0}).toPoint());
    };
    QCOMPARE(low(12), QStringLiteral("Food: 2 blue, 1 red"));
    QCOMPARE(low(13), QStringLiteral("Food: none"));
    QCOMPARE(low(9), QString());
    const QPoint piece = scene.Puddle().PointAt({1 * 1200 + 300.0, 1 * 1200 + 300.0}).toPoint();
    QCOMPARE(TipAt(&scene.Puddle(), piece), QString());
}

void SignTipsTest::theMarksUnderTheLevels() {
    PositionScene scene;
    game.Players[2].MutationLevel = 14;
    PHASE(scene, {});
    auto* view = scene.Find(QStringLiteral("turnlab"))->parentWidget();
    QStringList tips;
    for (int x = 0; x < view->width(); x += 5) {
        if (const QString tip = TipAt(view, {x, 54}); !tip.isEmpty() && !tips.contains(tip)) {
            tips << tip;
        }
    }
    QVERIFY2(tips.contains(QStringLiteral("Player 2: mutation level 14")), qPrintable(tips.join(u'|')));
    QVERIFY(tips.contains(QStringLiteral("Player 1: mutation level 0")));
}

void SignTipsTest::scoreAndOrder() {
    PositionScene scene;
    game.Players[3].Score = 7;
    PHASE(scene, {});
    QCOMPARE(scene.Find(QStringLiteral("orderlab2"))->toolTip(),
             QStringLiteral("Score 7, place 3 in the order of play"));
}

WINDOW_TESTS(sign_tips_test, SignTipsTest)

}  // namespace plasmos::testing

#include "sign_tips_test.moc"
