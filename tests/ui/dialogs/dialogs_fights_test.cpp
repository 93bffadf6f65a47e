// SPDX-License-Identifier: GPL-3.0-or-later
//
// Attacks by a person.

#include "model/consistency.h"
#include "rules/aggression.h"
#include "tests/ui/support/position.h"
#include "ui/board/puddle_view.h"

namespace plasmos::testing {

namespace {

const std::string Offer = "Player 3: would you like to Aggress another amoeba now?";

}  // namespace

/// The person's clan can attack; pieces of clan 1 stand beside its own in the squares 7 and 9.
class AttackScene : public PositionScene {
public:
    AttackScene() {
        Give(3, "agg");
        game.BP[3] = 2;
        Put(3, 2, 9);
        Put(1, 1, 7);
        Put(1, 2, 9);
        Put(4, 1, 9);
    }
    void ThenPick(const char* figure) {
        Then(QuestionKind::Victim, [this, figure] {
            QCOMPARE(Text(QStringLiteral("vfamlab")), QStringLiteral("Choose the Attack-victim:"));
            Click(QString::fromLatin1(figure));
            Click(QStringLiteral("doneb"));
        });
    }
};

class DialogsFightsTest : public QObject {
    Q_OBJECT

private slots:
    void attacks();
    void aWrongSquareAttacksNobody();
    void noEndsTheStep();
    void withoutAVictimNobodyIsAsked();
    void choosesTheAttacker_data();
    void choosesTheAttacker();
    void thePickIsWithdrawn();
    void anArmouredVictimIsHurt();
    void theVictimBeatsItOff();
    void persistenceAttacksTwice();
    void onlyOneAttackATurn();
};

void DialogsFightsTest::attacks() {
    AttackScene scene;
    scene.ThenYes(Offer);
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(scene.Text(QStringLiteral("msglab")), QStringLiteral("Choose the square in which to aggress:"));
        QCOMPARE(scene.Puddle().Offered(), (std::vector<int>{7, 9}));
        scene.ClickSquare(9);
    });
    scene.Then(QuestionKind::Victim, [&] {
        QVERIFY2(!scene.Enabled(QStringLiteral("figure1")), "one's own pieces cannot be picked");
        scene.Click(QStringLiteral("figure0"));
        QCOMPARE(scene.Text(QStringLiteral("vfamlab")),
                 QStringLiteral("Choose the Attack-victim:\n2- A2 (0) of Player 1"));
        scene.Click(QStringLiteral("figure2"));
        QCOMPARE(scene.Text(QStringLiteral("vfamlab")),
                 QStringLiteral("Choose the Attack-victim:\n1- D1 (0) of Player 4"));
        QCOMPARE(game.BP[3], 2);
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, AggressionPhase());
    QCOMPARE(game.BP[3], 1);
    QCOMPARE(scene.Text(QStringLiteral("bplab2")), QStringLiteral("1"));
    QCOMPARE(SquareOf(4, 1), 0);
    QCOMPARE(SquareOf(1, 2), 9);
    QCOMPARE(FoodOn(9), (std::vector<int>{2, 2, 2, 2}));
    QVERIFY(scene.HasLogLine(QStringLiteral("C2 picking a fight with D1 in 9")));
    QVERIFY(!scene.Log().filter(QStringLiteral("D1 torn viciously to pieces!!!")).isEmpty());
    QCOMPARE(CheckConsistency(), std::string());
}

void DialogsFightsTest::aWrongSquareAttacksNobody() {
    AttackScene scene;
    scene.ThenYes(Offer);
    scene.Then(QuestionKind::Square, [&] {
        scene.ClickSquare(1);
        QVERIFY(game.WantSquare);
    });
    scene.Then(QuestionKind::Square, [&] { scene.ClickSquare(7); });
    scene.ThenPick("figure0");
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(1, 1) == 0 ? 1 : 0, 1);
}

void DialogsFightsTest::noEndsTheStep() {
    NEEDS_A_STATE_NO_GAME_REACHES("a second copy of Aggression does not exist");
    AttackScene scene;
    Give(4, "agg");
    game.BP[4] = 1;
    scene.ThenNo(Offer);
    PHASE(scene, AggressionPhase());
    QCOMPARE(game.BP[3], 2);
    QCOMPARE(game.BP[4], 1);
    QCOMPARE(scene.Text(QStringLiteral("msglab")), QString());
}

void DialogsFightsTest::withoutAVictimNobodyIsAsked() {
    AttackScene scene;
    Give(1, "arm");
    Give(4, "arm");
    Give(3, "sfs");
    PHASE(scene, AggressionPhase());
    QCOMPARE(scene.Asked(), 0);
}

void DialogsFightsTest::choosesTheAttacker_data() {
    QTest::addColumn<bool>("withdraw");
    QTest::newRow("the second") << false;
    QTest::newRow("None") << true;
}

void DialogsFightsTest::choosesTheAttacker() {
    QFETCH(bool, withdraw);
    AttackScene scene;
    Put(3, 5, 9);
    scene.ThenYes(Offer);
    scene.ThenSquare({7, 9}, 9);
    scene.Then(QuestionKind::Amoeba, [&] {
        QCOMPARE(scene.Text(QStringLiteral("amlab")), QStringLiteral("Which amoeba shall attack?"));
        QVERIFY(!scene.Enabled(QStringLiteral("amopt1")) && scene.Enabled(QStringLiteral("amopt2")));
        scene.Click(withdraw ? QStringLiteral("amoptb") : QStringLiteral("amopt5"));
    });
    if (!withdraw) {
        scene.ThenPick("figure0");
    }
    PHASE(scene, AggressionPhase());
    QCOMPARE(game.BP[3], withdraw ? 2 : 1);
    QCOMPARE(scene.HasLogLine(QStringLiteral("C5 picking a fight with A2 in 9")), !withdraw);
}

void DialogsFightsTest::thePickIsWithdrawn() {
    AttackScene scene;
    scene.ThenYes(Offer);
    scene.ThenSquare({7, 9}, 7);
    scene.Then(QuestionKind::Victim, [&] {
        QVERIFY(!scene.Enabled(QStringLiteral("doneb")));
        scene.Press(scene.Find(QStringLiteral("doneb")));
        QCOMPARE(game.ReplyY, 0);
        scene.Click(QStringLiteral("figure0"));
        scene.Click(QStringLiteral("closeb"));
    });
    PHASE(scene, AggressionPhase());
    QCOMPARE(game.BP[3], 2);
    QCOMPARE(SquareOf(1, 1), 7);
}

void DialogsFightsTest::anArmouredVictimIsHurt() {
    AttackScene scene;
    Give(1, "arm");
    scene.ThenYes(Offer);
    scene.ThenSquare({7, 9}, 7);
    scene.ThenPick("figure0");
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(1, 1), 7);
    QCOMPARE(DamageOf(1, 1), 1);
    QCOMPARE(FoodOn(7), (std::vector<int>{0, 0, 0, 0}));
}

void DialogsFightsTest::theVictimBeatsItOff() {
    AttackScene scene;
    Give(1, "def");
    game.BP[1] = 1;
    scene.Roll({4, 4, 1, 2});
    scene.ThenYes(Offer);
    scene.ThenSquare({7, 9}, 7);
    scene.ThenPick("figure0");
    scene.ThenBox("C1 has been beaten off by A1!");
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(1, 1), 7);
    QCOMPARE(game.BP[1], 0);
    QCOMPARE(game.BP[3], 1);
}

void DialogsFightsTest::persistenceAttacksTwice() {
    AttackScene scene;
    Give(3, "per");
    Give(1, "def");
    game.BP[1] = 1;
    scene.Roll({1, 2});
    scene.ThenYes(Offer);
    scene.ThenSquare({7, 9}, 7);
    scene.ThenPick("figure0");
    scene.ThenBox("C1 has been beaten off by A1!");
    scene.ThenPick("figure0");
    PHASE(scene, AggressionPhase());
    QCOMPARE(game.BP[3], 0);
    QCOMPARE(SquareOf(1, 1), 0);
}

void DialogsFightsTest::onlyOneAttackATurn() {
    NEEDS_A_STATE_NO_GAME_REACHES("a second copy of Aggression does not exist");
    AttackScene scene;
    Person(2);
    Give(2, "agg");
    game.BP[2] = 1;
    Put(2, 1, 7);
    scene.ThenYes("Player 2: would you like to Aggress another amoeba now?");
    scene.ThenPick("figure0");
    PHASE(scene, AggressionPhase());
    QCOMPARE(game.BP[2], 0);
    QCOMPARE(game.BP[3], 2);
}

WINDOW_TESTS(dialogs_fights_test, DialogsFightsTest)

}  // namespace plasmos::testing

#include "dialogs_fights_test.moc"
