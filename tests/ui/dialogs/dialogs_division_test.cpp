// SPDX-License-Identifier: GPL-3.0-or-later
//
// How many amoebas a person creates, and where it places them.

#include <QLabel>

#include "model/consistency.h"
#include "rules/division.h"
#include "tests/ui/support/position.h"
#include "ui/board/puddle_view.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

const std::string Offer = "Clan Player 3, would you like to Divide new Plasmos onto the board?";

std::vector<int> AllSquaresBut(std::vector<int> taken, int squares = 25) {
    std::vector<int> free;
    for (int square = 1; square <= squares; ++square) {
        if (std::find(taken.begin(), taken.end(), square) == taken.end()) {
            free.push_back(square);
        }
    }
    return free;
}

}  // namespace

class DialogsDivisionTest : public QObject {
    Q_OBJECT

private slots:
    void howMany_data();
    void howMany();
    void theFirstIsFree();
    void declines();
    void closingCreatesNone_data();
    void closingCreatesNone();
    void whoCannotPayIsNotAsked();
    void aFullClanIsNotAsked();
    void theSquaresOffered_data();
    void theSquaresOffered();
    void placesAndPaysOneByOne();
    void theStartOfAGame();
};

void DialogsDivisionTest::howMany_data() {
    QTest::addColumn<int>("clans");
    QTest::addColumn<bool>("cheap");
    QTest::addColumn<int>("bp");
    QTest::addColumn<int>("pieces");
    QTest::addColumn<int>("highest");
    QTest::newRow("ten BP buy one") << 4 << false << 0 << 2 << 1;
    QTest::newRow("twelve BP buy two") << 4 << false << 2 << 2 << 2;
    QTest::newRow("Division Rate, ten BP buy two") << 4 << true << 0 << 2 << 2;
    QTest::newRow("thirty BP, five places left") << 4 << false << 40 << 2 << 5;
    QTest::newRow("one place left") << 3 << false << 40 << 6 << 1;
    QTest::newRow("six pieces are the most with five clans") << 5 << true << 40 << 1 << 5;
    QTest::newRow("six clans get eleven BP") << 6 << false << 1 << 1 << 2;
}

void DialogsDivisionTest::howMany() {
    QFETCH(int, clans);
    QFETCH(bool, cheap);
    QFETCH(int, bp);
    QFETCH(int, pieces);
    QFETCH(int, highest);
    PositionScene scene(clans);
    for (int amoeba = 2; amoeba <= pieces; ++amoeba) {
        Put(3, amoeba, 7 + amoeba);
    }
    if (cheap) {
        Give(3, "div");
    }
    game.BP[3] = bp;
    const int full = bp + (clans >= 5 ? 11 : 10);
    scene.ThenYes(Offer);
    scene.Then(QuestionKind::Number, [&] {
        QCOMPARE(scene.Text(QStringLiteral("dialogTitle")), QStringLiteral("Amoeba-number form"));
        QCOMPARE(scene.Text(QStringLiteral("amlab")), QStringLiteral("How many amoebas would you like to create?"));
        QCOMPARE(scene.Text(QStringLiteral("bplab2")), QString::number(full));
        for (int k = 0; k <= 7; ++k) {
            QCOMPARE(scene.Sees(QStringLiteral("amopt%1").arg(k)), k <= (clans >= 5 ? 6 : 7));
            QCOMPARE(scene.Enabled(QStringLiteral("amopt%1").arg(k)), k <= highest);
        }
        scene.Press(scene.Find(QStringLiteral("amopt%1").arg(highest + 1)));
        QCOMPARE(game.Reply, -1);
        scene.Click(QStringLiteral("amopt0"));
    });
    scene.AnswerBy([](Question&) {});
    PHASE(scene, DivisionPhase());
    QCOMPARE(game.AmoebaCount[3], pieces);
    QCOMPARE(game.BP[3], full);
}

void DialogsDivisionTest::theFirstIsFree() {
    PositionScene scene;
    LiftPiece(3, 1);
    game.AmoebaCount[3] = 0;
    game.BP[3] = 0;
    std::swap(game.PlayOrder[1], game.PlayOrder[3]);
    scene.ThenYes(Offer);
    scene.ThenBox("Your first amoeba will be free of cost; all further amoebas will cost you 6 BPs as normal.");
    scene.Then(QuestionKind::Number, [&] {
        QVERIFY(scene.Enabled(QStringLiteral("amopt2")) && !scene.Enabled(QStringLiteral("amopt3")));
        scene.Click(QStringLiteral("amopt2"));
    });
    scene.ThenSquare(AllSquaresBut({}), 13);
    scene.ThenSquare(AllSquaresBut({13}), 1);
    PHASE(scene, DivisionPhase());
    QCOMPARE(game.BP[3], 4);
    QCOMPARE(game.AmoebaCount[3], 2);
}

void DialogsDivisionTest::declines() {
    PositionScene scene;
    scene.ThenNo(Offer);
    PHASE(scene, DivisionPhase());
    QCOMPARE(game.BP[3], 10);
    QCOMPARE(game.AmoebaCount[3], 1);
    QCOMPARE(scene.Text(QStringLiteral("msglab")), QString());
}

void DialogsDivisionTest::closingCreatesNone_data() {
    QTest::addColumn<bool>("key");
    QTest::newRow("the cross") << false;
    QTest::newRow("Escape") << true;
}

void DialogsDivisionTest::closingCreatesNone() {
    QFETCH(bool, key);
    PositionScene scene;
    scene.ThenYes(Offer);
    scene.Then(QuestionKind::Number, [&] {
        key ? scene.Key(QStringLiteral("amopt0"), Qt::Key_Escape) : scene.Click(QStringLiteral("closeb"));
    });
    PHASE(scene, DivisionPhase());
    QCOMPARE(game.AmoebaCount[3], 1);
    QCOMPARE(game.BP[3], 10);
}

void DialogsDivisionTest::whoCannotPayIsNotAsked() {
    NEEDS_A_STATE_NO_GAME_REACHES("BP are never negative, and the income of a turn pays for one");
    PositionScene scene;
    LiftPiece(3, 1);
    game.AmoebaCount[3] = 0;
    game.BP[3] = -5;
    PHASE(scene, DivisionPhase());
    QCOMPARE(scene.Asked(), 0);
    QCOMPARE(game.BP[3], 5);
}

void DialogsDivisionTest::aFullClanIsNotAsked() {
    PositionScene scene;
    for (int amoeba = 2; amoeba <= 7; ++amoeba) {
        Put(3, amoeba, 7);
    }
    game.BP[3] = 60;
    PHASE(scene, DivisionPhase());
    QCOMPARE(scene.Asked(), 0);
    QCOMPARE(scene.Text(QStringLiteral("bplab2")), QStringLiteral("70"));
}

void DialogsDivisionTest::theSquaresOffered_data() {
    QTest::addColumn<QString>("genes");
    QTest::addColumn<QString>("blocks");
    QTest::addColumn<QList<int>>("own");
    QTest::addColumn<QList<int>>("offered");
    const auto all = [](std::vector<int> but) {
        const auto squares = AllSquaresBut(std::move(but));
        return QList<int>(squares.begin(), squares.end());
    };
    QTest::newRow("one amoeba: anywhere but there") << ""
                                                    << "" << QList<int>{7} << all({7});
    QTest::newRow("two: beside them") << ""
                                      << "" << QList<int>{7, 25} << QList<int>{2, 6, 8, 12, 20, 24};
    QTest::newRow("two in one square") << ""
                                       << "" << QList<int>{7, 7} << QList<int>{2, 6, 8, 12};
    QTest::newRow("side by side") << ""
                                  << "" << QList<int>{7, 8} << QList<int>{2, 3, 6, 7, 8, 9, 12, 13};
    QTest::newRow("Spores: anywhere but there") << "spo"
                                                << "" << QList<int>{7, 25} << all({7, 25});
    QTest::newRow("blocks are no squares") << ""
                                           << "6:12:" << QList<int>{7, 25} << QList<int>{2, 8, 20, 24};
    QTest::newRow("shut in by blocks") << ""
                                       << "2:6:" << QList<int>{1, 1} << all({1, 2, 6});
}

void DialogsDivisionTest::theSquaresOffered() {
    QFETCH(QString, genes);
    QFETCH(QString, blocks);
    QFETCH(QList<int>, own);
    QFETCH(QList<int>, offered);
    PositionScene scene;
    LiftPiece(3, 1);
    game.AmoebaCount[3] = 0;
    SetBoard(5, 5, blocks.toStdString());
    for (int i = 0; i < own.size(); ++i) {
        Put(3, i + 1, own[i]);
    }
    Put(1, 1, 8);
    if (!genes.isEmpty()) {
        Give(3, genes.toStdString());
    }
    scene.ThenYes(Offer);
    scene.Then(QuestionKind::Number, [&] { scene.Click(QStringLiteral("amopt1")); });
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(scene.Text(QStringLiteral("msglab")),
                 QStringLiteral("Choose a square in which to place your amoeba:"));
        QCOMPARE(scene.Puddle().Offered(), std::vector<int>(offered.begin(), offered.end()));
        scene.ClickSquare(offered.back());
    });
    PHASE(scene, DivisionPhase());
    QCOMPARE(SquareOf(3, static_cast<int>(own.size()) + 1), offered.back());
    QCOMPARE(game.BP[3], 4);
    QCOMPARE(CheckConsistency(), std::string());
}

void DialogsDivisionTest::placesAndPaysOneByOne() {
    PositionScene scene;
    Put(3, 2, 9);
    LiftPiece(3, 1);
    --game.AmoebaCount[3];
    Put(3, 3, 9);
    game.BP[3] = 8;
    scene.ThenYes(Offer);
    scene.Then(QuestionKind::Number, [&] { scene.Click(QStringLiteral("amopt3")); });
    for (const int bp : {12, 6, 0}) {
        scene.Then(QuestionKind::Square, [&scene, bp] {
            QCOMPARE(scene.Text(QStringLiteral("bplab2")), QString::number(bp));
            scene.ClickSquare(scene.Puddle().Offered().front());
        });
    }
    PHASE(scene, DivisionPhase());
    QCOMPARE(SquareOf(3, 1), 4);
    QCOMPARE(SquareOf(3, 4), 3);
    QCOMPARE(SquareOf(3, 5), 2);
    QCOMPARE(game.BP[3], 0);
}

void DialogsDivisionTest::theStartOfAGame() {
    Scene scene({{"board", "blocks", "1:2:"}});
    game.RequestedClans = 3;
    game.HasRequestedReplay = true;
    game.RequestedReplay = 3;
    for (int piece = 1; piece <= 2; ++piece) {
        scene.Then(QuestionKind::Square, [&scene, piece] {
            QCOMPARE(game.Turn, 0);
            QCOMPARE(game.AmoebaCount[3], piece - 1);
            for (int square = 1; square <= 25; ++square) {
                const auto& offered = scene.Puddle().Offered();
                const bool free = !game.Blocked[square] && game.Occupancy[square][0] == 0;
                QCOMPARE(std::find(offered.begin(), offered.end(), square) != offered.end(), free);
            }
            QCOMPARE(scene.Text(QStringLiteral("playerlab")), QStringLiteral("Player 3"));
            scene.ClickSquare(scene.Puddle().Offered().back());
        });
    }
    scene.AnswerBy([&](Question&) { scene.Board().EndProgram(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(game.AmoebaCount[3], 2);
}

WINDOW_TESTS(dialogs_division_test, DialogsDivisionTest)

}  // namespace plasmos::testing

#include "dialogs_division_test.moc"
