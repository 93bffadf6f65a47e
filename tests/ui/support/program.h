// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTest>
#include <csignal>

namespace plasmos::testing {

/// Whether a process has a handler for SIGTERM, that is, will end in good order.
inline bool CatchesTerm(qint64 process) {
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly)) {
        return false;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("SigCgt:")) {
            return (line.mid(7).trimmed().toULongLong(nullptr, 16) >> (SIGTERM - 1) & 1U) != 0;
        }
    }
    return false;
}

/// A program with folders for itself, or with another one's.
class Program {
public:
    explicit Program(const QString& home) : home_(home) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("PLASMOS_DATA"), home + QStringLiteral("/data"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home);
        process_.setProcessEnvironment(environment);
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    }
    void Start(const QString& program, const QStringList& arguments) {
        process_.start(program, arguments);
        QVERIFY(process_.waitForStarted());
    }
    void StartReady(const QString& program, const QStringList& arguments) {
        Start(program, arguments);
        QTRY_VERIFY_WITH_TIMEOUT(CatchesTerm(process_.processId()), 20000);
    }
    qint64 Number() const { return process_.processId(); }
    void Signal(int signal) {
        QCOMPARE(process_.state(), QProcess::Running);
        QCOMPARE(::kill(static_cast<pid_t>(process_.processId()), signal), 0);
    }
    void Terminate() {
        Signal(SIGTERM);
        EndsWell();
    }
    void Ends(int exitCode) {
        QVERIFY2(process_.waitForFinished(20000), "it does not end");
        QCOMPARE(process_.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process_.exitCode(), exitCode);
    }
    /// Ends with code 0, no error record, and the window's place saved.
    void EndsWell() {
        Ends(0);
        QVERIFY(!QFile::exists(home_ + QStringLiteral("/data/errfile.txt")));
        QVERIFY(!QSettings(home_ + QStringLiteral("/QX/Plasmos.conf"), QSettings::IniFormat)
                     .value(QStringLiteral("board/left"))
                     .toString()
                     .isEmpty());
    }

private:
    QString home_;
    QProcess process_;
};

}  // namespace plasmos::testing
