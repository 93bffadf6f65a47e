// SPDX-License-Identifier: GPL-3.0-or-later
//
// Settings that cannot be read or saved: damaged lines, saves that fail, abandoned drafts, no file at all.

#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <thread>

#include "files/settings_store.h"
#include "tests/support/terminal.h"
#include "tests/ui/support/preferences.h"

namespace plasmos::testing {

class SettingsTroubleTest : public QObject {
    Q_OBJECT

private slots:
    void twoStoresWrite();
    void writtenByHand();
    void aDamagedLine_data();
    void aDamagedLine();
    void aSaveThatFailed();
    void draftsOfAKilledProgram();
    void noFile_data();
    void noFile();
};

void SettingsTroubleTest::twoStoresWrite() {
    const QTemporaryDir folder;
    const QString ini = folder.path() + QStringLiteral("/both.ini");
    const auto write = [&ini](const char* key) {
        QtSettings store(ini);
        for (int value = 1; value <= 25; ++value) {
            if (!store.Save("board", key, std::to_string(value))) {
                return;
            }
        }
    };
    std::thread one(write, "rows");
    std::thread two(write, "cols");
    one.join();
    two.join();
    const QtSettings store(ini);
    QCOMPARE(store.Get("board", "rows", "none"), std::string("25"));
    QCOMPARE(store.Get("board", "cols", "none"), std::string("25"));
}

void SettingsTroubleTest::writtenByHand() {
    const QTemporaryDir folder;
    const QString ini = folder.path() + QStringLiteral("/hand.ini");
    QFile file(ini);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[board]\nrows=4\ncols=garbage\nblocks=1:2:\n[players]\nname1=Ann, Bob\n[[broken\n=x\n");
    file.close();
    const QtSettings store(ini);
    QCOMPARE(store.Get("board", "rows", "none"), std::string("4"));
    QCOMPARE(store.Get("board", "blocks", "none"), std::string("1:2:"));
    QCOMPARE(store.Get("players", "name1", "none"), std::string("Ann, Bob"));
    QCOMPARE(store.Get("players", "name2", "none"), std::string("none"));
}

void SettingsTroubleTest::aDamagedLine_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("no value") << QByteArray("garbage\n");
    QTest::newRow("no key") << QByteArray("=x\n");
    QTest::newRow("a section without an end") << QByteArray("[players\n");
    QTest::newRow("a section without a name") << QByteArray("[]\n");
    QTest::newRow("a quote without an end") << QByteArray("[players]\nname1=\"Ann\n");
    QTest::newRow("a broken escape") << QByteArray("[players]\nname1=\\x\n%zz=%\n");
    QTest::newRow("a value of another program's kind") << QByteArray("cols=@Variant(\\0\\0\\0\\x7f)\n");
    QTest::newRow("zeros") << QByteArray(3000, '\0');
    QTest::newRow("no text") << QByteArray("\x7f\x45\x4c\x46\xff\xfe\xc3\n\x80=\x80\n");
    QByteArray bytes;
    for (int i = 0; i < 2560; ++i) {
        bytes += static_cast<char>(i * 7 + i / 256);
    }
    QTest::newRow("every byte") << bytes;
    QTest::newRow("a line of half a megabyte") << QByteArray(500000, 'x');
}

// It counts as missing, and the next saves are written.
void SettingsTroubleTest::aDamagedLine() {
    QFETCH(QByteArray, line);
    const QTemporaryDir folder;
    const QString ini = folder.path() + QStringLiteral("/damaged.ini");
    QFile file(ini);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[board]\nrows=4\n" + line);
    file.close();
    {
        QtSettings store(ini);
        QCOMPARE(store.Fault(), std::string());
        QCOMPARE(store.Get("board", "rows", "none"), std::string("4"));
        QVERIFY(store.Save("board", "cols", "6"));
        QVERIFY(store.Save("players", "name2", "Bob"));
    }
    QFile::copy(ini, ini + QStringLiteral(".copy"));
    const QtSettings store(ini + QStringLiteral(".copy"));
    QCOMPARE(store.Get("board", "rows", "none"), std::string("4"));
    QCOMPARE(store.Get("board", "cols", "none"), std::string("6"));
    QCOMPARE(store.Get("players", "name2", "none"), std::string("Bob"));
}

void SettingsTroubleTest::aSaveThatFailed() {
    const QTemporaryDir folder;
    const QString place = folder.path() + QStringLiteral("/place");
    const QString ini = place + QStringLiteral("/saved.ini");
    QtSettings store(ini);
    QFile file(place);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(!store.Save("board", "rows", "4"));
    QCOMPARE(store.Get("board", "rows", "none"), std::string("none"));
    QVERIFY(QFile::remove(place));
    QVERIFY(store.Save("board", "rows", "6"));
    QVERIFY(store.Save("board", "cols", "4"));
    QVERIFY(QFile::copy(ini, ini + QStringLiteral(".copy")));
    const QtSettings copy(ini + QStringLiteral(".copy"));
    QCOMPARE(copy.Get("board", "rows", "none"), std::string("6"));
    QCOMPARE(copy.Get("board", "cols", "none"), std::string("4"));
}

void SettingsTroubleTest::draftsOfAKilledProgram() {
    const QTemporaryDir folder;
    const QString ini = folder.path() + QStringLiteral("/settings.ini");
    const auto lay = [&ini](const char* end) {
        QFile file(ini + QString::fromLatin1(end));
        QVERIFY(file.open(QIODevice::WriteOnly));
    };
    for (const char* end : {"", ".aBcDeF", ".backup", ".Sample", ".README", ".QwErTy", ".123456", ".new", ".bak"}) {
        lay(end);
    }
    const QtSettings store(ini);
    QLockFile lock(ini + QStringLiteral(".lock"));
    QVERIFY(lock.lock());
    store.RemoveAbandonedDrafts();
    QVERIFY2(QFile::exists(ini + QStringLiteral(".aBcDeF")), "somebody saves just now");
    lock.unlock();
    store.RemoveAbandonedDrafts();
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files, QDir::Name).join(QLatin1Char(' ')),
             QStringLiteral("settings.ini settings.ini.123456 settings.ini.README settings.ini.Sample "
                            "settings.ini.backup settings.ini.bak settings.ini.new"));
}

void SettingsTroubleTest::noFile_data() {
    QTest::addColumn<QString>("laid");
    QTest::newRow("a pipe") << "mkfifo $0";
    QTest::newRow("a device") << "ln -s $1 $0";
    QTest::newRow("a folder") << "mkdir $0";
    QTest::newRow("a pipe as its lock") << "mkfifo $0.lock";
    QTest::newRow("a megabyte and a byte") << "head -c 1048577 /dev/zero >$0";
}

// It is left alone, and the person is told.
void SettingsTroubleTest::noFile() {
    QFETCH(QString, laid);
    const Terminal device;
    const QString terminal = QString::fromStdString(device.Path());
    const QTemporaryDir folder;
    const QString ini = folder.path() + QStringLiteral("/settings.ini");
    QCOMPARE(QProcess::execute(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), laid, ini, terminal}), 0);
    QtSettings store(ini);
    QVERIFY(store.Fault().find(ini.toStdString()) != std::string::npos);
    QCOMPARE(store.Get("board", "rows", "none"), std::string("none"));
    QVERIFY(!store.Save("board", "rows", "4"));
}

WINDOW_TESTS(settings_trouble_test, SettingsTroubleTest)

}  // namespace plasmos::testing

#include "settings_trouble_test.moc"
