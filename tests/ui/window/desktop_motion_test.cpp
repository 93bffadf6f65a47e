// SPDX-License-Identifier: GPL-3.0-or-later
//
// A desktop that wants no motion says so over its session's bus, when the window opens and when the person comes back
// to it.

#include <QAction>
#include <QDBusConnection>
#include <QDBusVariant>
#include <QProcess>
#include <QStandardPaths>

#include "tests/ui/support/scene.h"

namespace plasmos::testing {

/// What a desktop answers to every program that asks for its settings.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    QVariant Moves = true;
    int Asked = 0;

public slots:
    QDBusVariant Read(const QString& space, const QString& key) {
        ++Asked;
        const bool asked =
            space == QStringLiteral("org.gnome.desktop.interface") && key == QStringLiteral("enable-animations");
        return QDBusVariant(QVariant::fromValue(QDBusVariant(asked ? Moves : QVariant(7))));
    }
};

class DesktopMotionTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void theDesktopIsFollowed_data();
    void theDesktopIsFollowed();
    void whatThePersonHasChosenStays();
    void whatIsChosenNowStays();
    void otherAnswersChangeNothing_data();
    void otherAnswersChangeNothing();

private:
    /// The desktop's setting is changed, and the person comes back to the window; true once it has asked.
    bool ComeBack(const QVariant& moves) {
        portal_.Moves = moves;
        const int before = portal_.Asked;
        const bool asked = QTest::qWaitFor([this, before] {
            emit qApp->applicationStateChanged(Qt::ApplicationActive);
            QTest::qWait(20);
            return portal_.Asked > before;
        });
        QTest::qWait(50);
        return asked;
    }
    static bool Moves(Scene& scene) { return scene.Item(QStringLiteral("motionmen"))->isChecked(); }

    QProcess bus_;
    Portal portal_;
};

void DesktopMotionTest::initTestCase() {
    if (QStandardPaths::findExecutable(QStringLiteral("dbus-daemon")).isEmpty()) {
        QSKIP("there is no dbus-daemon here");
    }
    bus_.start(QStringLiteral("dbus-daemon"),
               {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    QVERIFY(bus_.waitForReadyRead());
    const QByteArray address = bus_.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    QDBusConnection desktop = QDBusConnection::connectToBus(QString::fromLatin1(address), QStringLiteral("desktop"));
    QVERIFY(desktop.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal_,
                                   QDBusConnection::ExportAllSlots));
    QVERIFY(desktop.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
}

void DesktopMotionTest::cleanupTestCase() {
    QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
    bus_.kill();
    bus_.waitForFinished();
}

void DesktopMotionTest::theDesktopIsFollowed_data() {
    QTest::addColumn<bool>("moves");
    QTest::newRow("without motion") << false;
    QTest::newRow("with motion") << true;
}

void DesktopMotionTest::theDesktopIsFollowed() {
    QFETCH(bool, moves);
    portal_.Moves = moves;
    Scene scene;
    QTRY_COMPARE(Moves(scene), moves);
    QVERIFY(ComeBack(!moves));
    QTRY_COMPARE(Moves(scene), !moves);
    QVERIFY(ComeBack(moves));
    QTRY_COMPARE(Moves(scene), moves);
    // What the desktop wants is no choice of the person's.
    QCOMPARE(scene.Settings().Get("look", "motion", "none"), std::string("none"));
}

void DesktopMotionTest::whatThePersonHasChosenStays() {
    portal_.Moves = false;
    const int before = portal_.Asked;
    Scene scene({{"look", "motion", "1"}});
    QTRY_VERIFY(portal_.Asked > before);
    QTest::qWait(50);
    QVERIFY(Moves(scene));
    QVERIFY(ComeBack(false));
    QVERIFY(Moves(scene));
}

void DesktopMotionTest::whatIsChosenNowStays() {
    portal_.Moves = true;
    Scene scene;
    QTRY_VERIFY(Moves(scene));
    scene.Menu(QStringLiteral("motionmen"));
    QVERIFY(!Moves(scene));
    QVERIFY(ComeBack(true));
    QVERIFY(!Moves(scene));
}

void DesktopMotionTest::otherAnswersChangeNothing_data() {
    QTest::addColumn<QVariant>("answer");
    QTest::newRow("a word") << QVariant(QStringLiteral("no"));
    QTest::newRow("a number") << QVariant(0);
}

void DesktopMotionTest::otherAnswersChangeNothing() {
    QFETCH(QVariant, answer);
    portal_.Moves = true;
    Scene scene;
    QTRY_VERIFY(Moves(scene));
    QVERIFY(ComeBack(answer));
    QVERIFY(Moves(scene));
}

WINDOW_TESTS(desktop_motion_test, DesktopMotionTest)

}  // namespace plasmos::testing

#include "desktop_motion_test.moc"
