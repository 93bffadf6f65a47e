// SPDX-License-Identifier: GPL-3.0-or-later
//
// Looking back at earlier boards while the game waits.

#include <QAction>
#include <QDir>
#include <QScrollBar>
#include <QTextBlock>

#include "record/play_record.h"
#include "tests/ui/support/stand.h"
#include "ui/board/puddle_view.h"
#include "ui/strip/log_view.h"
#include "ui/window/look_bar.h"
#include "ui/window/look_desk.h"

namespace plasmos::testing {

class LookBackTest : public QObject {
    Q_OBJECT

private slots:
    void keysGoThroughTurnsAndPhases();
    void theBarIsPressed();
    void nothingCanBeChangedThere();
    void onFromHere();
    void leftWhileLookingBack();
    void linesOfTheLogLeadToTheirMoment();
    void keysOfWhatPagesItself();
    void nothingOfTheLastGameInAGuidedOne();

private:
    static bool LooksBack(Scene& scene) { return scene.Board().History().Looking().LooksBack(); }
    static LogView* LogOf(Scene& scene) { return static_cast<LogView*>(scene.Find(QStringLiteral("txtLog"))); }
    static void Press(Scene& scene, Qt::Key key) { QTest::keyClick(scene.Board().windowHandle(), key); }
};

void LookBackTest::keysGoThroughTurnsAndPhases() {
    Scene scene;
    PlayTo(scene, 24, [&](Question&) {
        const auto& recorder = *scene.Board().History().Records().Recorder();
        const auto& chapters = recorder.Chapters();
        QVERIFY(chapters.size() > 8);
        const GameState now = game;
        for (std::size_t back = 1; back <= chapters.size(); ++back) {
            Press(scene, Qt::Key_PageUp);
            QVERIFY(LooksBack(scene));
            const auto& chapter = chapters[chapters.size() - back];
            const GameState& shown = scene.Puddle().State();
            QCOMPARE(shown.Turn, chapter.Turn);
            QVERIFY(shown.Phase == chapter.Phase);
            QCOMPARE(shown.Signature, StateAt(recorder.Record(), chapter.Moment).Signature);
            const QString name = chapter.Turn == 0
                                     ? QStringLiteral("Before the first turn")
                                     : QStringLiteral("Turn %1, %2").arg(chapter.Turn).arg(ToQt(chapter.Phase.View()));
            QCOMPARE(scene.Text(QStringLiteral("pastlab")), name);
        }
        Press(scene, Qt::Key_PageUp);
        QCOMPARE(scene.Puddle().State().Turn, 0);
        Press(scene, Qt::Key_PageDown);
        QCOMPARE(scene.Puddle().State().Turn, 1);
        Press(scene, Qt::Key_End);
        QVERIFY(!LooksBack(scene) && &scene.Puddle().State() == &game);
        Press(scene, Qt::Key_Home);
        QVERIFY(LooksBack(scene));
        Press(scene, Qt::Key_Escape);
        QTRY_VERIFY(!LooksBack(scene));
        Press(scene, Qt::Key_Home);
        QCOMPARE(scene.Puddle().State().Turn, 0);
        scene.Click(QStringLiteral("nowb"));
        QVERIFY(!LooksBack(scene) && !scene.Sees(QStringLiteral("nowb")));
        QVERIFY2(now.Signature == game.Signature && now.Turn == game.Turn, "the game has stayed where it was");
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

void LookBackTest::theBarIsPressed() {
    Scene scene;
    PlayTo(scene, 24, [&](Question&) {
        auto* bar = scene.Board().findChild<QAbstractSlider*>(QStringLiteral("turnbar"));
        scene.Press(bar, Qt::LeftButton, QPoint(bar->width() / 61, bar->height() / 2));
        QVERIFY(LooksBack(scene));
        QVERIFY(scene.Puddle().State().Turn <= 1);
        scene.Press(bar, Qt::LeftButton, QPoint(bar->width() - 2, bar->height() / 2));
        QVERIFY2(!LooksBack(scene), "what has not been played yet is now");
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

void LookBackTest::nothingCanBeChangedThere() {
    Scene scene;
    // A field that loses the keyboard is left, which changes nothing.
    const auto inputs = [&] {
        const InputList& given = scene.Board().History().Records().Recorder()->Inputs;
        return std::count_if(given.begin(), given.end(),
                             [](const Input& input) { return input.Given.What != Answer::Kind::LeaveField; });
    };
    int tried = 0;
    PlayTo(scene, 3, [&](Question& question) {
        const auto before = inputs();
        Press(scene, Qt::Key_PageUp);
        QVERIFY(LooksBack(scene));
        if (question.Kind == QuestionKind::YesNo) {
            ++tried;
            QVERIFY(!scene.Enabled(QStringLiteral("yesb")) || !scene.Sees(QStringLiteral("yesb")));
            Press(scene, Qt::Key_Y);
        }
        if (question.Kind == QuestionKind::Square) {
            ++tried;
            scene.ClickSquare(1);
            QVERIFY(scene.Puddle().Offered().empty());
        }
        if (question.Kind == QuestionKind::Food) {
            ++tried;
            QVERIFY(!scene.Find(QStringLiteral("eatb"))->isEnabled());
        }
        for (const char* item : {"fast_men", "easymen", "victorymen", "autoeat_men"}) {
            scene.Menu(QString::fromLatin1(item));
        }
        QTest::qWait(20);
        QCOMPARE(inputs(), before);
        Press(scene, Qt::Key_End);
        tried < 12 ? scene.Player().Answer(question) : scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(tried, 12);
}

void LookBackTest::onFromHere() {
    Scene scene;
    bool gone = false;
    PlayTo(scene, 24, [&](Question&) {
        if (gone) {
            scene.LeaveGame();
            return;
        }
        const auto turn = game.Turn;
        scene.Menu(QStringLiteral("firstmen"));
        scene.Menu(QStringLiteral("latermen"));
        gone = true;
        scene.Watch = [&scene, turn](Question&) {
            QCOMPARE(game.Turn, 1);
            QVERIFY(turn > 1 && !LooksBack(scene));
            QVERIFY(scene.Board().History().Records().CanGoAgain());
            const QDir games(ToQt(scene.Files().GamesFolder()));
            QVERIFY2(games.entryList({QStringLiteral("*.plasmos")}, QDir::Files).size() == 2,
                     "the game as it was is kept, too");
        };
        scene.Click(QStringLiteral("goonb"));
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(gone);
}

void LookBackTest::leftWhileLookingBack() {
    Scene scene;
    PlayTo(scene, 24, [&](Question&) {
        Press(scene, Qt::Key_PageUp);
        QVERIFY(LooksBack(scene));
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(!LooksBack(scene));
    QVERIFY2(scene.Puddle().Outlined().Clan == 0, "nobody acts any more");
    QVERIFY2(!scene.Item(QStringLiteral("autoeat_men"))->isEnabled(), "there is no game to eat in");
    QVERIFY(scene.Item(QStringLiteral("victorymen"))->isEnabled());
}

void LookBackTest::linesOfTheLogLeadToTheirMoment() {
    Scene scene;
    PlayTo(scene, 24, [&](Question& question) {
        if (question.Kind != QuestionKind::YesNo) {
            scene.Player().Answer(question);
            return;
        }
        auto* log = LogOf(scene);
        log->verticalScrollBar()->setValue(0);
        for (QTextBlock block = log->document()->begin(); block.isValid(); block = block.next()) {
            QVERIFY2(block.userState() > 0, qPrintable(block.text()));
        }
        const QTextBlock line = log->document()->findBlockByNumber(4);
        const QPoint place = log->cursorRect(QTextCursor(line)).center() + QPoint(30, 0);
        scene.Press(log->viewport(), Qt::LeftButton, place);
        QVERIFY(LooksBack(scene));
        const auto& recorder = *scene.Board().History().Records().Recorder();
        QCOMPARE(scene.Puddle().State().Signature, StateAt(recorder.Record(), line.userState()).Signature);
        QCOMPARE(log->extraSelections().size(), 1);
        QCOMPARE(log->extraSelections().first().cursor.block().userState(), line.userState());
        scene.Click(QStringLiteral("nowb"));
        QVERIFY(log->extraSelections().isEmpty());
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

void LookBackTest::keysOfWhatPagesItself() {
    Scene scene;
    PlayTo(scene, 24, [&](Question& question) {
        if (question.Kind != QuestionKind::YesNo) {
            scene.Player().Answer(question);
            return;
        }
        auto* log = LogOf(scene);
        log->setFocus();
        const int before = log->verticalScrollBar()->value();
        QVERIFY(before > 0);
        Press(scene, Qt::Key_PageUp);
        QVERIFY2(!LooksBack(scene) && log->verticalScrollBar()->value() < before,
                 "the log pages when it has the keyboard");
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

// It is not written down; what was is past.
void LookBackTest::nothingOfTheLastGameInAGuidedOne() {
    Scene scene;
    game.RequestedClans = 3;
    PLAY(scene, scene.Click(QStringLiteral("watchb")));
    QVERIFY(scene.Board().History().Records().HasGame());
    game.RequestedClans = 0;
    int seen = 0;
    scene.AnswerBy([&](Question& question) {
        if (++seen < 6) {
            scene.Player().Answer(question);
            return;
        }
        QVERIFY(!scene.Sees(QStringLiteral("whyb")) && !scene.Sees(QStringLiteral("turnbar")));
        QVERIFY(!scene.Item(QStringLiteral("savemen"))->isEnabled());
        LogView* log = LogOf(scene);
        for (QTextBlock block = log->document()->begin(); block.isValid(); block = block.next()) {
            QVERIFY(block.userState() <= 0);
        }
        Press(scene, Qt::Key_PageUp);
        QVERIFY(!LooksBack(scene));
        scene.Click(QStringLiteral("endguideb"));
    });
    PLAY(scene, scene.Menu(QStringLiteral("guidemen")));
    QVERIFY(!scene.Sees(QStringLiteral("summary")));
}

WINDOW_TESTS(look_back_test, LookBackTest)

}  // namespace plasmos::testing

#include "look_back_test.moc"
