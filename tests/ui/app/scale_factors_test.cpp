// SPDX-License-Identifier: GPL-3.0-or-later
//
// Scales of the screen that no window can be shown with are refused with a line, and the screen is not scaled.

#include <QProcess>

#include "tests/ui/support/scene.h"
#include "ui/app/scale_factors.h"

namespace plasmos::testing {

class ScaleFactorsTest : public QObject {
    Q_OBJECT

private slots:
    void values_data();
    void values();
    void theProgramSaysSo();
};

void ScaleFactorsTest::values_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("taken");
    const auto row = [](const char* name, const char* value, bool taken) {
        QTest::addRow("%s=%s", name, value) << QByteArray(name) << QByteArray(value) << taken;
    };
    for (const char* value : {"1", "2", "1.5", "0.25", "8", " 1.25 "}) {
        row("QT_SCALE_FACTOR", value, true);
        row("QT_SCREEN_SCALE_FACTORS", value, true);
    }
    for (const char* value :
         {"0", "-1", "nan", "inf", "-inf", "100", "1e9", "8.01", "0.24", "two", "1.5x", "1,5", "0x2"}) {
        row("QT_SCALE_FACTOR", value, false);
        row("QT_SCREEN_SCALE_FACTORS", value, false);
    }
    row("QT_SCREEN_SCALE_FACTORS", "HDMI-1=2;DP-1=1.5", true);
    row("QT_SCREEN_SCALE_FACTORS", "1;2;", true);
    row("QT_SCREEN_SCALE_FACTORS", "HDMI-1=2;DP-1=nan", false);
    row("QT_SCREEN_SCALE_FACTORS", "HDMI-1=;", false);
    row("QT_FONT_DPI", "96", true);
    row("QT_FONT_DPI", "192", true);
    for (const char* value : {"0", "-96", "10", "100000", "nan"}) {
        row("QT_FONT_DPI", value, false);
    }
}

void ScaleFactorsTest::values() {
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, value);
    QFETCH(bool, taken);
    const QByteArray before = qgetenv(name.constData());
    qputenv(name.constData(), value);
    CheckScaleFactors();
    QCOMPARE(qgetenv(name.constData()), taken ? value : QByteArray());
    before.isEmpty() ? qunsetenv(name.constData()) : qputenv(name.constData(), before);
}

void ScaleFactorsTest::theProgramSaysSo() {
    for (const char* value : {"0", "nan", "100", "1e300"}) {
        const QTemporaryDir folder(FolderTemplate());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::fromLatin1(value));
        environment.insert(QStringLiteral("PLASMOS_DATA"), folder.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.path());
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(PLASMOS_PROGRAM), QStringList());
        QByteArray told;
        QVERIFY(QTest::qWaitFor(
            [&] {
                told += program.readAllStandardError();
                return told.contains("is allowed; the screen is not scaled");
            },
            20000));
        QVERIFY2(told.contains("QT_SCALE_FACTOR is \"" + QByteArray(value) + "\", 0.25 to 8"), told.constData());
        QCOMPARE(program.state(), QProcess::Running);
        program.kill();
        QVERIFY(program.waitForFinished(20000));
    }
}

WINDOW_TESTS(scale_factors_test, ScaleFactorsTest)

}  // namespace plasmos::testing

#include "scale_factors_test.moc"
