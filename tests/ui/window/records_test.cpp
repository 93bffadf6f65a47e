// SPDX-License-Identifier: GPL-3.0-or-later
//
// Games are kept while they are played, resumed, saved and opened.

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include "record/play_record.h"
#include "record/record_file.h"

#include "tests/ui/support/stand.h"

namespace plasmos::testing {

namespace {

/// Pulls the menu of recent games down and gives it.
QMenu* PullRecent(Scene& scene) {
    auto* bar = scene.Board().menuBar();
    auto* file = scene.Board().findChild<QMenu*>(QStringLiteral("fil_men"));
    auto* recent = scene.Board().findChild<QMenu*>(QStringLiteral("recentmen"));
    scene.Press(bar, Qt::LeftButton, bar->actionGeometry(file->menuAction()).center());
    scene.Press(file, Qt::LeftButton, file->actionGeometry(recent->menuAction()).center());
    return recent;
}

void CloseMenus() {
    while (QWidget* open = QApplication::activePopupWidget()) {
        QTest::keyClick(open, Qt::Key_Escape);
    }
}

/// Types a file's name, which has the keyboard in such a dialog, and presses Return.
void GiveName(QFileDialog& dialog, const QString& path) {
    QTRY_VERIFY(dialog.isVisible() && dialog.focusWidget() != nullptr);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(dialog.focusWidget(), path);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
}

}  // namespace

class RecordsTest : public QObject {
    Q_OBJECT

private slots:
    void leavingAsksNothingAndTheGameWaits();
    void aClosedWindowOffersTheGame();
    void theLastTenAreKept();
    void aGameThatIsOverIsNotKept();
    void savedAndOpened();
    void openedInTheMiddleOfAnother();
    void ofAnotherBoard();
    void aGameThatCannotBeKeptGoesOn();

private:
    static QString GamesOf(Scene& scene) { return ToQt(scene.Files().GamesFolder()); }
    static QStringList Kept(Scene& scene) {
        return QDir(GamesOf(scene)).entryList({QStringLiteral("*.plasmos")}, QDir::Files);
    }
};

// ---- kept ----

void RecordsTest::leavingAsksNothingAndTheGameWaits() {
    Scene scene;
    Deal(5);
    Stand stood;
    scene.Then(QuestionKind::Square, [&] { scene.ClickSquare(1); });
    scene.Watch = [&](Question& question) { stood = StandOf(scene, question); };
    scene.Then(QuestionKind::Square, [&] {
        scene.Menu(QStringLiteral("leavemen"));
        QVERIFY(!scene.Sees(QStringLiteral("leavebox")));
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(Kept(scene).size(), 1);
    QVERIFY(scene.Sees(QStringLiteral("resumeb")));
    QCOMPARE(scene.Text(QStringLiteral("resumelab")), QStringLiteral("Before the first turn, 3 clans"));
    const Stand left = stood;
    bool resumed = false;
    scene.Watch = nullptr;
    scene.AnswerBy([&](Question& question) {
        resumed = true;
        CompareStands(StandOf(scene, question), left);
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("resumeb")));
    QTRY_VERIFY(resumed && !scene.Board().Playing());
    QCOMPARE(Kept(scene).size(), 1);
}

void RecordsTest::aClosedWindowOffersTheGame() {
    Scene scene;
    Deal(5);
    int seen = 0;
    std::uint64_t signature = 0;
    scene.AnswerBy([&](Question& question) {
        if (++seen == 15) {
            signature = game.Signature;
            scene.Board().close();
        } else {
            scene.Player().Answer(question);
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(!scene.Board().isVisible());
    scene.Reopen();
    QVERIFY(scene.Sees(QStringLiteral("resumeb")));
    QVERIFY2(scene.Board().focusWidget() == scene.Find(QStringLiteral("gob")), "it never asks in the way");
    bool resumed = false;
    scene.AnswerBy([&](Question&) {
        resumed = true;
        QCOMPARE(game.Signature, signature);
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("resumeb")));
    QTRY_VERIFY(resumed && !scene.Board().Playing());
}

void RecordsTest::theLastTenAreKept() {
    Scene scene;
    for (int number = 1; number <= 12; ++number) {
        Deal(static_cast<float>(number));
        scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
        PLAY(scene, scene.Click(QStringLiteral("gob")));
    }
    QCOMPARE(Kept(scene).size(), 10);
    QMenu* recent = PullRecent(scene);
    QVERIFY(recent->isVisible());
    QCOMPARE(recent->actions().size(), 10);
    QVERIFY(
        recent->actions().first()->text().startsWith(QStringLiteral("Before the first turn, 3 clans, replay 12 (")));
    bool opened = false;
    scene.AnswerBy([&](Question&) {
        opened = true;
        QCOMPARE(game.ReplayNo, 10.0F);
        scene.LeaveGame();
    });
    const auto third = [&] {
        scene.Press(recent, Qt::LeftButton, recent->actionGeometry(recent->actions()[2]).center());
        QTRY_VERIFY(opened && !scene.Board().Playing());
    };
    PLAY(scene, third());
    QCOMPARE(Kept(scene).size(), 10);
}

void RecordsTest::aGameThatIsOverIsNotKept() {
    Scene scene;
    Deal(5);
    scene.AnswerBy([&](Question& question) { scene.Player().Answer(question); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(Kept(scene).size(), 0);
    QVERIFY(!scene.Sees(QStringLiteral("resumeb")));
}

// ---- saved and opened ----

void RecordsTest::savedAndOpened() {
    Scene scene;
    Deal(5);
    const QString path = scene.Folder() + QStringLiteral("/mine v1.2.plasmos");
    int seen = 0;
    Stand saved;
    scene.AnswerBy([&](Question& question) {
        if (++seen < 20 || question.Kind == QuestionKind::Box) {
            scene.Player().Answer(question);
            return;
        }
        saved = StandOf(scene, question);
        scene.Menu(QStringLiteral("savemen"));
        auto* dialog = scene.Board().findChild<QFileDialog*>(QStringLiteral("savedialog"));
        QVERIFY(dialog != nullptr && dialog->isVisible());
        QVERIFY2(scene.Board().Playing(), "the game waits behind the dialog");
        GiveName(*dialog, QString(path).remove(QStringLiteral(".plasmos")));
        QTRY_VERIFY2(QFile::exists(path), "a name with a dot in it gets the ending, too");
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(ReadRecordFile(path.toStdString()).Fault.Told(), std::string());
    bool opened = false;
    scene.AnswerBy([&](Question& question) {
        opened = true;
        CompareStands(StandOf(scene, question), saved);
        scene.LeaveGame();
    });
    const auto open = [&] {
        scene.Menu(QStringLiteral("openmen"));
        auto* dialog = scene.Board().findChild<QFileDialog*>(QStringLiteral("opendialog"));
        QVERIFY(dialog != nullptr && dialog->isVisible());
        GiveName(*dialog, path);
        QTRY_VERIFY(opened && !scene.Board().Playing());
    };
    PLAY(scene, open());
    QCOMPARE(PullRecent(scene)->actions().last()->text(), QStringLiteral("mine v1.2.plasmos"));
    CloseMenus();
}

void RecordsTest::openedInTheMiddleOfAnother() {
    Scene scene;
    Deal(5);
    scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    const QString first = Kept(scene).first();
    Deal(6);
    int seen = 0;
    scene.AnswerBy([&](Question& question) {
        if (++seen == 5) {
            scene.Board().OpenGame(GamesOf(scene) + QStringLiteral("/") + first);
        } else if (game.ReplayNo == 5) {
            scene.LeaveGame();
        } else {
            scene.Player().Answer(question);
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(seen, 6);
    QCOMPARE(Kept(scene).size(), 2);
}

void RecordsTest::ofAnotherBoard() {
    Scene scene({{"board", "rows", "4"}, {"board", "cols", "4"}});
    Deal(5);
    scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    const QString path = GamesOf(scene) + QStringLiteral("/") + Kept(scene).first();
    QFile::copy(path, scene.Folder() + QStringLiteral("/small.plasmos"));
    scene.Settings().Save("board", "rows", "6");
    scene.Settings().Save("board", "cols", "6");
    scene.Reopen();
    QCOMPARE(game.NumSquares, 36);
    bool opened = false;
    scene.AnswerBy([&](Question&) {
        QCOMPARE(game.NumSquares, 16);
        if (std::exchange(opened, true)) {
            scene.LeaveGame();
        } else {
            scene.ClickSquare(16);
        }
    });
    const auto open = [&] {
        scene.Board().OpenGame(scene.Folder() + QStringLiteral("/small.plasmos"));
        QTRY_VERIFY(opened && !scene.Board().Playing());
    };
    PLAY(scene, open());
    scene.AnswerBy(nullptr);
    Deal(8);
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY2(game.NumSquares == 36, "a new game is played on the person's own board");
        scene.ClickSquare(36);
    });
    scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

void RecordsTest::aGameThatCannotBeKeptGoesOn() {
    Scene scene;
    scene.Files().Rewrite("Games", "in the way");
    Deal(5);
    int seen = 0;
    scene.AnswerBy([&](Question& question) {
        ++seen;
        if (seen == 10) {
            QCOMPARE(scene.Board().findChildren<QMessageBox*>().size(), 1);
            QVERIFY(scene.Board().findChild<QMessageBox*>()->text().contains(QStringLiteral("cannot be kept in")));
            QVERIFY(QFile::remove(GamesOf(scene)));
        }
        if (seen == 14) {
            QCOMPARE(Kept(scene).size(), 1);
            QVERIFY(QDir(GamesOf(scene)).removeRecursively());
        }
        if (seen < 20) {
            scene.Player().Answer(question);
        } else {
            scene.LeaveGame();
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(Kept(scene).size(), 1);
    const auto path = GamesOf(scene) + QStringLiteral("/") + Kept(scene).first();
    const ReadRecord read = ReadRecordFile(path.toStdString());
    QCOMPARE(read.Fault.Told(), std::string());
    const PlayedRecord played = PlayRecordApart(read.Record);
    QCOMPARE(played.Fault, std::string());
    QCOMPARE(played.State.Signature, game.Signature);
}

WINDOW_TESTS(records_test, RecordsTest)

}  // namespace plasmos::testing

#include "records_test.moc"
