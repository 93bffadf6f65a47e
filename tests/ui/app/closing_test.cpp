// SPDX-License-Identifier: GPL-3.0-or-later
//
// The window is closed in the middle of games: each one unwinds at once and the program ends with 0.

#include <QFile>
#include <QTimer>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "files/game_files.h"
#include "model/services.h"
#include "tests/support/game_fixture.h"
#include "tests/support/test_scale.h"
#include "tests/ui/support/closing_program.h"
#include "tests/ui/support/program.h"
#include "tests/ui/support/scene.h"
#include "ui/app/auto_person.h"
#include "ui/app/end_signals.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

bool ClosesEverywhere() {
    return Scaled(100) > 100;
}

}  // namespace

class ClosingTest : public QObject {
    Q_OBJECT

private:
    /// Plays a game whose end comes at a wait or pause; the kinds of all of them.
    std::vector<std::string> Play(int clans, bool two, int at, Way way);

private slots:
    void endsAtOnce_data();
    void endsAtOnce();
    void betweenGames();
    void aSecondEndIsNoTrouble();
    void theProgramIsTerminated();
    void aProcessEnds_data();
    void aProcessEnds();
    void aFaultEndsTheProgram();
    void twoProgramsShareTheirFolder();
    void aGameIsTerminated_data();
    void aGameIsTerminated();
};

std::vector<std::string> ClosingTest::Play(int clans, bool two, int at, Way way) {
    ForgetGame();
    const QTemporaryDir folder(FolderTemplate());
    DataFolder files(folder.path().toStdString());
    QtSettings settings(folder.path() + QStringLiteral("/settings.ini"));
    services.Files = &files;
    services.Settings = &settings;
    game.HasRequestedReplay = true;
    game.RequestedReplay = static_cast<float>(clans);
    game.RequestedClans = clans;
    game.Menu.twoplayermen = two;
    std::vector<std::string> kinds;
    {
        ClosingBoard board;
        const EndSignals endSignals([&board] { board.CloseAtOnce(); });
        AutoPerson person(board);
        int asked = 0;
        board.OnQuestion = [&](Question& question) {
            ++asked;
            if (board.Count < at || at == 0) {
                person.Answer(question);
            }
        };
        board.At = at;
        board.How = way;
        board.SetSpeed(0);
        board.setUpdatesEnabled(false);
        board.show();
        QTimer::singleShot(0, &board, [&board] {
            board.gob_Click();
            QCoreApplication::exit(board.At == 0 ? 77 : 0);
        });
        const int code = QApplication::exec();
        [&] {
            QCOMPARE(code, at == 0 ? 77 : 0);
            QVERIFY(!board.Playing());
            QVERIFY(board.TopQuestion() == nullptr);
            QVERIFY(!files.Exists(ErrorFile));
            if (at == 0) {
                return;
            }
            QVERIFY2(board.Since.isValid() && board.Since.elapsed() < 1500, "it took too long");
            QVERIFY(!board.isVisible());
            QVERIFY(!settings.Get("board", "left", "").empty());
            const GameState before = game;
            const int askedBefore = asked;
            QTest::qWait(2);
            QCOMPARE(std::memcmp(&before, &game, sizeof before), 0);
            QCOMPARE(asked, askedBefore);
            for (const QTimer* timer : board.findChildren<QTimer*>()) {
                QVERIFY2(!timer->isActive(), qPrintable(timer->objectName() + QLatin1String(" runs on in ") +
                                                        QLatin1String(timer->parent()->metaObject()->className())));
            }
            board.gob_Click();
            QVERIFY2(!board.Playing() && std::memcmp(&before, &game, sizeof before) == 0, "a game after the end");
        }();
        kinds = board.Kinds;
    }
    ForgetGame();
    return kinds;
}

void ClosingTest::endsAtOnce_data() {
    QTest::addColumn<int>("clans");
    QTest::addColumn<bool>("two");
    QTest::addColumn<int>("way");
    const auto add = [](int clans, bool two, int way) {
        QTest::addRow("%d clans, %s, way %d", clans, two ? "two persons" : "one person", way) << clans << two << way;
    };
    if (ClosesEverywhere()) {
        for (int clans = 3; clans <= 6; ++clans) {
            add(clans, false, clans);
            add(clans, true, clans + 2);
        }
        return;
    }
    // Every way once, and the one game with the other.
    add(3, false, 0);
    add(4, true, 1);
    add(4, false, 2);
    add(5, true, 3);
    add(6, false, 4);
}

// The end comes at the first wait of every kind, and at the last of all: what a clan is asked in a phase is unwound
// alike in every turn. The long form ends a game at each of its waits.
void ClosingTest::endsAtOnce() {
    QFETCH(int, clans);
    QFETCH(bool, two);
    QFETCH(int, way);
    const auto kinds = Play(clans, two, 0, Way::Close);
    QVERIFY(kinds.size() > 30);
    std::set<std::string> ended;
    for (std::size_t at = 1; at <= kinds.size(); ++at) {
        const bool first = ended.insert(kinds[at - 1]).second;
        if (!first && at < kinds.size() && !ClosesEverywhere()) {
            continue;
        }
        Play(clans, two, static_cast<int>(at),
             Ways[(static_cast<std::size_t>(way) + (ClosesEverywhere() ? at : 0)) % 5]);
        if (QTest::currentTestFailed()) {
            qWarning("closed at wait %zu of %zu, %s", at, kinds.size(), kinds[at - 1].c_str());
            return;
        }
    }
    QVERIFY2(ended.size() >= 12, "too few kinds of waits");
}

void ClosingTest::betweenGames() {
    Scene scene;
    scene.Board().close();
    QVERIFY(!scene.Board().isVisible());
    scene.Board().gob_Click();
    QVERIFY(!scene.Board().Playing());
    QCOMPARE(game.NumPlayers, 0);
}

void ClosingTest::aSecondEndIsNoTrouble() {
    Scene scene;
    scene.Then(QuestionKind::Number, [&] {
        scene.Board().close();
        scene.Board().close();
        scene.Board().EndProgram();
        scene.Item(QStringLiteral("leavemen"))->trigger();
        scene.Item(QStringLiteral("men_quit"))->trigger();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(!scene.Board().isVisible());
}

namespace {

/// Starts a program and terminates it some time after it is ready.
void TerminateAfter(const QString& name, const QStringList& arguments, int milliseconds) {
    const QTemporaryDir home;
    Program program(home.path());
    program.StartReady(name, arguments);
    QTest::qWait(milliseconds);
    program.Terminate();
}

}  // namespace

void ClosingTest::theProgramIsTerminated() {
    for (const int milliseconds : {0, 3, 150}) {
        TerminateAfter(QStringLiteral(PLASMOS_PROGRAM), {}, milliseconds);
    }
}

void ClosingTest::aProcessEnds_data() {
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("at");
    for (int sample = 0; sample < Scaled(10); ++sample) {
        QTest::addRow("way %d at wait %d", sample % 5, 1 + sample * 37 % 200) << sample % 5 << 1 + sample * 37 % 200;
    }
}

// Each end once more in a process of its own: whatever lived on would show in its exit code.
void ClosingTest::aProcessEnds() {
    QFETCH(int, way);
    QFETCH(int, at);
    const QTemporaryDir home;
    Program program(home.path());
    program.Start(QCoreApplication::applicationFilePath(),
                  {ClosingWindow, QStringLiteral("--end"), QString::number(way), QString::number(at)});
    program.EndsWell();
}

// A phase that cannot go on: the record is written, and the exit code tells.
void ClosingTest::aFaultEndsTheProgram() {
    const QTemporaryDir home;
    Program program(home.path());
    program.Start(QCoreApplication::applicationFilePath(), {ClosingWindow, QStringLiteral("--fault")});
    program.Ends(1);
    QFile errors(home.path() + QStringLiteral("/data/errfile.txt"));
    QVERIFY(errors.open(QIODevice::ReadOnly));
    const QByteArray records = errors.readAll();
    QVERIFY(records.startsWith("ReplayNo: 5\r\n"));
    QVERIFY(
        records.endsWith("Error #5: Invalid procedure call: the tape has no roll for a die with 6 faces\r\n\r\n\r\n"));
}

// Both write the same trace files and the same settings.
void ClosingTest::twoProgramsShareTheirFolder() {
    const QTemporaryDir home;
    Program first(home.path());
    Program second(home.path());
    first.StartReady(QCoreApplication::applicationFilePath(), {ClosingWindow, QStringLiteral("--play")});
    second.StartReady(QCoreApplication::applicationFilePath(), {ClosingWindow, QStringLiteral("--play")});
    QTest::qWait(600);
    first.Terminate();
    QTest::qWait(100);
    second.Terminate();
}

void ClosingTest::aGameIsTerminated_data() {
    QTest::addColumn<int>("milliseconds");
    for (int sample = 0; sample < Scaled(5); ++sample) {
        QTest::addRow("sample %d", sample) << 1 + sample * 97 % 500;
    }
}

void ClosingTest::aGameIsTerminated() {
    QFETCH(int, milliseconds);
    TerminateAfter(QCoreApplication::applicationFilePath(),
                   {ClosingWindow, milliseconds % 2 == 0 ? QStringLiteral("--watch") : QStringLiteral("--play")},
                   milliseconds);
}

WINDOW_TESTS(closing_test, ClosingTest)
static const WindowProgram closing_window(ClosingWindow, &PlayOn);

}  // namespace plasmos::testing

#include "closing_test.moc"
