// SPDX-License-Identifier: GPL-3.0-or-later
//
// The menus View and Help: colours, pace, pause and steps, motion, signs and keys; and the question before a game is
// left.

#include <QAction>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "questions/ask.h"
#include "tests/ui/support/position.h"
#include "ui/look/dress.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

void PressKey(Scene& scene, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(scene.Board().windowHandle(), key, modifiers);
}

bool IsChecked(Scene& scene, const char* name) {
    return scene.Item(QString::fromLatin1(name))->isChecked();
}

}  // namespace

class ViewMenusTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { WantScheme(std::nullopt); }
    void coloursAreKept();
    void paceIsKept_data();
    void paceIsKept();
    void damagedSettingsAreTheUsual_data();
    void damagedSettingsAreTheUsual();
    void motionIsKept();
    void aPausedGameStands();
    void aQuestionIsAnsweredWhilePaused();
    void nothingIsHeldAfterAGame();
    void signsAndKeysStayOpenBesideTheGame_data();
    void signsAndKeysStayOpenBesideTheGame();
    void whoStaysPlaysOn();
    void aGameThatIsNotKeptIsLeftWithoutDoubt();
    void theWindowAsksBeforeItLosesAGame();
    void theWindowClosesAtOnceWhenTheSessionEnds();
    void aWatchedGameIsLeftAtOnce();
};

void ViewMenusTest::coloursAreKept() {
    Scene scene;
    QVERIFY(IsChecked(scene, "colour_desktop"));
    scene.Menu(QStringLiteral("colour_dark"));
    QCOMPARE(CurrentScheme(), Scheme::Dark);
    scene.Reopen();
    QCOMPARE(CurrentScheme(), Scheme::Dark);
    QVERIFY(IsChecked(scene, "colour_dark"));
    scene.Menu(QStringLiteral("colour_desktop"));
    QVERIFY(!WantedScheme());
}

void ViewMenusTest::paceIsKept_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("name");
    QTest::newRow("slow") << static_cast<int>(Qt::Key_1) << QStringLiteral("pace_slow");
    QTest::newRow("normal") << static_cast<int>(Qt::Key_2) << QStringLiteral("pace_normal");
    QTest::newRow("fast") << static_cast<int>(Qt::Key_3) << QStringLiteral("pace_fast");
    QTest::newRow("instant") << static_cast<int>(Qt::Key_4) << QStringLiteral("pace_instant");
}

void ViewMenusTest::paceIsKept() {
    QFETCH(int, key);
    QFETCH(QString, name);
    Scene scene;
    PressKey(scene, static_cast<Qt::Key>(key), Qt::ControlModifier);
    QVERIFY(scene.Item(name)->isChecked());
    scene.Reopen();
    QVERIFY(scene.Item(name)->isChecked());
}

void ViewMenusTest::damagedSettingsAreTheUsual_data() {
    QTest::addColumn<QByteArray>("motion");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("a word") << QByteArray("much");
}

void ViewMenusTest::damagedSettingsAreTheUsual() {
    QFETCH(QByteArray, motion);
    const bool usual = IsChecked(*std::make_unique<Scene>(), "motionmen");
    Scene scene({{"look", "colours", "mauve"}, {"look", "pace", "17"}, {"look", "motion", motion.toStdString()}});
    QVERIFY(IsChecked(scene, "colour_desktop"));
    QVERIFY(IsChecked(scene, "pace_normal"));
    QCOMPARE(IsChecked(scene, "motionmen"), usual);
}

void ViewMenusTest::motionIsKept() {
    Scene scene;
    const bool before = IsChecked(scene, "motionmen");
    scene.Menu(QStringLiteral("motionmen"));
    scene.Reopen();
    QCOMPARE(IsChecked(scene, "motionmen"), !before);
}

// F8 holds the computer clans, F9 lets them take a step, and F8 lets them go.
void ViewMenusTest::aPausedGameStands() {
    Scene scene;
    scene.Board().SetSpeed(0.2);
    game.RequestedClans = 3;
    game.HasRequestedReplay = true;
    game.RequestedReplay = 3;
    qsizetype lines = 0;
    bool stood = false;
    bool stepped = false;
    QTimer::singleShot(400, &scene.Board(), [&] { PressKey(scene, Qt::Key_F8); });
    QTimer::singleShot(700, &scene.Board(), [&] { lines = scene.Log().size(); });
    QTimer::singleShot(1100, &scene.Board(), [&] {
        stood = lines > 0 && scene.Log().size() == lines;
        for (int step = 0; step < 3; ++step) {
            QTimer::singleShot(150 * step, &scene.Board(), [&] { PressKey(scene, Qt::Key_F9); });
        }
    });
    QTimer::singleShot(1900, &scene.Board(), [&] {
        stepped = scene.Log().size() > lines;
        scene.Board().SetSpeed(0);
        PressKey(scene, Qt::Key_F8);
    });
    PLAY(scene, scene.Click(QStringLiteral("watchb")));
    QVERIFY(stood);
    QVERIFY(stepped);
    QCOMPARE(game.Turn, LastTurn + 1);
}

void ViewMenusTest::aQuestionIsAnsweredWhilePaused() {
    PositionScene scene;
    scene.ThenYes("Will it?");
    PHASE(scene, PressKey(scene, Qt::Key_F8); QVERIFY(AskYesNo(3, "Will it?", 0)));
}

void ViewMenusTest::nothingIsHeldAfterAGame() {
    Scene scene;
    scene.Then(QuestionKind::Number, [&] {
        PressKey(scene, Qt::Key_F8);
        QVERIFY(IsChecked(scene, "pausemen"));
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(!IsChecked(scene, "pausemen"));
    QVERIFY(!scene.Item(QStringLiteral("pausemen"))->isEnabled());
    QVERIFY(!scene.Item(QStringLiteral("stepmen"))->isEnabled());
}

void ViewMenusTest::signsAndKeysStayOpenBesideTheGame_data() {
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("window");
    QTest::newRow("signs") << QStringLiteral("signsmen") << QStringLiteral("signs");
    QTest::newRow("keys") << QStringLiteral("keysmen") << QStringLiteral("keys");
}

void ViewMenusTest::signsAndKeysStayOpenBesideTheGame() {
    QFETCH(QString, item);
    QFETCH(QString, window);
    Scene scene;
    scene.Menu(item);
    auto* dialog = scene.Board().findChild<QDialog*>(window);
    QVERIFY(dialog != nullptr && dialog->isVisible() && !dialog->isModal());
    scene.Menu(item);
    QCOMPARE(scene.Board().findChildren<QDialog*>(window).size(), 1);
    scene.Then(QuestionKind::Number, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(dialog->isVisible());
    QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
    QVERIFY(!scene.Sees(window));
}

void ViewMenusTest::whoStaysPlaysOn() {
    PositionScene scene;
    scene.Then(QuestionKind::YesNo, [&] {
        scene.Menu(QStringLiteral("leavemen"));
        scene.Click(QStringLiteral("stayb"));
        scene.Soon([&] { scene.Click(QStringLiteral("yesb")); });
    });
    PHASE(scene, QVERIFY(AskYesNo(3, "Will it?", 0)));
    QVERIFY(!scene.WasEnded());
}

// Somebody else's file stands where games are kept.
void ViewMenusTest::aGameThatIsNotKeptIsLeftWithoutDoubt() {
    Scene scene;
    scene.Files().Rewrite("Games", "in the way");
    game.RequestedClans = 3;
    scene.Then(QuestionKind::Square, [&] {
        scene.Menu(QStringLiteral("leavemen"));
        QVERIFY(scene.Board().Playing());
        const auto* box = scene.Board().findChild<QMessageBox*>(QStringLiteral("leavebox"));
        QVERIFY(box != nullptr && box->defaultButton()->objectName() == QStringLiteral("stayb"));
        scene.Click(QStringLiteral("leaveb"));
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(!scene.WasEnded());
    QVERIFY(!scene.Board().Playing());
}

void ViewMenusTest::theWindowAsksBeforeItLosesAGame() {
    Scene scene;
    scene.Files().Rewrite("Games", "in the way");
    game.RequestedClans = 3;
    scene.Then(QuestionKind::Square, [&] {
        scene.Board().close();
        QVERIFY2(scene.Board().isVisible(), "the person has not been asked yet");
        scene.Click(QStringLiteral("leaveb"));
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(!scene.Board().isVisible());
}

void ViewMenusTest::theWindowClosesAtOnceWhenTheSessionEnds() {
    Scene scene;
    game.RequestedClans = 3;
    scene.Then(QuestionKind::Square, [&] { scene.Board().CloseAtOnce(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(!scene.Board().isVisible());
}

void ViewMenusTest::aWatchedGameIsLeftAtOnce() {
    Scene scene;
    scene.Board().SetSpeed(0.2);
    game.RequestedClans = 3;
    QTimer::singleShot(200, &scene.Board(), [&] {
        scene.Menu(QStringLiteral("leavemen"));
        QVERIFY(scene.Board().findChild<QMessageBox*>(QStringLiteral("leavebox")) == nullptr);
    });
    PLAY(scene, scene.Click(QStringLiteral("watchb")));
    QVERIFY(game.Turn <= LastTurn);
}

WINDOW_TESTS(view_menus_test, ViewMenusTest)

}  // namespace plasmos::testing

#include "view_menus_test.moc"
