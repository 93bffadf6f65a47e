// SPDX-License-Identifier: GPL-3.0-or-later
//
// The board by ear: what is told of squares, pieces, food, cards and markers to who cannot see them.

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QLabel>

#include "model/narration.h"
#include "questions/ask.h"
#include "tests/ui/support/position.h"
#include "ui/board/puddle_view.h"
#include "ui/board/score_track.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

QStringList heard;

/// "focus Square 7, ..." and the like.
void Hear(QAccessibleEvent* event) {
    QAccessibleInterface* what = event->accessibleInterface();
    const QString name = what != nullptr ? what->text(QAccessible::Name) : QString();
    if (event->type() == QAccessible::Focus) {
        heard << QStringLiteral("focus ") + name;
    } else if (event->type() == QAccessible::Alert) {
        heard << QStringLiteral("alert ") + name;
    } else if (event->type() == QAccessible::TextInserted) {
        heard << QStringLiteral("text ") + static_cast<QAccessibleTextInsertEvent*>(event)->textInserted();
    }
}

/// The platform hands events on; off the screen nobody listens.
bool IsListening() {
    return QAccessible::isActive();
}

QAccessibleInterface* Of(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget);
}

QString NameOf(QAccessibleInterface* part) {
    return part->text(QAccessible::Name);
}

}  // namespace

class BoardHeardTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QAccessible::setActive(true);
        QAccessible::installUpdateHandler(Hear);
    }
    void init() { heard.clear(); }
    void squaresPiecesAndFood();
    void placesAndParents();
    void aSquareIsChosen();
    void theCursorIsTold();
    void cardsAndMarkers();
    void messagesAndLines();
    void noLabelIsReadEmpty();
    void thePartsGoWithTheWindow();
};

void BoardHeardTest::squaresPiecesAndFood() {
    PositionScene scene;
    Put(1, 2, 7);
    game.Amoeba[2][1].Name = "Otto";
    game.Amoeba[2][1].Damage = 1;
    Feed(7, {2, 0, 0, 1});
    game.Blocked[9] = true;
    QAccessibleInterface* board = Of(&scene.Puddle());
    QCOMPARE(board->childCount(), 25);
    QCOMPARE(NameOf(board->child(6)),
             QStringLiteral("Square 7, row 2, column 2: Otto (2) of Player 1, damage 1; C1 (1) of Player 3; "
                            "food 2 blue, 1 red"));
    QCOMPARE(NameOf(board->child(11)), QStringLiteral("Square 12, row 3, column 2: nobody; food none"));
    QCOMPARE(NameOf(board->child(8)), QStringLiteral("Square 9, row 2, column 4: a stone"));
    QStringList inside;
    for (int part = 0; part < board->child(6)->childCount(); ++part) {
        inside << NameOf(board->child(6)->child(part));
    }
    QCOMPARE(inside,
             (QStringList{"Otto (2) of Player 1, damage 1", "C1 (1) of Player 3", "2 blue food", "1 red food"}));
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(NameOf(board->child(11)).endsWith(QStringLiteral("; can be chosen")));
        QVERIFY(board->child(11)->state().selectable && !board->child(6)->state().selectable);
        scene.ClickSquare(12);
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {12, 13}), 12));
}

void BoardHeardTest::placesAndParents() {
    PositionScene scene;
    Feed(7, {2, 0, 0, 1});
    QAccessibleInterface* board = Of(&scene.Puddle());
    QVERIFY(board->rect().isValid());
    for (int square = 0; square < 25; ++square) {
        QAccessibleInterface* part = board->child(square);
        QVERIFY(part->isValid() && board->rect().adjusted(-1, -1, 1, 1).contains(part->rect()));
        QCOMPARE(part->parent(), board);
        QCOMPARE(board->indexOfChild(part), square);
        QCOMPARE(part->role(), QAccessible::Cell);
    }
    QAccessibleInterface* square = board->child(6);
    QCOMPARE(square->childCount(), 3);
    for (int part = 0; part < square->childCount(); ++part) {
        QAccessibleInterface* piece = square->child(part);
        QCOMPARE(piece->parent(), square);
        QCOMPARE(square->indexOfChild(piece), part);
        QVERIFY(square->rect().contains(piece->rect()));
        const QPoint middle = piece->rect().center();
        QCOMPARE(board->childAt(middle.x(), middle.y()), piece);
    }
    QAccessibleInterface* piece = square->child(0);
    LiftPiece(3, 1);
    QVERIFY2(!piece->isValid() && piece->state().invisible, "a piece that is gone");
}

void BoardHeardTest::aSquareIsChosen() {
    PositionScene scene;
    QAccessibleInterface* board = Of(&scene.Puddle());
    scene.Then(QuestionKind::YesNo, [&] {
        QVERIFY(board->child(7)->actionInterface()->actionNames().isEmpty());
        board->child(7)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(game.Reply, 0);
        scene.Click(QStringLiteral("yesb"));
    });
    scene.Then(QuestionKind::Square, [&] {
        board->child(8)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(game.ReplyY, -1);
        QCOMPARE(board->child(7)->actionInterface()->actionNames(),
                 QStringList{QAccessibleActionInterface::pressAction()});
        board->child(7)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    });
    PHASE(scene, QVERIFY(AskYesNo(3, "Really?")); QCOMPARE(AskSquare(3, "Where?", {6, 8}), 8));
}

void BoardHeardTest::theCursorIsTold() {
    PositionScene scene;
    scene.Then(QuestionKind::Square, [&] {
        heard.clear();
        scene.Key(QStringLiteral("Picture1"), Qt::Key_Tab);
        scene.Key(QStringLiteral("Picture1"), Qt::Key_Right);
        const QStringList told = {"focus Square 6, row 2, column 1: nobody; food none; can be chosen",
                                  "focus Square 7, row 2, column 2: C1 (1) of Player 3; food none"};
        QCOMPARE(heard, IsListening() ? told : QStringList());
        QAccessibleInterface* board = Of(&scene.Puddle());
        QCOMPARE(board->focusChild(), board->child(6));
        QVERIFY(board->child(6)->state().focused && !board->child(5)->state().focused);
        scene.ClickSquare(6);
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {6, 8}), 6));
}

void BoardHeardTest::cardsAndMarkers() {
    PositionScene scene;
    game.Players[3].Score = 7;
    game.BP[3] = 20;
    game.AmoebaCount[3] = 4;
    PHASE(scene, BuyGene(GeneNumber("int")));
    const int points = game.Players[3].MutationLevel;
    QAccessibleInterface* clans = Of(scene.Find(QStringLiteral("bplab0"))->parentWidget());
    QCOMPARE(NameOf(clans->child(2)),
             QStringLiteral("Player 3, you, score 7, %1 BP, 4 of 7 amoebas, mutation level %2 of UV 10, genes: %3")
                 .arg(game.BP[3])
                 .arg(points)
                 .arg(ToQt(GeneName(GeneNumber("int")))));
    QVERIFY(NameOf(clans->child(0)).startsWith(QStringLiteral("Player 1, Eater, score 4, 0 BP, 0 of 7 amoebas")));
    QVERIFY(NameOf(clans->child(0)).endsWith(QStringLiteral("genes: none")));
    QAccessibleInterface* track = Of(scene.Board().findChild<ScoreTrack*>());
    QCOMPARE(NameOf(track), QStringLiteral("Score track"));
    QCOMPARE(NameOf(track->child(2)), QStringLiteral("Player 3: score 7"));
    QVERIFY(track->rect().contains(track->child(2)->rect()));
}

void BoardHeardTest::messagesAndLines() {
    if (!IsListening()) {
        QSKIP("nobody listens on this platform");
    }
    PositionScene scene;
    scene.ThenYes("Really?");
    PHASE(scene, heard.clear(); Say("A1 eats 111 in 7"); QVERIFY(AskYesNo(3, "Really?")));
    QVERIFY2(heard.contains(QStringLiteral("alert A1 eats 111 in 7")), qPrintable(heard.join(u'|')));
    QVERIFY(heard.contains(QStringLiteral("alert Really?")));
    QVERIFY(heard.contains(QStringLiteral("text A1 eats 111 in 7")));
}

void BoardHeardTest::noLabelIsReadEmpty() {
    Scene scene;
    for (const char* name : {"turnlab", "driftlab", "UVlab"}) {
        QVERIFY2(!NameOf(Of(scene.Find(QString::fromLatin1(name)))).isEmpty(), name);
    }
    PositionScene position;
    PHASE(position, QCOMPARE(NameOf(Of(position.Find(QStringLiteral("turnlab")))), QStringLiteral("Turn 1 of 10"));
          QCOMPARE(NameOf(Of(position.Find(QStringLiteral("UVlab")))), QStringLiteral("UV level 10"));
          QCOMPARE(NameOf(Of(position.Find(QStringLiteral("driftlab")))), QStringLiteral("Drift in place")));
}

void BoardHeardTest::thePartsGoWithTheWindow() {
    QAccessible::Id id = 0;
    {
        PositionScene scene;
        id = QAccessible::uniqueId(Of(&scene.Puddle())->child(6)->child(0));
        QVERIFY(QAccessible::accessibleInterface(id) != nullptr);
    }
    QVERIFY(QAccessible::accessibleInterface(id) == nullptr);
}

WINDOW_TESTS(board_heard_test, BoardHeardTest)

}  // namespace plasmos::testing

#include "board_heard_test.moc"
