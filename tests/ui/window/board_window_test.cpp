// SPDX-License-Identifier: GPL-3.0-or-later
//
// The board window's controls and what happens when they are used.

#include <QAction>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QTimer>
#include <QToolTip>

#include "files/platform.h"
#include "model/gene_texts.h"
#include "model/narration.h"
#include "model/presentation.h"
#include "questions/ask.h"
#include "rules/movement.h"
#include "tests/ui/support/position.h"
#include "ui/board/puddle_view.h"
#include "ui/strip/gene_chips.h"
#include "ui/window/uboard.h"

namespace plasmos {

namespace {
bool upDownControls = true;
}

// Stands for the platform's.
bool HasUpDownControls() {
    return upDownControls;
}

}  // namespace plasmos

namespace plasmos::testing {

class BoardWindowTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { upDownControls = true; }

    void beforeTheFirstGame();
    void captions_data();
    void captions();
    void whileAGameRuns();
    void withoutUpDownControls();

    void messageColours_data();
    void messageColours();
    void twoClansTwoColours();
    void anEarlierTextComesBack();
    void aLineStandsUntilItCouldBeRead();
    void geneLists();
};

void BoardWindowTest::beforeTheFirstGame() {
    Scene scene;
    QCOMPARE(scene.Board().windowTitle(), QStringLiteral("Plasmos"));
    QVERIFY(scene.Sees(QStringLiteral("gob")) && scene.Enabled(QStringLiteral("gob")));
    QVERIFY(scene.Sees(QStringLiteral("txtReplay")) && scene.Enabled(QStringLiteral("txtReplay")));
    QVERIFY(!scene.Sees(QStringLiteral("yesb")) && !scene.Sees(QStringLiteral("nob")));
    QVERIFY(!scene.Sees(QStringLiteral("turnlab")) && !scene.Sees(QStringLiteral("bplab0")));
    QVERIFY(!scene.Item(QStringLiteral("leavemen"))->isEnabled());
    QVERIFY(scene.Item(QStringLiteral("pref_men"))->isEnabled());
    QVERIFY(!scene.Item(QStringLiteral("autoten_men"))->isEnabled());
    QVERIFY(!scene.Item(QStringLiteral("sqno_men"))->isChecked());
    QVERIFY(!scene.Item(QStringLiteral("fast_men"))->isChecked());
    QVERIFY(scene.Item(QStringLiteral("normmen"))->isChecked() && !scene.Item(QStringLiteral("easymen"))->isChecked());
    QVERIFY(!scene.Item(QStringLiteral("victorymen"))->isChecked());
    QVERIFY(!scene.Item(QStringLiteral("twoplayermen"))->isChecked());
    QCOMPARE(game.NumRows * 10 + game.NumCols, 55);
}

void BoardWindowTest::captions_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    const std::pair<const char*, const char*> items[] = {
        {"men_quit", "&Quit"},
        {"autoeat_men", "Automatic &Eating"},
        {"autoten_men", "Automatic &Tentacle"},
        {"sqno_men", "&Square-Numbers"},
        {"lines_men", "Remove &Gridlines"},
        {"easymen", "Easy"},
        {"normmen", "Normal"},
        {"victorymen", "&Victory (42 points)"},
        {"twoplayermen", "T&wo Players"},
        {"pref_men", "&Preferences"},
        {"fast_men", "&Fast Mode"},
        {"diffmen_action", "&Difficulty"},
    };
    for (const auto& [name, caption] : items) {
        QTest::newRow(name) << name << caption;
    }
}

void BoardWindowTest::captions() {
    QFETCH(QString, name);
    QFETCH(QString, caption);
    Scene scene;
    QVERIFY(scene.Item(name) != nullptr);
    QCOMPARE(scene.Item(name)->text(), caption);
    QCOMPARE(scene.Text(QStringLiteral("gob")), QStringLiteral("Go"));
    QCOMPARE(scene.Text(QStringLiteral("yesb")), QStringLiteral("&Yes"));
    QCOMPARE(scene.Text(QStringLiteral("nob")), QStringLiteral("&No"));
    const auto* file = scene.Board().findChild<QMenu*>(QStringLiteral("fil_men"));
    const auto* options = scene.Board().findChild<QMenu*>(QStringLiteral("opt_men"));
    QCOMPARE(file->title(), QStringLiteral("&File"));
    QCOMPARE(options->title(), QStringLiteral("&Options"));
}

void BoardWindowTest::whileAGameRuns() {
    Scene scene;
    scene.Then(QuestionKind::Number, [&] {
        for (const char* name : {"pref_men", "twoplayermen", "watchmen"}) {
            QVERIFY2(!scene.Item(QString::fromLatin1(name))->isEnabled(), name);
        }
        for (const char* name : {"leavemen", "victorymen", "normmen", "lines_men", "men_quit"}) {
            QVERIFY2(scene.Item(QString::fromLatin1(name))->isEnabled(), name);
        }
        QVERIFY(!scene.Sees(QStringLiteral("gob")) && !scene.Sees(QStringLiteral("txtReplay")));
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(scene.Sees(QStringLiteral("gob")));
    QVERIFY(scene.Item(QStringLiteral("pref_men"))->isEnabled());
    QVERIFY(scene.Item(QStringLiteral("twoplayermen"))->isEnabled());
}

void BoardWindowTest::withoutUpDownControls() {
    upDownControls = false;
    Scene scene;
    QVERIFY(!scene.Item(QStringLiteral("pref_men"))->isEnabled());
    game.RequestedClans = 3;
    PLAY(scene, scene.Click(QStringLiteral("watchb")));
    QVERIFY2(!scene.Item(QStringLiteral("pref_men"))->isEnabled(), "nor after a game");
    QVERIFY(scene.Item(QStringLiteral("twoplayermen"))->isEnabled());
}

void BoardWindowTest::messageColours_data() {
    QTest::addColumn<int>("clan");
    QTest::addColumn<QRgb>("background");
    QTest::addColumn<QRgb>("text");
    QTest::newRow("blue has yellow letters") << 1 << 0xFF0000FFU << 0xFFFFFF00U;
    QTest::newRow("purple") << 2 << 0xFFFF00FFU << 0xFF000000U;
    QTest::newRow("yellow") << 3 << 0xFFFFFF00U << 0xFF000000U;
    QTest::newRow("red") << 4 << 0xFFFF0000U << 0xFF000000U;
    QTest::newRow("green") << 5 << 0xFF00B00BU << 0xFF000000U;
    QTest::newRow("orange") << 6 << 0xFFFF8000U << 0xFF000000U;
}

/// What is painted behind a label's letters, at the middle of its lower edge.
QRgb BackgroundOf(Scene& scene, const char* name) {
    const QWidget* label = scene.Find(QString::fromLatin1(name));
    const QPoint point = label->mapTo(&scene.Board(), QPoint(label->width() / 2, label->height() - 3));
    return scene.Board().grab().toImage().pixel(point);
}

void BoardWindowTest::messageColours() {
    QFETCH(int, clan);
    QFETCH(QRgb, background);
    QFETCH(QRgb, text);
    PositionScene scene(6);
    for (int other = 1; other <= 6; ++other) {
        Person(other);
    }
    scene.Then(QuestionKind::YesNo, [&] {
        for (const char* name : {"msglab", "playerlab"}) {
            const QPalette palette = scene.Find(QString::fromLatin1(name))->palette();
            QCOMPARE(palette.color(QPalette::Window).rgb(), background);
            QCOMPARE(palette.color(QPalette::WindowText).rgb(), text);
            QCOMPARE(BackgroundOf(scene, name), background);
        }
        QCOMPARE(scene.Text(QStringLiteral("playerlab")), QStringLiteral("Player %1").arg(clan));
        scene.Click(QStringLiteral("yesb"));
    });
    PHASE(scene, Show(&Presentation::ShowCurrentClan, clan); QVERIFY(AskYesNo(clan, "Really?")));
}

// The acting clan's name and the question to another clan stand side by side, each in its own colours.
void BoardWindowTest::twoClansTwoColours() {
    PositionScene scene;
    game.CurPlayer = 1;
    scene.Then(QuestionKind::YesNo, [&] {
        QCOMPARE(BackgroundOf(scene, "playerlab"), 0xFF0000FFU);
        QCOMPARE(BackgroundOf(scene, "msglab"), 0xFFFFFF00U);
        scene.Click(QStringLiteral("yesb"));
    });
    PHASE(scene, Show(&Presentation::ShowCurrentClan, 1); QVERIFY(AskYesNo(3, "Escape?")); ClearMessage();
          QCOMPARE(BackgroundOf(scene, "playerlab"), 0xFF0000FFU));
}

void BoardWindowTest::anEarlierTextComesBack() {
    PositionScene scene;
    scene.ThenSquare({2, 6, 8, 12}, 6);
    PHASE(scene, ShowStatement("Before", 3); QCOMPARE(ChooseSquare(3, 1, true), 6);
          QCOMPARE(scene.Text(QStringLiteral("msglab")), QStringLiteral("Before")));
}

void BoardWindowTest::aLineStandsUntilItCouldBeRead() {
    PositionScene scene;
    scene.Board().SetSpeed(1);
    game.CurPlayer = 1;
    QElapsedTimer time;
    qint64 computers = 0;
    qint64 persons = 0;
    qint64 fast = 0;
    PHASE(scene, Say("A1 eats 111 in 7"); time.start(); QTimer::singleShot(
              200, [&] { QCOMPARE(scene.Text(QStringLiteral("msglab")), QStringLiteral("A1 eats 111 in 7")); });
          Say("B1 eats 111 in 7"); computers = time.restart(); Concern(3); Say("B2 eats 111 in 7");
          persons = time.restart(); game.FastMode = true; Say("B3 eats 111 in 7"); fast = time.elapsed(););
    QVERIFY2(computers >= 4 * 75, QByteArray::number(computers));
    QVERIFY2(persons >= 10 * 75, QByteArray::number(persons));
    QVERIFY2(fast < 4 * 75, QByteArray::number(fast));
}

void BoardWindowTest::geneLists() {
    PositionScene scene;
    game.BP[3] = 40;
    PHASE(
        scene, for (const char* code
                    : {"sub", "int", "mv1", "mv2"}) { BuyGene(GeneNumber(code)); });
    const auto* list = dynamic_cast<GeneChips*>(scene.Find(QStringLiteral("genelist2")));
    QVERIFY(list != nullptr && list->isVisible());
    QCOMPARE(list->Genes(), (std::vector<int>{GeneNumber("sub"), GeneNumber("int"), GeneNumber("mv2")}));
    const QPoint beside(list->width() - 2, list->height() - 2);
    QHelpEvent help(QEvent::ToolTip, beside, list->mapToGlobal(beside));
    QCoreApplication::sendEvent(scene.Find(QStringLiteral("genelist2")), &help);
    QVERIFY2(QToolTip::text().contains(QStringLiteral("Mutation level: 12")), qPrintable(QToolTip::text()));
    const QPoint first(6, 6);
    QHelpEvent onAGene(QEvent::ToolTip, first, list->mapToGlobal(first));
    QCoreApplication::sendEvent(scene.Find(QStringLiteral("genelist2")), &onAGene);
    QCOMPARE(QToolTip::text().simplified(),
             QStringLiteral("Mutation level: 12 Substitution: ") + ToQt(GeneText(GeneNumber("sub"))));
}

WINDOW_TESTS(board_window_test, BoardWindowTest)

}  // namespace plasmos::testing

#include "board_window_test.moc"
