// SPDX-License-Identifier: GPL-3.0-or-later
//
// How games begin and end otherwise than by playing: replay number, number of clans, leaving, errors.

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>

#include "model/dice.h"
#include "tests/ui/support/scene.h"
#include "ui/app/auto_person.h"
#include "ui/board/puddle_view.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

class GameStartTest : public QObject {
    Q_OBJECT

private slots:
    void theReplayNumberIsTyped_data();
    void theReplayNumberIsTyped();
    void anInvalidCountIsAskedForAgain();
    void isLeft_data();
    void isLeft();
    void anErrorEndsTheGameOnly();
    void withoutADataFolder();
};

void GameStartTest::theReplayNumberIsTyped_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("a whole number") << "4711"
                                    << "4711";
    QTest::newRow("blanks around it") << "  12.5 "
                                      << "12.5";
    QTest::newRow("an exponent") << "1e3"
                                 << "1000";
    QTest::newRow("a sign") << "-3"
                            << "-3";
    QTest::newRow("no number") << "abc"
                               << "";
    QTest::newRow("two numbers") << "1 2"
                                 << "";
    QTest::newRow("infinite") << "inf"
                              << "";
    QTest::newRow("empty") << ""
                           << "";
}

void GameStartTest::theReplayNumberIsTyped() {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    Scene scene;
    scene.Type(QStringLiteral("txtReplay"), typed);
    scene.Then(QuestionKind::Number, [&] {
        const QString title = scene.Board().windowTitle();
        if (shown.isEmpty()) {
            QCOMPARE(title, QStringLiteral("The Puddle  (%1)").arg(ToQt(ReplayText(game.ReplayNo))));
            QVERIFY(game.ReplayNo >= 0 && game.ReplayNo < 86401);
        } else {
            QCOMPARE(title, QStringLiteral("The Puddle  (%1)").arg(shown));
        }
        QVERIFY(!scene.Sees(QStringLiteral("txtReplay")));
        scene.Board().EndProgram();
    });
    PLAY(scene, scene.Key(QStringLiteral("txtReplay"), Qt::Key_Return));
    QVERIFY(!scene.Board().isVisible());
}

void GameStartTest::anInvalidCountIsAskedForAgain() {
    Scene scene;
    scene.Then(QuestionKind::Number, [&] {
        QCOMPARE(scene.Text(QStringLiteral("dialogTitle")), QStringLiteral("Choose 3 to 6 players"));
        QCOMPARE(scene.Text(QStringLiteral("amlab")),
                 QStringLiteral("How many players would you like for this game of Zymarra?"));
        for (int count = 0; count <= 7; ++count) {
            QCOMPARE(scene.Sees(QStringLiteral("amopt%1").arg(count)), count >= 3 && count <= 6);
        }
        scene.Click(QStringLiteral("closeb"));
    });
    scene.Then(QuestionKind::Number, [&] {
        QCOMPARE(scene.Text(QStringLiteral("msglab")), QStringLiteral("Invalid response!"));
        scene.Key(QStringLiteral("amopt3"), Qt::Key_Escape);
    });
    scene.Then(QuestionKind::Number, [&] { scene.Click(QStringLiteral("amopt5")); });
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(game.NumPlayers, 5);
        scene.Board().EndProgram();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

void GameStartTest::isLeft_data() {
    QTest::addColumn<int>("after");
    for (const int after : {1, 2, 3, 5, 8, 13, 21, 34, 55}) {
        QTest::addRow("at question %d", after) << after;
    }
}

void GameStartTest::isLeft() {
    QFETCH(int, after);
    Scene scene;
    scene.Board().setUpdatesEnabled(false);
    AutoPerson& person = scene.Player();
    game.HasRequestedReplay = true;
    game.RequestedReplay = 5;
    scene.AnswerBy([&](Question& question) {
        if (scene.Asked() == after) {
            QVERIFY(scene.Item(QStringLiteral("leavemen"))->isEnabled());
            scene.LeaveGame();
        } else {
            person.Answer(question);
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(!scene.WasEnded());
    QCOMPARE(scene.Asked(), after);
    QVERIFY(!scene.Board().Playing());
    QVERIFY(scene.Board().TopQuestion() == nullptr);
    QVERIFY(scene.Puddle().Offered().empty());
    QVERIFY(!scene.Sees(QStringLiteral("yesb")) && !scene.Sees(QStringLiteral("closeb")));
    QVERIFY(scene.Sees(QStringLiteral("gob")) && scene.Enabled(QStringLiteral("gob")));
    QCOMPARE(scene.FileText(ErrorFile), QString());
    QCOMPARE(scene.Text(QStringLiteral("titlelab")),
             after == 1 ? QStringLiteral("Welcome to the Puddle") : QStringLiteral("This game was left"));
    game.RequestedClans = 3;
    scene.AnswerBy([&](Question& question) { person.Answer(question); });
    PLAY(scene, scene.Click(after % 2 == 0 ? QStringLiteral("gob") : QStringLiteral("watchb")));
    QVERIFY(scene.Text(QStringLiteral("titlelab")).endsWith(QStringLiteral(" wins!")));
}

void GameStartTest::anErrorEndsTheGameOnly() {
    Scene scene;
    QFile names(ToQt(scene.Files().PathOf(NamesFile)));
    QVERIFY(names.open(QIODevice::WriteOnly));
    names.write("1 - Only\r\n");
    names.close();
    game.RequestedClans = 3;
    std::string told;
    scene.Then(QuestionKind::Box, [&] {
        told = scene.Text(QStringLiteral("boxlab")).toStdString();
        scene.Click(QStringLiteral("okb"));
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY2(told.find("This game cannot go on.") == 0 && told.find(std::string(NamesFile)) != std::string::npos,
             told.c_str());
    QVERIFY(!scene.FileText(ErrorFile).isEmpty());
    QVERIFY(names.remove());
    AutoPerson& person = scene.Player();
    scene.AnswerBy([&](Question& question) { person.Answer(question); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(game.Turn, LastTurn + 1);
}

void GameStartTest::withoutADataFolder() {
    Scene scene;
    QVERIFY(QDir(scene.Folder() + QStringLiteral("/data")).removeRecursively());
    QFile inTheWay(scene.Folder() + QStringLiteral("/data"));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    scene.Then(QuestionKind::Box, [&] {
        QVERIFY(scene.Text(QStringLiteral("boxlab")).contains(scene.Folder()));
        scene.Click(QStringLiteral("okb"));
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(game.NumPlayers, 0);
    QVERIFY(scene.Enabled(QStringLiteral("gob")));
}

WINDOW_TESTS(game_start_test, GameStartTest)

}  // namespace plasmos::testing

#include "game_start_test.moc"
