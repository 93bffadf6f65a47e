// SPDX-License-Identifier: GPL-3.0-or-later
//
// The program in surroundings that nobody has prepared for it, as a process of its own but in mid-game.

#include <sys/stat.h>

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include "tests/ui/support/program.h"
#include "tests/ui/support/scene.h"
#include "ui/app/auto_person.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

class SurroundingsTest : public QObject {
    Q_OBJECT

private slots:
    void theProgramStartsAndEnds_data();
    void theProgramStartsAndEnds();
    void aTildeIsTheHomeFolder();
    void aPipeForTheMovesInMidGame();
    void aTerminalThatGoes();
    void aTerminalThatMayGo();
    void closedStreams();
    void picturesOnAFullOutput();
    void theSampleBoardsAreWritten();
};

namespace {

/// Starts the program by a shell that lays out its surroundings first: $home is the folder of its own, $conf
/// its settings, $run starts it.
void StartIn(Program& program, const QString& home, const QString& surroundings) {
    program.StartReady(
        QStringLiteral("/bin/bash"),
        {QStringLiteral("-c"),
         QStringLiteral("home=$1; conf=$1/QX/Plasmos.conf; mkdir -p $1/QX $1/data; run=\"exec $0\"; ") + surroundings,
         QStringLiteral(PLASMOS_PROGRAM), home});
}

}  // namespace

void SurroundingsTest::theProgramStartsAndEnds_data() {
    QTest::addColumn<QString>("surroundings");
    QTest::addColumn<bool>("saves");
    const auto row = [](const char* name, const char* surroundings, bool saves) {
        QTest::newRow(name) << QString::fromLatin1(surroundings) << saves;
    };
    row("nothing there", "rmdir $home/QX $home/data; $run", true);
    row("a damaged line in the settings", "printf '[board]\\nrows=4\\ngarbage\\n' >$conf; $run", true);
    row("binary settings", "head -c 5000 $0 >$conf; $run", true);
    row("settings of 50 MB", "yes 'key=value' | head -c 52428800 >$conf; $run", false);
    row("settings of 50 MB in one line", "head -c 52428800 /dev/zero >$conf; $run", false);
    row("a pipe as the settings", "mkfifo $conf; $run", false);
    row("a folder as the settings", "mkdir $conf; $run", false);
    row("a file as the settings' folder", "rmdir $home/QX; touch $home/QX; $run", false);
    row("pipes as data files", "for f in zynames movefil randfil Opts; do mkfifo $home/data/$f.txt; done; $run", true);
    row("a pipe as the data folder", "rmdir $home/data; mkfifo $home/data; $run", true);
    row("a full standard error", "mkdir $conf; $run >/dev/full 2>&1", false);
    row("nobody reads what it says", "mkdir $conf; $run 2> >(exit) >&2", false);
    row("no file may grow", "ulimit -f 0; $run", false);
}

void SurroundingsTest::theProgramStartsAndEnds() {
    QFETCH(QString, surroundings);
    QFETCH(bool, saves);
    const QTemporaryDir home(FolderTemplate());
    Program program(home.path());
    StartIn(program, home.path(), surroundings);
    QTest::qWait(50);
    program.Signal(SIGTERM);
    if (saves) {
        program.EndsWell();
    } else {
        program.Ends(0);
    }
}

void SurroundingsTest::aTildeIsTheHomeFolder() {
    const QTemporaryDir home(FolderTemplate());
    Program program(home.path());
    StartIn(program, home.path(), QStringLiteral("export HOME=$home PLASMOS_DATA='~/mine'; $run"));
    program.Terminate();
    QVERIFY(QFileInfo(home.path() + QStringLiteral("/mine")).isDir());
}

// The lines of the moves go nowhere any more, and say so; nobody waits for a reader of the pipe.
void SurroundingsTest::aPipeForTheMovesInMidGame() {
    Scene scene;
    game.RequestedClans = 4;
    game.HasRequestedReplay = true;
    game.RequestedReplay = 7;
    const QString moves = scene.Folder() + QStringLiteral("/data/movefil.txt");
    bool laid = false;
    scene.AnswerBy([&](Question& question) {
        if (laid && !scene.Log().filter(QStringLiteral(" stays in ")).isEmpty()) {
            scene.LeaveGame();
            return;
        }
        if (!laid && game.Turn == 1) {
            laid = QFile::remove(moves) && ::mkfifo(moves.toLocal8Bit().constData(), 0600) == 0;
            QVERIFY(laid);
        }
        scene.Player().Answer(question);
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    const QStringList stays = scene.Log().filter(QStringLiteral(" stays in "));
    QVERIFY(!stays.isEmpty());
    QVERIFY2(stays.first().contains(QStringLiteral("Path/File access error")), qPrintable(stays.first()));
    QVERIFY(!scene.WasEnded() && scene.Enabled(QStringLiteral("gob")));
}

void SurroundingsTest::aTerminalThatGoes() {
    const QTemporaryDir home(FolderTemplate());
    Program program(home.path());
    StartIn(program, home.path(), QStringLiteral("$run"));
    program.Signal(SIGHUP);
    program.EndsWell();
}

void SurroundingsTest::aTerminalThatMayGo() {
    const QTemporaryDir home(FolderTemplate());
    Program program(home.path());
    StartIn(program, home.path(), QStringLiteral("trap '' HUP; $run"));
    program.Signal(SIGHUP);
    QTest::qWait(200);
    program.Terminate();
}

void SurroundingsTest::closedStreams() {
    const QTemporaryDir home(FolderTemplate());
    Program program(home.path());
    StartIn(program, home.path(), QStringLiteral("$run <&- >&- 2>&-"));
    for (int stream = 0; stream <= 2; ++stream) {
        const QFileInfo number(QStringLiteral("/proc/%1/fd/%2").arg(program.Number()).arg(stream));
        QCOMPARE(number.symLinkTarget(), QStringLiteral("/dev/null"));
    }
    program.Terminate();
}

void SurroundingsTest::picturesOnAFullOutput() {
    const QTemporaryDir home(FolderTemplate());
    Program program(home.path());
    program.Start(QStringLiteral("/bin/bash"),
                  {QStringLiteral("-c"), QStringLiteral("exec $0 --demo $1/pictures >/dev/full"),
                   QStringLiteral(PLASMOS_SHOT), home.path()});
    program.Ends(1);
    QVERIFY(QFile::exists(home.path() + QStringLiteral("/pictures/last.png")));
}

void SurroundingsTest::theSampleBoardsAreWritten() {
    const QTemporaryDir home;
    Program program(home.path());
    program.Start(QStringLiteral(PLASMOS_SHOT), {QStringLiteral("--boards"), home.path() + QStringLiteral("/boards")});
    program.Ends(0);
    const QDir boards(home.path() + QStringLiteral("/boards"));
    const QDir book(QStringLiteral(PLASMOS_SOURCES "/docs/handbook/pictures"));
    QVERIFY(boards.count() > 15);
    for (const QString& file : boards.entryList(QDir::Files)) {
        QVERIFY2(book.exists(file), qPrintable(file));
        QCOMPARE(QImage(boards.filePath(file)).size(), QImage(book.filePath(file)).size());
    }
    Program failing(home.path());
    failing.Start(QStringLiteral(PLASMOS_SHOT), {QStringLiteral("--boards"), QStringLiteral("/proc/nowhere")});
    failing.Ends(1);
}

WINDOW_TESTS(surroundings_test, SurroundingsTest)

}  // namespace plasmos::testing

#include "surroundings_test.moc"
