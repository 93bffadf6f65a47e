// SPDX-License-Identifier: GPL-3.0-or-later
//
// What stays after a game: everybody's place, a chart of the game over its turns, and what can be done next.

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QPushButton>
#include <QScreen>

#include "tests/ui/support/after_game.h"
#include "tests/ui/support/walk.h"
#include "ui/app/auto_person.h"
#include "ui/look/palette.h"

namespace plasmos::testing {

class SummaryTest : public QObject {
    Q_OBJECT

private slots:
    void init() { font_ = QApplication::font(); }
    void cleanup() { QApplication::setFont(font_); }

    void comesAfterAGameAndGoesWithTheNext();
    void aGameThatIsLeftHasNone();
    void aClearedRecordLeavesIt();
    void everybodysPlaceAndFigures();
    void arrowKeysGoFromControlToControl();
    void playItAgain();
    void whatHasNothingBehindItIsHidden();
    void newGame();
    void partsAreHeard();
    void signsAtTheEndsDoNotCoverEachOther_data() { sizes(); }
    void signsAtTheEndsDoNotCoverEachOther();
    void everythingIsInReach_data() { sizes(); }
    void everythingIsInReach();

private:
    static void sizes();

    QFont font_;
};

void SummaryTest::comesAfterAGameAndGoesWithTheNext() {
    Scene scene;
    QVERIFY(!scene.Sees(Named("summary")));
    game.RequestedClans = 3;
    bool during = false;
    scene.Watch = [&](Question&) { during = during || scene.Sees(Named("summary")); };
    scene.AnswerBy([&](Question& question) { scene.Player().Answer(question); });
    for (int played = 0; played < 2; ++played) {
        PLAY(scene, scene.Click(Named("gob")));
        QVERIFY(scene.Sees(Named("summary")));
        QVERIFY(scene.Sees(Named("titlelab")));
    }
    QVERIFY(!during);
}

void SummaryTest::aGameThatIsLeftHasNone() {
    Scene scene;
    game.RequestedClans = 3;
    scene.AnswerBy([&](Question& question) { game.Turn < 3 ? scene.Player().Answer(question) : scene.LeaveGame(); });
    PLAY(scene, scene.Click(Named("gob")));
    QVERIFY(!scene.Sees(Named("summary")));
}

void SummaryTest::aClearedRecordLeavesIt() {
    AfterGame scene(3);
    scene.Menu(Named("clearmen"));
    scene.Click(QStringLiteral("leaveb"));
    QVERIFY(scene.Summary().isVisible());
}

void SummaryTest::everybodysPlaceAndFigures() {
    AfterGame scene(6);
    const std::vector<SummaryRow>& rows = scene.Places().Rows();
    QCOMPARE(static_cast<int>(rows.size()), 6);
    for (int place = 1; place <= 6; ++place) {
        const SummaryRow& row = rows[static_cast<std::size_t>(place - 1)];
        QCOMPARE(row.Clan, ClanAtPlace(place));
        QCOMPARE(row.Name, ToQt(game.Players[row.Clan].Name.View()));
        QCOMPARE(row.Kind, ToQt(game.Players[row.Clan].PersonalityName.View()));
        QCOMPARE(row.Figures.Score, game.Players[row.Clan].Score);
        QCOMPARE(row.Figures.Amoebas, game.AmoebaCount[row.Clan]);
        QCOMPARE(row.Figures.BP, game.BP[row.Clan]);
    }
}

void SummaryTest::arrowKeysGoFromControlToControl() {
    AfterGame scene(3);
    scene.Click(Named("chart_score"));
    QVERIFY(scene.Find(Named("chart_score"))->hasFocus());
    for (const char* name : {"chart_score", "chart_amoebas", "chart_food"}) {
        QVERIFY2(scene.Find(Named(name))->hasFocus(), qPrintable(QApplication::focusWidget()->objectName()));
        scene.Key(Named(name), Qt::Key_Right);
    }
    scene.Key(Named("chart_mutation"), Qt::Key_Space);
    QVERIFY(scene.Words().startsWith(QStringLiteral("Turn 10: UV ")));
    scene.Key(Named("chart_mutation"), Qt::Key_Down);
    QVERIFY(scene.Picture().hasFocus());
    scene.Key(Named("turnchart"), Qt::Key_Up);
    QVERIFY(scene.Find(Named("chart_mutation"))->hasFocus());
    scene.Key(Named("chart_mutation"), Qt::Key_Down);
    scene.Key(Named("turnchart"), Qt::Key_Down);
    QVERIFY(!scene.Picture().hasFocus());
    const QWidget* button = QApplication::focusWidget();
    QVERIFY(scene.Summary().isAncestorOf(button));
    scene.Key(button->objectName(), Qt::Key_Up);
    QVERIFY(scene.Picture().hasFocus());
}

void SummaryTest::playItAgain() {
    AfterGame scene(3);
    QCOMPARE(scene.Text(Named("playagainb")), QStringLiteral("Play it again from a turn"));
    QVERIFY(!scene.Enabled(Named("playagainb")));
    scene.Press(&scene.Picture(), Qt::LeftButton, scene.Picture().PlaceOf(7));
    QCOMPARE(scene.Text(Named("playagainb")), QStringLiteral("Play it again from turn 7"));
    scene.Click(Named("playagainb"));
    scene.Press(&scene.Picture(), Qt::LeftButton, scene.Picture().PlaceOf(0));
    QCOMPARE(scene.Text(Named("playagainb")), QStringLiteral("Play it again from the start"));
    scene.Click(Named("playagainb"));
    QCOMPARE(scene.Again, QList<int>({7, 0}));
    scene.Click(Named("savegameb"));
    QCOMPARE(scene.Saved, 1);
}

void SummaryTest::whatHasNothingBehindItIsHidden() {
    AfterGame scene(3);
    scene.Summary().OnSave = nullptr;
    scene.Summary().OnPlayAgain = nullptr;
    scene.Summary().Show(scene.Kept());
    QVERIFY(!scene.Find(Named("savegameb"))->isVisible());
    QVERIFY(!scene.Find(Named("playagainb"))->isVisible());
    QVERIFY(scene.Sees(Named("newgameb")));
    scene.Press(&scene.Picture(), Qt::LeftButton, scene.Picture().PlaceOf(2));
    QCOMPARE(scene.Turns, QList<int>({2}));
}

void SummaryTest::newGame() {
    AfterGame scene(3);
    scene.AnswerBy([&](Question&) { scene.LeaveGame(); });
    PLAY(scene, scene.Click(Named("newgameb")));
    QVERIFY(scene.Asked() > 0);
    QVERIFY(!scene.Summary().isVisible());
}

void SummaryTest::partsAreHeard() {
    AfterGame scene(3);
    QAccessibleInterface* chart = QAccessible::queryAccessibleInterface(&scene.Picture());
    QCOMPARE(chart->text(QAccessible::Name), QStringLiteral("The score of every clan, turn after turn"));
    QCOMPARE(chart->childCount(), LastTurn + 1);
    QAccessibleInterface* turn = chart->child(4);
    QCOMPARE(turn->text(QAccessible::Name), ScoreWords(scene.Kept()[4]));
    turn->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(scene.Turns, QList<int>({4}));
    QAccessibleInterface* places = QAccessible::queryAccessibleInterface(&scene.Places());
    QCOMPARE(places->childCount(), 3);
    const SummaryRow& first = scene.Places().Rows().front();
    QVERIFY(places->child(0)
                ->text(QAccessible::Name)
                .startsWith(QStringLiteral("1. %1, %2, score %3, ")
                                .arg(first.Name, first.Kind, QString::number(first.Figures.Score))));
}

/// A window that is larger than its screen cannot be pressed all over.
#define NEEDS_A_SCREEN_OF(size)                                                 \
    if (const QSize screen = QGuiApplication::primaryScreen()->availableSize(); \
        screen.width() < (size).width() + UsualFrame.width() ||                 \
        screen.height() < (size).height() + UsualFrame.height())                \
    QSKIP("the screen is smaller")

void SummaryTest::sizes() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("points");
    QTest::newRow("small") << QSize(940, 640) << 10;
    QTest::newRow("usual") << QSize(1320, 860) << 10;
    QTest::newRow("large") << QSize(2560, 1440) << 10;
    QTest::newRow("large letters") << QSize(1320, 860) << 20;
    QTest::newRow("large letters, small window") << QSize(940, 640) << 20;
}

void SummaryTest::signsAtTheEndsDoNotCoverEachOther() {
    QFETCH(QSize, size);
    QFETCH(int, points);
    NEEDS_A_SCREEN_OF(size);
    QFont letters = font_;
    letters.setPointSize(points);
    QApplication::setFont(letters);
    for (const int clans : {3, 6}) {
        AfterGame scene(clans, size);
        for (const char* kind : Kinds) {
            scene.Click(Named(kind));
            const std::vector<QRect> ends = scene.Picture().EndPlaces();
            const bool level = kind == Kinds[3];
            QCOMPARE(static_cast<int>(ends.size()), clans + (level ? 1 : 0));
            for (std::size_t one = 0; one < ends.size(); ++one) {
                QVERIFY2(scene.Picture().rect().contains(ends[one]), kind);
                for (std::size_t other = 0; other < one; ++other) {
                    QVERIFY2(!ends[one].intersects(ends[other]), kind);
                }
            }
        }
    }
}

// Table and chart may have to be scrolled; what can be done stands below them.
void SummaryTest::everythingIsInReach() {
    QFETCH(QSize, size);
    QFETCH(int, points);
    NEEDS_A_SCREEN_OF(size);
    QFont letters = font_;
    letters.setPointSize(points);
    QApplication::setFont(letters);
    AfterGame scene(6, size);
    scene.Press(&scene.Picture(), Qt::LeftButton, scene.Picture().PlaceOf(6));
    QTest::qWait(20);
    TakePicture(scene, QStringLiteral("%1_%2.png").arg(size.width()).arg(points));
    for (const char* name : {"gob", "watchb", "txtReplay", "titlelab", "playagainb", "savegameb", "newgameb"}) {
        QCOMPARE(WhyNotWhole(scene.Find(Named(name))), std::string());
    }
    QVERIFY(scene.Board().rect().contains(
        scene.Summary().geometry().translated(scene.Summary().parentWidget()->mapTo(&scene.Board(), QPoint()))));
    for (const char* kind : Kinds) {
        scene.Click(Named(kind));
        QVERIFY2(scene.Ticked(Named(kind)), kind);
    }
    for (const int turn : {0, 5, 10}) {
        scene.Press(&scene.Picture(), Qt::LeftButton, scene.Picture().PlaceOf(turn));
        QCOMPARE(scene.Turns.last(), turn);
    }
    for (const char* name : {"playagainb", "savegameb"}) {
        scene.Click(Named(name));
    }
    QCOMPARE(scene.Again, QList<int>({10}));
    QCOMPARE(scene.Saved, 1);
}

static int RunOnALargeScreen(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("PLASMOS_SCREEN")) {
        qputenv("PLASMOS_SCREEN", "2700x1600");
    }
    return RunWindowTests<SummaryTest>(argc, argv);
}

static const WindowProgram summary_test("summary_test", &RunOnALargeScreen);

}  // namespace plasmos::testing

#include "summary_test.moc"
