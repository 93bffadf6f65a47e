// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a person is asked while its amoebas move: drift and offer, and the squares to choose from.

#include <QAction>
#include <QLabel>
#include <QTimer>
#include <QWindow>

#include "model/consistency.h"
#include "rules/move_amoeba.h"
#include "rules/movement.h"
#include "tests/ui/support/position.h"
#include "ui/board/puddle_view.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

const std::string Pay = "Would C1 like to pay 1BP to attempt to move elsewhere?";
const std::string Free = "Would C1 like to attempt to move elsewhere?";
const std::string Stays = "C1 will remain in 7.\n";
const std::string IntoEight = "C1 will drift into 8.\n";

/// One amoeba's move: what it has, what is asked and answered, where it ends.
struct MoveRow {
    const char* Name;
    const char* Genes;
    int Drift;
    int BP;
    std::vector<std::string> Questions;
    std::string Answers;  ///< "y" and "n" for the questions in turn
    std::vector<int> Rolls;
    std::vector<int> Offered;  ///< squares; empty: none is asked for
    int Chosen;
    std::string Told;  ///< a line of the log; empty: none
    int Ends;
    int BPLeft;
};

// The last roll of a real move finds the spot in the square.
const MoveRow Moves[] = {
    {"drifts", "", 1, 1, {IntoEight + Pay}, "n", {5}, {}, 0, "", 8, 1},
    {"drifts down", "", 5, 1, {"C1 will drift into 12.\n" + Pay}, "n", {5}, {}, 0, "", 12, 1},
    {"remains", "", 0, 1, {Stays + Pay}, "n", {}, {}, 0, "", 7, 1},
    {"is told where it drifts", "", 1, 0, {}, "", {5}, {}, 0, "C1 will drift into 8.", 8, 0},
    {"is told that it remains", "", 0, 0, {}, "", {}, {}, 0, "C1 will remain in 7.", 7, 0},
    {"moves by die instead",
     "",
     1,
     1,
     {IntoEight + Pay},
     "y",
     {2, 5},
     {},
     0,
     "Amoeba 1 will move Down instead.",
     12,
     0},
    {"moves by die anyway", "", 1, 1, {IntoEight + Pay}, "y", {1, 5}, {}, 0, "Amoeba 1 will move Right anyway.", 8, 0},
    {"stays by die", "", 1, 2, {IntoEight + Pay}, "y", {5}, {}, 0, "Amoeba 1 will move in place instead.", 7, 1},
    {"a six chooses",
     "",
     1,
     1,
     {IntoEight + Pay},
     "y",
     {6, 5},
     {2, 6, 8, 12},
     6,
     "Amoeba 1 will move where it wants instead.",
     6,
     0},
    {"a six with Holding may stay", "hol", 1, 1, {IntoEight + Pay}, "y", {6}, {2, 6, 7, 8, 12}, 7, "", 7, 0},
    {"Streamlining asks without a price",
     "str",
     1,
     0,
     {IntoEight + Free},
     "y",
     {4, 5},
     {},
     0,
     "Amoeba 1 will move Up instead.",
     2,
     0},
    {"Movement 2 chooses", "mv2", 1, 1, {IntoEight + Pay}, "y", {5}, {2, 6, 8, 12}, 2, "", 2, 0},
    {"Movement 1 chooses between two", "mv1", 1, 1, {IntoEight + Pay}, "y", {2, 3, 5}, {6, 12}, 6, "", 6, 0},
    {"Movement 1 with two equal dice",
     "mv1",
     1,
     1,
     {IntoEight + Pay},
     "y",
     {2, 2, 5},
     {},
     0,
     "C1 will move to 12 instead",
     12,
     0},
    {"Movement 1 stays twice", "mv1", 1, 1, {IntoEight + Pay}, "y", {5, 5}, {}, 0, "C1 will stay in 7 instead", 7, 0},
    {"Movement 1 with a six", "mv1", 1, 1, {IntoEight + Pay}, "y", {1, 6, 5}, {2, 6, 8, 12}, 12, "", 12, 0},
    {"Movement 1 with a first six",
     "mv1",
     1,
     1,
     {IntoEight + Pay},
     "y",
     {6, 2, 5},
     {2, 6, 8, 12},
     12,
     "C1 will move to 12 instead",
     12,
     0},
    {"Speed tries again for nothing",
     "spe",
     1,
     1,
     {IntoEight + Pay, Free},
     "yy",
     {2, 5, 1, 5},
     {},
     0,
     "Amoeba 1 will move Right instead.",
     13,
     0},
    {"Speed declines the second time", "spe", 1, 1, {IntoEight + Pay, Free}, "yn", {2, 5}, {}, 0, "", 12, 0},
    {"Speed that drifts is not asked again", "spe", 1, 1, {IntoEight + Pay}, "n", {5}, {}, 0, "", 8, 1},
    {"Persistence tries again for nothing",
     "per",
     0,
     1,
     {Stays + Pay, Free},
     "yy",
     {1, 5, 1, 5},
     {},
     0,
     "Amoeba 1 will move Right instead.",
     9,
     0},
    {"drifts where it wants", "", WhereItWants, 1, {Pay}, "n", {5}, {2, 6, 7, 8, 12}, 12, "", 12, 1},
    {"drifts where it wants, without BP", "", WhereItWants, 0, {}, "", {}, {2, 6, 7, 8, 12}, 7, "", 7, 0},
};

}  // namespace

class DialogsMovesTest : public QObject {
    Q_OBJECT

private slots:
    void moves_data();
    void moves();
    void theEdgeHoldsIt();
    void textOfTheChoice();
    void wrongSquaresAreIgnored();
    void clansActInReverseOrder();
    void theOutlineFollows();
};

void DialogsMovesTest::moves_data() {
    QTest::addColumn<int>("number");
    for (int number = 0; number < static_cast<int>(std::size(Moves)); ++number) {
        QTest::newRow(Moves[number].Name) << number;
    }
}

void DialogsMovesTest::moves() {
    QFETCH(int, number);
    const MoveRow& row = Moves[number];
    PositionScene scene;
    for (const QString& code : QString::fromLatin1(row.Genes).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        Give(3, code.toStdString());
    }
    game.Drift = row.Drift;
    game.BP[3] = row.BP;
    scene.Roll(row.Rolls);
    for (std::size_t i = 0; i < row.Questions.size(); ++i) {
        row.Answers[i] == 'y' ? scene.ThenYes(row.Questions[i]) : scene.ThenNo(row.Questions[i]);
    }
    if (!row.Offered.empty()) {
        scene.ThenSquare(row.Offered, row.Chosen);
    }
    PHASE(scene, MovementPhase());
    QCOMPARE(SquareOf(3, 1), row.Ends);
    QCOMPARE(game.BP[3], row.BPLeft);
    QCOMPARE(scene.Text(QStringLiteral("bplab2")), QString::number(row.BPLeft));
    QVERIFY2(row.Told.empty() || scene.HasLogLine(ToQt(row.Told)), qPrintable(scene.Log().join(QLatin1Char('|'))));
    QVERIFY(scene.HasLogLine(QStringLiteral("C1 starves in %1").arg(row.Ends)));
    QCOMPARE(CheckConsistency(), std::string());
}

void DialogsMovesTest::theEdgeHoldsIt() {
    PositionScene scene;
    LiftPiece(3, 1);
    PutPiece(3, 1, 10, 1);
    game.Drift = 1;
    game.BP[3] = 1;
    scene.ThenNo("C1 will remain in 10.\n" + Pay);
    PHASE(scene, MovementPhase());
    QCOMPARE(SquareOf(3, 1), 10);
}

void DialogsMovesTest::textOfTheChoice() {
    PositionScene scene;
    game.BP[3] = 1;
    scene.Roll({6, 5});
    scene.ThenYes(Stays + Pay);
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(scene.Text(QStringLiteral("msglab")),
                 QStringLiteral("Amoeba 1 will move where it wants instead.\nChoose a square for C1 to Move into:"));
        scene.ClickSquare(2);
    });
    PHASE(scene, MovementPhase());
    QCOMPARE(SquareOf(3, 1), 2);
}

void DialogsMovesTest::wrongSquaresAreIgnored() {
    PositionScene scene;
    Give(3, "mv2");
    game.BP[3] = 1;
    SetBoard(5, 5, "6:");
    scene.ThenYes(Stays + Pay);
    for (const int square : {1, 6, 13, 25, 3}) {
        scene.Then(QuestionKind::Square, [&scene, square] {
            QCOMPARE(scene.Puddle().Offered(), (std::vector<int>{2, 7, 8, 12}));
            QVERIFY(game.WantSquare);
            scene.ClickSquare(square);
        });
    }
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(!scene.Sees(QStringLiteral("yesb")) && !scene.Sees(QStringLiteral("nob")));
        QTest::keyClick(scene.Board().windowHandle(), Qt::Key_Y);
        QCOMPARE(SquareOf(3, 1), 7);
        scene.Soon([&] {
            QVERIFY2(scene.Board().TopQuestion() != nullptr, "a wrong square has answered, or the key");
            scene.ClickSquare(12);
        });
    });
    PHASE(scene, MovementPhase());
    QCOMPARE(SquareOf(3, 1), 12);
}

void DialogsMovesTest::clansActInReverseOrder() {
    PositionScene scene;
    Person(2);
    Put(2, 1, 1);
    Put(2, 2, 2);
    game.PlayOrder[1] = 3;
    game.PlayOrder[3] = 1;
    game.BP[2] = game.BP[3] = 1;
    scene.Then(QuestionKind::YesNo, [&] {
        QCOMPARE(scene.Text(QStringLiteral("playerlab")), QStringLiteral("Player 2"));
        QVERIFY(scene.Text(QStringLiteral("msglab")).startsWith(QStringLiteral("B1 will remain in 1.")));
        scene.Click(QStringLiteral("nob"));
    });
    scene.ThenNo("B2 will remain in 2.\nWould B2 like to pay 1BP to attempt to move elsewhere?");
    scene.ThenNo(Stays + Pay);
    PHASE(scene, MovementPhase());
}

void DialogsMovesTest::theOutlineFollows() {
    PositionScene scene;
    game.BP[3] = 1;
    QImage outlined;
    scene.Then(QuestionKind::YesNo, [&] {
        outlined = scene.Puddle().grab().toImage();
        scene.Click(QStringLiteral("nob"));
    });
    PHASE(scene, MovementPhase());
    QVERIFY2(scene.Puddle().grab().toImage() != outlined, "the acting piece looks like any other");
}

WINDOW_TESTS(dialogs_moves_test, DialogsMovesTest)

}  // namespace plasmos::testing

#include "dialogs_moves_test.moc"
