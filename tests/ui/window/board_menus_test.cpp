// SPDX-License-Identifier: GPL-3.0-or-later
//
// The board window's menus and the window's place.

#include <QAction>
#include <QScreen>

#include "questions/ask.h"
#include "rules/division.h"
#include "rules/environment.h"
#include "rules/new_genes.h"
#include "tests/ui/support/position.h"
#include "ui/board/puddle_view.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

class BoardMenusTest : public QObject {
    Q_OBJECT

private slots:
    void gridlines();
    void squareNumbers();
    void difficulty();
    void victoryAndTwoPlayers();
    void fastModeIsKept();
    void automaticEating();
    void automaticTentacle();
    void noFlagsForComputerClans();
    void flagsFollowThePerson();
    void flagsFollowThroughEveryPhase();
    void aGameThatBreaksOffEndsTheFlags();

    void thePlaceIsKept();
    void savedPlaces_data();
    void savedPlaces();
    void quit();
};

void BoardMenusTest::gridlines() {
    Scene scene;
    const QImage with = scene.Puddle().grab().toImage();
    scene.Menu(QStringLiteral("lines_men"));
    QCOMPARE(scene.Item(QStringLiteral("lines_men"))->text(), QStringLiteral("Replace &Gridlines"));
    QVERIFY(scene.Puddle().grab().toImage() != with);
    scene.Menu(QStringLiteral("lines_men"));
    QCOMPARE(scene.Item(QStringLiteral("lines_men"))->text(), QStringLiteral("Remove &Gridlines"));
    QCOMPARE(scene.Puddle().grab().toImage(), with);
}

void BoardMenusTest::squareNumbers() {
    Scene scene;
    const QImage without = scene.Puddle().grab().toImage();
    scene.Menu(QStringLiteral("sqno_men"));
    QVERIFY(scene.Item(QStringLiteral("sqno_men"))->isChecked());
    QVERIFY(scene.Puddle().grab().toImage() != without);
    scene.Menu(QStringLiteral("sqno_men"));
    QVERIFY(!scene.Item(QStringLiteral("sqno_men"))->isChecked());
    QCOMPARE(scene.Puddle().grab().toImage(), without);
}

void BoardMenusTest::difficulty() {
    Scene scene;
    QAction* easy = scene.Item(QStringLiteral("easymen"));
    QAction* normal = scene.Item(QStringLiteral("normmen"));
    struct Row {
        QAction* Clicked;
        bool Normal;
    };
    for (const Row& row : {Row{easy, false}, Row{easy, true}, Row{normal, false}, Row{normal, true}, Row{easy, false},
                           Row{normal, true}}) {
        scene.Menu(row.Clicked->objectName());
        QCOMPARE(normal->isChecked(), row.Normal);
        QCOMPARE(easy->isChecked(), !row.Normal);
        QCOMPARE(game.Menu.normmen, row.Normal);
    }
}

void BoardMenusTest::victoryAndTwoPlayers() {
    Scene scene;
    for (const bool on : {true, false, true}) {
        scene.Menu(QStringLiteral("victorymen"));
        scene.Menu(QStringLiteral("twoplayermen"));
        QCOMPARE(game.Menu.victorymen, on);
        QCOMPARE(game.Menu.twoplayermen, on);
        QCOMPARE(scene.Item(QStringLiteral("victorymen"))->isChecked(), on);
        QCOMPARE(scene.Item(QStringLiteral("twoplayermen"))->isChecked(), on);
    }
    game.RequestedClans = 3;
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(!game.Players[2].IsComputer && !game.Players[3].IsComputer && game.Players[1].IsComputer);
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

void BoardMenusTest::fastModeIsKept() {
    Scene scene;
    scene.Menu(QStringLiteral("fast_men"));
    QVERIFY(game.FastMode);
    scene.Reopen();
    QVERIFY(scene.Item(QStringLiteral("fast_men"))->isChecked() && game.FastMode);
    scene.Menu(QStringLiteral("fast_men"));
    scene.Reopen();
    QVERIFY(!scene.Item(QStringLiteral("fast_men"))->isChecked() && !game.FastMode);
}

void BoardMenusTest::automaticEating() {
    PositionScene scene;
    scene.Then(QuestionKind::YesNo, [&] {
        scene.Menu(QStringLiteral("autoeat_men"));
        QVERIFY2(!game.AutoFlags[3][1], "the rules take it over, not the menu");
        QVERIFY(scene.Item(QStringLiteral("autoeat_men"))->isChecked());
        scene.Soon([&] {
            QVERIFY(game.AutoFlags[3][1] && scene.Sees(QStringLiteral("autoeatlab")));
            QVERIFY(scene.Item(QStringLiteral("autoeat_men"))->isChecked());
            QVERIFY(!game.AutoFlags[3][2] && !scene.Sees(QStringLiteral("autotenlab")));
            scene.Menu(QStringLiteral("autoeat_men"));
            scene.Soon([&] {
                QVERIFY(!game.AutoFlags[3][1] && !scene.Sees(QStringLiteral("autoeatlab")));
                scene.Click(QStringLiteral("nob"));
            });
        });
    });
    PHASE(scene, AskYesNo(3, "Really?"));
}

void BoardMenusTest::automaticTentacle() {
    PositionScene scene;
    Give(3, "ten");
    scene.Then(QuestionKind::YesNo, [&] {
        QVERIFY(scene.Item(QStringLiteral("autoten_men"))->isEnabled());
        scene.Menu(QStringLiteral("autoten_men"));
        scene.Soon([&] {
            QVERIFY(game.AutoFlags[3][2] && scene.Sees(QStringLiteral("autotenlab")));
            QVERIFY(!game.AutoFlags[3][1]);
            scene.Click(QStringLiteral("nob"));
        });
    });
    PHASE(scene, Board().ShowAutoFlags(3); AskYesNo(3, "Really?"); DiscardGene(GeneNumber("ten"));
          QVERIFY(!game.AutoFlags[3][2]));
}

void BoardMenusTest::noFlagsForComputerClans() {
    PositionScene scene;
    scene.Then(QuestionKind::YesNo, [&] {
        game.CurPlayer = 1;
        scene.Menu(QStringLiteral("autoeat_men"));
        QVERIFY(!scene.Item(QStringLiteral("autoeat_men"))->isChecked());
        QVERIFY(!scene.Sees(QStringLiteral("autoeatlab")));
        for (int clan = 1; clan <= 4; ++clan) {
            QVERIFY(!game.AutoFlags[clan][1]);
        }
        game.CurPlayer = 3;
        scene.Click(QStringLiteral("nob"));
    });
    PHASE(scene, AskYesNo(3, "Really?"));
    Scene before;
    before.Menu(QStringLiteral("autoeat_men"));
    QVERIFY2(!before.Item(QStringLiteral("autoeat_men"))->isChecked(), "no clan acts before a game");
}

void BoardMenusTest::flagsFollowThePerson() {
    PositionScene scene;
    Person(2);
    Give(2, "ten");
    game.AutoFlags[2][1] = true;
    scene.Then(QuestionKind::YesNo, [&] {
        QVERIFY(scene.Item(QStringLiteral("autoeat_men"))->isChecked() && scene.Sees(QStringLiteral("autoeatlab")));
        QVERIFY(scene.Item(QStringLiteral("autoten_men"))->isEnabled());
        scene.Click(QStringLiteral("nob"));
    });
    scene.Then(QuestionKind::YesNo, [&] {
        QVERIFY(!scene.Item(QStringLiteral("autoeat_men"))->isChecked() && !scene.Sees(QStringLiteral("autoeatlab")));
        QVERIFY(!scene.Item(QStringLiteral("autoten_men"))->isEnabled());
        scene.Click(QStringLiteral("nob"));
    });
    PHASE(
        scene, for (const int clan
                    : {2, 3}) {
            game.CurPlayer = clan;
            Show(&Presentation::ShowCurrentClan, clan);
            AskYesNo(clan, "Really?");
        });
    PHASE(scene, Board().DisableAutoEating());
    QVERIFY(!scene.Item(QStringLiteral("autoeat_men"))->isEnabled());
}

// Two persons: whoever is asked in whatever phase sees and sets the own flags.
void BoardMenusTest::flagsFollowThroughEveryPhase() {
    PositionScene scene;
    Person(2);
    Put(2, 1, 12);
    Give(2, "ten");
    game.AutoFlags[2][1] = true;
    game.BP[2] = game.BP[3] = 10;
    int asked = 0;
    const auto look = [&](Question& question) {
        ++asked;
        const bool second = question.Clan == 2;
        QCOMPARE(game.CurPlayer, question.Clan);
        QCOMPARE(scene.Item(QStringLiteral("autoeat_men"))->isChecked(), second);
        QCOMPARE(scene.Sees(QStringLiteral("autoeatlab")), second);
        QCOMPARE(scene.Item(QStringLiteral("autoten_men"))->isEnabled(), second);
        scene.Click(QStringLiteral("nob"));
    };
    scene.AnswerBy(look);
    PHASE(scene, NewGenesPhase(); DivisionPhase());
    QCOMPARE(asked, 4);
    PHASE(scene, game.CurPlayer = 1; Show(&Presentation::ShowCurrentClan, 1));
    QVERIFY2(!scene.Sees(QStringLiteral("autoeatlab")), "a computer clan has nothing automatic");
}

void BoardMenusTest::aGameThatBreaksOffEndsTheFlags() {
    for (const bool fault : {false, true}) {
        Scene scene;
        bool enabled = false;
        scene.AnswerBy([&](Question& question) {
            enabled = enabled || scene.Item(QStringLiteral("autoeat_men"))->isEnabled();
            if (question.Kind == QuestionKind::Box) {
                scene.Click(QStringLiteral("okb"));
            } else if (fault) {
                throw RuntimeError(9, "Subscript out of range");
            } else {
                scene.LeaveGame();
            }
        });
        scene.Click(QStringLiteral("gob"));
        QVERIFY(enabled);
        QVERIFY(!scene.Item(QStringLiteral("autoeat_men"))->isEnabled());
        QVERIFY(!scene.Item(QStringLiteral("autoten_men"))->isEnabled());
    }
}

void BoardMenusTest::thePlaceIsKept() {
    Scene scene;
    scene.Board().move(60, 40);
    scene.Board().resize(1000, 700);
    scene.Board().close();
    QCOMPARE(scene.Settings().Get("board", "left", ""), std::string("60"));
    QCOMPARE(scene.Settings().Get("board", "top", ""), std::string("40"));
    scene.Reopen();
    QCOMPARE(scene.Board().pos(), QPoint(60, 40));
    scene.Board().showMinimized();
    scene.Board().move(200, 200);
    scene.Board().close();
    QCOMPARE(scene.Settings().Get("board", "left", ""), std::string("60"));
}

void BoardMenusTest::savedPlaces_data() {
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("top");
    QTest::addColumn<bool>("taken");
    QTest::newRow("on the screen") << "30"
                                   << "20" << true;
    QTest::newRow("far to the left") << "-9000"
                                     << "20" << false;
    QTest::newRow("below the screen") << "30"
                                      << "5000" << false;
    QTest::newRow("no number") << "abc"
                               << "20" << false;
    QTest::newRow("a fraction") << "1.5"
                                << "20" << false;
    QTest::newRow("too large") << "99999999999999"
                               << "20" << false;
    QTest::newRow("one is missing") << "30"
                                    << "" << false;
}

void BoardMenusTest::savedPlaces() {
    QFETCH(QString, left);
    QFETCH(QString, top);
    QFETCH(bool, taken);
    Scene scene({{"board", "left", left.toStdString()}, {"board", "top", top.toStdString()}});
    QCOMPARE(scene.Board().pos() == QPoint(30, 20), taken);
    QVERIFY(QGuiApplication::primaryScreen()->geometry().contains(scene.Board().pos()));
}

void BoardMenusTest::quit() {
    Scene scene;
    scene.Then(QuestionKind::Number, [&] { scene.Menu(QStringLiteral("men_quit")); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(!scene.Board().isVisible());
    QVERIFY(!scene.Settings().Get("board", "left", "").empty());
    QCOMPARE(scene.FileText(ErrorFile), QString());
}

WINDOW_TESTS(board_menus_test, BoardMenusTest)

}  // namespace plasmos::testing

#include "board_menus_test.moc"
