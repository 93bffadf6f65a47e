// SPDX-License-Identifier: GPL-3.0-or-later
//
// The program is killed in the middle of a game, at any moment; the next window goes on with it.

#include <QDir>
#include <QFile>
#include <QProcess>
#include <cstdio>
#include <cstring>

#include "record/play_record.h"
#include "record/record_file.h"
#include "tests/support/test_scale.h"
#include "tests/ui/support/stand.h"

namespace plasmos::testing {

namespace {

/// The program that is killed.
constexpr const char* ToPlay = "played_window";

/// How the lines for whoever waits at the other end of a pipe begin.
constexpr const char* Sign = "> ";

void Tell(const QString& line) {
    std::printf("%s%s\n", Sign, qPrintable(line));
    std::fflush(stdout);
}

/// What has been told in whole lines.
QList<QByteArray> Told(const QByteArray& output) {
    QList<QByteArray> told;
    for (const QByteArray& line : output.left(output.lastIndexOf('\n')).split('\n')) {
        if (line.startsWith(Sign)) {
            told.append(line.mid(static_cast<qsizetype>(std::strlen(Sign))));
        }
    }
    return told;
}

}  // namespace

class KilledWindowTest : public QObject {
    Q_OBJECT

private slots:
    void atAnyMoment();
};

/// What the killed program is: a window in which somebody plays, and takes back, until it ends. It tells where its
/// games are, and before every answer how far the game has come.
class PlayedWindow : public QObject {
    Q_OBJECT

private slots:
    void play();
};

void PlayedWindow::play() {
    Scene scene;
    Tell(ToQt(scene.Files().GamesFolder()));
    Deal(static_cast<float>(qEnvironmentVariableIntValue("PLASMOS_REPLAY")));
    int asked = 0;
    scene.AnswerBy([&](Question& question) {
        const auto& recorder = *scene.Board().History().Records().Recorder();
        if (question.Kind != QuestionKind::Box && ++asked % 7 == 0) {
            Tell(QStringLiteral("back"));
            scene.Menu(QStringLiteral("backmen"));
            return;
        }
        Tell(QStringLiteral("%1 %2").arg(recorder.Inputs.size()).arg(game.Signature));
        scene.Player().Answer(question);
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

void KilledWindowTest::atAnyMoment() {
    Pcg32 chance;
    chance.Seed(9, 4);
    int resumed = 0;
    for (int kill = 1; kill <= Scaled(12); ++kill) {
        QProcess window;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("PLASMOS_REPLAY"), QString::number(kill));
        window.setProcessEnvironment(environment);
        window.setStandardErrorFile(QProcess::nullDevice());
        window.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(ToPlay)});
        const auto lines = 3 + chance.Next() % 40;
        QByteArray output;
        while (Told(output).size() < static_cast<qsizetype>(lines) && window.waitForReadyRead(20000)) {
            output += window.readAllStandardOutput();
        }
        QTest::qSleep(static_cast<int>(chance.Next() % 20));
        window.kill();
        QVERIFY(window.waitForFinished());
        output += window.readAllStandardOutput();
        const QList<QByteArray> known = Told(output);
        QVERIFY(known.size() > 1);
        QDir games(QString::fromUtf8(known.first()));
        const QStringList kept = games.entryList({QStringLiteral("*.plasmos")}, QDir::Files);
        QCOMPARE(kept.size(), 1);
        ReadRecord read = ReadRecordFile(games.filePath(kept.first()).toStdString());
        QCOMPARE(read.Fault.Told(), std::string());
        const PlayedRecord played = PlayRecordApart(read.Record);
        QCOMPARE(played.Fault, std::string());
        games.cdUp();
        QVERIFY(games.removeRecursively());
        if (known.last() == "back") {
            continue;  // it was on its way
        }
        const auto given = known.last().split(' ').first().toULongLong();
        const auto signature = known.last().split(' ').last().toULongLong();
        QVERIFY2(played.Sound >= given, "every answer that had been given is there");
        read.Record.Inputs.resize(given);
        QCOMPARE(PlayRecordApart(read.Record).State.Signature, signature);
        ++resumed;
    }
    QVERIFY(Scaled(12) < 6 || resumed > Scaled(12) / 3);  // a few may all have been on their way back
}

WINDOW_TESTS(killed_window_test, KilledWindowTest)
static const WindowProgram played_window(ToPlay, &RunWindowTests<PlayedWindow>);

}  // namespace plasmos::testing

#include "killed_window_test.moc"
