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
#include <cstring>

#include "model/genes.h"
#include "model/narration.h"
#include "model/platform.h"
#include "model/presentation.h"
#include "rules/ask.h"
#include "rules/movement.h"
#include "tests/ui/support/position.h"
#include "ui/gene_chips.h"
#include "ui/puddle_view.h"
#include "ui/uboard.h"

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

    void aClickThatNobodyWants();
    void yesIsNoSquare();
    void doubleClicksAnswerOnce();
    void heldKeysAnswerNothing();
    void keysAnswer();
    void squaresByTheKeyboard();
    void clicksAtAnySize_data();
    void clicksAtAnySize();
};

void BoardWindowTest::beforeTheFirstGame() {
    Scene scene;
    QCOMPARE(scene.Board().windowTitle(), QStringLiteral("The Puddle"));
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
        scene.Menu(QStringLiteral("leavemen"));
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
    PHASE(scene, Board().ShowMessage("Before", 3); QCOMPARE(ChooseSquare(3, 1, true), 6);
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
}

void BoardWindowTest::aClickThatNobodyWants() {
    PositionScene scene;
    scene.Then(QuestionKind::YesNo, [&] {
        const GameState before = game;
        for (int square = 1; square <= 25; ++square) {
            scene.ClickSquare(square);
            scene.ClickSquare(square, Qt::RightButton);
        }
        QCOMPARE(std::memcmp(&before, &game, sizeof before), 0);
        scene.Click(QStringLiteral("nob"));
    });
    PHASE(scene, QVERIFY(!AskYesNo(3, "Really?")));
    const GameState before = game;
    scene.ClickSquare(7);
    QCOMPARE(std::memcmp(&before, &game, sizeof before), 0);
}

void BoardWindowTest::yesIsNoSquare() {
    PositionScene scene;
    scene.Then(QuestionKind::Square, [&] {
        yesb_Click();
        QCOMPARE(game.Reply, ReplyYes);
        QTimer::singleShot(200, &scene.Board(), [&] {
            QVERIFY2(scene.Board().TopQuestion() != nullptr, "Yes was taken for a square");
            QVERIFY(game.WantSquare);
            QCOMPARE(game.Reply, -1);
            scene.ClickSquare(8);
        });
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {6, 8}), 8));
    QVERIFY(!game.WantSquare);
}

void BoardWindowTest::doubleClicksAnswerOnce() {
    PositionScene scene;
    scene.Then(QuestionKind::YesNo, [&] { scene.DoubleClick(scene.Find(QStringLiteral("yesb"))); });
    scene.Then(QuestionKind::YesNo, [&] {
        QCOMPARE(game.Reply, 0);
        scene.Click(QStringLiteral("nob"));
    });
    scene.Then(QuestionKind::Square, [&] {
        const QPointF middle = scene.Puddle().PointAt({600.0, 600.0 + 1200});
        scene.DoubleClick(&scene.Puddle(), middle.toPoint());
    });
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(game.ReplyY, -1);
        scene.ClickSquare(8);
    });
    PHASE(scene, QVERIFY(AskYesNo(3, "First?")); QVERIFY(!AskYesNo(3, "Second?"));
          QCOMPARE(AskSquare(3, "Where?", {6, 8}), 6); QCOMPARE(AskSquare(3, "Where now?", {6, 8}), 8));
}

void BoardWindowTest::heldKeysAnswerNothing() {
    PositionScene scene;
    const auto hold = [&scene](const QString& name, Qt::Key key) {
        QWidget* widget = scene.Find(name);
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(widget, &event);
        }
    };
    scene.Then(QuestionKind::YesNo, [&] {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            hold(QStringLiteral("yesb"), key);
            hold(QStringLiteral("nob"), key);
        }
        QCOMPARE(game.Reply, 0);
        scene.Key(QStringLiteral("yesb"), Qt::Key_Space);
    });
    scene.Then(QuestionKind::Square, [&] {
        scene.Key(QStringLiteral("Picture1"), Qt::Key_Right);
        hold(QStringLiteral("Picture1"), Qt::Key_Return);
        QCOMPARE(game.Reply, -1);
        scene.ClickSquare(8);
    });
    scene.Then(QuestionKind::Box, [&] {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape}) {
            hold(QStringLiteral("okb"), key);
        }
        QCoreApplication::processEvents();
        QVERIFY(scene.Sees(QStringLiteral("okb")));
        scene.Key(QStringLiteral("okb"), Qt::Key_Return);
    });
    PHASE(scene, QVERIFY(AskYesNo(3, "Really?")); QCOMPARE(AskSquare(3, "Where?", {6, 8}), 8); ShowBox(3, "There."));
}

void BoardWindowTest::keysAnswer() {
    PositionScene scene;
    scene.Then(QuestionKind::YesNo, [&] { QTest::keyClick(&scene.Board(), Qt::Key_Y); });
    scene.Then(QuestionKind::YesNo, [&] { QTest::keyClick(&scene.Board(), Qt::Key_N); });
    scene.Then(QuestionKind::YesNo, [&] {
        QCOMPARE(scene.Board().focusWidget(), scene.Find(QStringLiteral("yesb")));
        scene.Key(QStringLiteral("yesb"), Qt::Key_Return);
    });
    scene.Then(QuestionKind::Box, [&] { scene.Key(QStringLiteral("okb"), Qt::Key_Escape); });
    PHASE(scene, QVERIFY(AskYesNo(3, "One?")); QVERIFY(!AskYesNo(3, "Two?")); QVERIFY(AskYesNo(3, "Three?"));
          ShowBox(3, "Four."));
}

void BoardWindowTest::squaresByTheKeyboard() {
    PositionScene scene;
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(scene.Board().focusWidget(), &scene.Puddle());
        for (const Qt::Key key :
             {Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up, Qt::Key_Left}) {
            QTest::keyClick(&scene.Puddle(), key);
        }
        QTest::keyClick(&scene.Puddle(), Qt::Key_Return);
        QTest::keyClick(&scene.Puddle(), Qt::Key_Right);
        QTest::keyClick(&scene.Puddle(), Qt::Key_Space);
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {6, 8}), 8));
}

void BoardWindowTest::clicksAtAnySize_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("cols");
    for (const QSize size : {QSize(940, 640), QSize(1320, 860), QSize(1900, 1000)}) {
        for (const auto& [rows, cols] : {std::pair{5, 5}, std::pair{4, 9}, std::pair{9, 4}, std::pair{3, 4}}) {
            QTest::addRow("%dx%d, %d rows, %d columns", size.width(), size.height(), rows, cols)
                << size << rows << cols;
        }
    }
}

void BoardWindowTest::clicksAtAnySize() {
    QFETCH(QSize, size);
    QFETCH(int, rows);
    QFETCH(int, cols);
    Scene scene({{"board", "rows", std::to_string(rows)}, {"board", "cols", std::to_string(cols)}});
    scene.Board().resize(size);
    NewPosition(4, rows, cols);
    Person(3);
    game.UVLevel = 10;
    QCoreApplication::processEvents();
    std::vector<int> all;
    for (int square = 1; square <= rows * cols; ++square) {
        all.push_back(square);
    }
    PuddleView& puddle = scene.Puddle();
    QVERIFY2(std::abs(puddle.width() * rows - puddle.height() * cols) <= rows * cols, "the squares are not square");
    for (const int square : {1, cols, cols + 1, (rows - 1) * cols + 1, rows * cols}) {
        for (const double inset : {12.0, 600.0, 1187.0}) {
            scene.Then(QuestionKind::Square, [&scene, &puddle, square, cols, inset] {
                const QPointF units((square - 1) % cols * 1200 + inset, (square - 1) / cols * 1200 + inset);
                const QPoint point = puddle.PointAt(units).toPoint();
                scene.Press(&puddle, Qt::LeftButton,
                            {std::min(point.x(), puddle.width() - 1), std::min(point.y(), puddle.height() - 1)});
            });
        }
    }
    PHASE(
        scene, for (const int square
                    : {1, cols, cols + 1, (rows - 1) * cols + 1, rows * cols}) {
            for (int time = 1; time <= 3; ++time) {
                QCOMPARE(AskSquare(3, "Where?", all), square);
            }
        });
}

}  // namespace plasmos::testing

int main(int argc, char** argv) {
    return plasmos::testing::RunWindowTests<plasmos::testing::BoardWindowTest>(argc, argv);
}

#include "board_window_test.moc"
