// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whole games played through the X server: one with its pointer alone, one with its keyboard alone.

#include <QEventLoop>
#include <QKeyEvent>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "model/consistency.h"
#include "tests/ui/support/scene.h"
#include "ui/app/auto_person.h"
#include "ui/board/puddle_view.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

constexpr int Patience = 5000;
constexpr int MostTabs = 80;

/// Has the X server move its pointer and press its keys, and waits until what it sends has arrived. One process does it
/// all, line by line.
class XServer : public QObject {
    Q_OBJECT

public:
    XServer() {
        qApp->installEventFilter(this);
        tool_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        tool_.start(QStringLiteral("xdotool"), {QStringLiteral("-")});
    }
    ~XServer() override {
        tool_.closeWriteChannel();
        tool_.waitForFinished(Patience);
    }

    /// Sends something that arrives as an event of this type.
    bool Send(const QString& what, QEvent::Type awaited) {
        const int before = arrived_;
        awaited_ = awaited;
        tool_.write(what.toLatin1() + '\n');
        ++sent_;
        // What arrives may begin a whole game, in which more is sent.
        QEventLoop arrival;
        connect(this, &XServer::Arrived, &arrival, &QEventLoop::quit);
        connect(&tool_, &QProcess::finished, &arrival, &QEventLoop::quit);
        QTimer::singleShot(Patience, &arrival, &QEventLoop::quit);
        if (tool_.state() != QProcess::NotRunning) {
            arrival.exec();
        }
        return arrived_ > before;
    }
    int Sent() const { return sent_; }

signals:
    void Arrived();

public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->spontaneous() && event->type() == awaited_ && watched->isWindowType()) {
            ++arrived_;
            emit Arrived();
        }
        return false;
    }

private:
    QProcess tool_;
    QEvent::Type awaited_ = QEvent::None;
    int arrived_ = 0;
    int sent_ = 0;
};

class XPointer : public Hand {
public:
    explicit XPointer(XServer& server) : server_(server) {}
    bool Lost() const { return lost_; }

protected:
    void PressWindow(QWindow& window, QPoint place, Qt::MouseButton button) override {
        Send(window, place, button == Qt::RightButton ? "3" : "1", QEvent::MouseButtonRelease);
    }
    void TurnWheel(QWindow& window, QPoint place, bool up) override {
        Send(window, place, up ? "4" : "5", QEvent::Wheel);
    }

private:
    void Send(const QWindow& window, QPoint place, const char* button, QEvent::Type awaited) {
        const QPoint point = window.mapToGlobal(place) * window.devicePixelRatio();
        const auto press = QStringLiteral("mousemove %1 %2 mousedown %3 mouseup %3");
        lost_ = !server_.Send(press.arg(point.x()).arg(point.y()).arg(QLatin1String(button)), awaited) || lost_;
    }

    XServer& server_;
    bool lost_ = false;
};

}  // namespace

class XServerTest : public QObject {
    Q_OBJECT

private:
    /// Presses a key; what has the focus gets it.
    void Key(XServer& server, Scene& scene, const char* key) {
        if (!server.Send(QStringLiteral("key --delay 0 %1").arg(QLatin1String(key)), QEvent::KeyRelease)) {
            scene.Fail(Concat("the key ", key, " did not arrive"));
        }
    }
    /// Answers with keys what the automatic person would press.
    void AnswerByKeys(XServer& server, Scene& scene, Question& question);
    void Finish(Scene& scene, const std::function<void()>& go);

private slots:
    void initTestCase();
    void withThePointer();
    void withTheKeyboard();
};

void XServerTest::initTestCase() {
    const bool there = QGuiApplication::platformName() == QStringLiteral("xcb") &&
                       !QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty();
    if (!there && qEnvironmentVariableIsSet("PLASMOS_NEEDS_X")) {
        QFAIL("there is no X server, or no xdotool");
    }
    if (!there) {
        QSKIP("there is no X server with xdotool here");
    }
}

void XServerTest::Finish(Scene& scene, const std::function<void()>& go) {
    game.RequestedClans = 4;
    game.HasRequestedReplay = true;
    game.RequestedReplay = 7;
    scene.Patience = 240000;
    QVERIFY(QTest::qWaitForWindowActive(&scene.Board()));
    QTest::qWait(400);  // the window has found its place on the screen
    PLAY(scene, go());
    QVERIFY(!scene.WasEnded());
    QCOMPARE(game.Turn, LastTurn + 1);
    QCOMPARE(CheckConsistency(true), std::string());
    QVERIFY(scene.Asked() > 50);
}

void XServerTest::withThePointer() {
    // The second press of a double click answers nothing, and this person is quick.
    QApplication::setDoubleClickInterval(1);
    Scene scene;
    XServer server;
    XPointer pointer(server);
    AutoPerson person(scene.Board(), pointer);
    person.OnFault = [&scene](const std::string& why) { scene.Fail(why); };
    scene.AnswerBy([&](Question& question) {
        person.Answer(question);
        if (pointer.Lost()) {
            scene.Fail("a press did not arrive: " + question.Text);
        }
    });
    Finish(scene, [&] { QCOMPARE(pointer.Press(*scene.Find(QStringLiteral("gob"))), std::string()); });
    QVERIFY(server.Sent() > scene.Asked());
}

void XServerTest::AnswerByKeys(XServer& server, Scene& scene, Question& question) {
    for (bool more = true; more;) {
        const AutoPerson::Touch touch = scene.Player().Next(question);
        more = !touch.Last;
        if (question.Kind == QuestionKind::Square) {
            const auto& offered = scene.Puddle().Offered();
            if (std::find(offered.begin(), offered.end(), scene.Puddle().CursorSquare()) == offered.end()) {
                Key(server, scene, "Tab");  // to a glowing square; the cursor may have stayed on one
            }
            Key(server, scene, "Return");
        } else if (question.Kind == QuestionKind::YesNo) {
            Key(server, scene, touch.Control->objectName() == QStringLiteral("yesb") ? "y" : "n");
        } else if (touch.Control->focusPolicy() == Qt::NoFocus) {
            Key(server, scene, "Escape");  // the cross of the dialog
        } else {
            for (int tabs = 0; QApplication::focusWidget() != touch.Control && tabs < MostTabs; ++tabs) {
                Key(server, scene, "Tab");
            }
            if (QApplication::focusWidget() != touch.Control) {
                scene.Fail("the keyboard does not get to " + touch.Control->objectName().toStdString());
                return;
            }
            Key(server, scene, "space");
        }
    }
}

void XServerTest::withTheKeyboard() {
    Scene scene;
    XServer server;
    scene.AnswerBy([&](Question& question) { AnswerByKeys(server, scene, question); });
    Finish(scene, [&] { Key(server, scene, "Return"); });
    QVERIFY(server.Sent() > scene.Asked());
}

WINDOW_TESTS(x_server_test, XServerTest)

}  // namespace plasmos::testing

#include "x_server_test.moc"
