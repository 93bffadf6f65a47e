// SPDX-License-Identifier: GPL-3.0-or-later
//
// Attack, defence and escape as a person meets them.

#include <QLabel>

#include "model/consistency.h"
#include "rules/aggression.h"
#include "tests/ui/support/position.h"
#include "ui/board/puddle_view.h"
#include "ui/window/uboard.h"

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

/// A computer clan, number 1, attacks the person's only amoeba.
class AttackedScene : public PositionScene {
public:
    explicit AttackedScene(std::initializer_list<std::string_view> genes, int bp = 2) {
        Give(1, "agg");
        Give(3, genes);
        game.BP[1] = 1;
        game.BP[3] = bp;
        Put(1, 1, 7);
        game.CurPlayer = 1;
    }
    void ThenWarned() { ThenBox("You are being Aggressed!"); }
    void ThenWarnedOfDamage() { ThenBox("You are being attacked!"); }
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

    void isTornToPieces();
    void isWarnedOfDamage();
    void defends_data();
    void defends();
    void withoutBpNothingIsAsked();
    void escapes_data();
    void escapes();
    void theDeadBecomeFood();
    void lifeExpectancy();
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

void DialogsFightsTest::isTornToPieces() {
    AttackedScene scene({});
    scene.ThenWarned();
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), 0);
    QCOMPARE(game.BP[1], 0);
    QCOMPARE(FoodOn(7), (std::vector<int>{2, 2, 2, 2}));
    QVERIFY(!scene.Log().filter(QStringLiteral("C1 torn viciously to pieces!!!")).isEmpty());
}

void DialogsFightsTest::isWarnedOfDamage() {
    AttackedScene scene({"def"}, 0);
    game.Amoeba[1][3].Damage = 1;
    scene.ThenWarnedOfDamage();
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), 0);
}

void DialogsFightsTest::defends_data() {
    QTest::addColumn<bool>("persistent");
    QTest::addColumn<QString>("answers");
    QTest::addColumn<QList<int>>("rolls");
    QTest::addColumn<bool>("lives");
    QTest::addColumn<int>("left");
    QTest::newRow("beats it off") << false << "y" << QList<int>{2, 3} << true << 1;
    QTest::newRow("rolls again when equal") << false << "y" << QList<int>{3, 3, 6, 6, 1, 6} << true << 1;
    QTest::newRow("fails") << false << "y" << QList<int>{3, 2} << false << 1;
    QTest::newRow("does not want to") << false << "n" << QList<int>{} << false << 2;
    QTest::newRow("the second time, with Persistence") << true << "yy" << QList<int>{3, 2, 1, 2} << true << 0;
    QTest::newRow("fails twice") << true << "yy" << QList<int>{3, 2, 3, 2} << false << 0;
    QTest::newRow("no second time") << true << "yn" << QList<int>{3, 2} << false << 1;
}

void DialogsFightsTest::defends() {
    QFETCH(bool, persistent);
    QFETCH(QString, answers);
    QFETCH(QList<int>, rolls);
    QFETCH(bool, lives);
    QFETCH(int, left);
    AttackedScene scene({"def"});
    game.Amoeba[1][3].Damage = 1;
    if (persistent) {
        Give(3, "per");
    }
    std::vector<int> all{1};
    all.insert(all.end(), rolls.begin(), rolls.end());
    scene.Roll(all);
    scene.ThenWarnedOfDamage();
    const char* prices[] = {"pay 1BP", "pay another BP"};
    for (int i = 0; i < answers.size(); ++i) {
        const auto text =
            Concat("Player 3: would you like to ", prices[i], " for C1 to Defend itself against the attack?");
        answers[i] == QLatin1Char('y') ? scene.ThenYes(text) : scene.ThenNo(text);
    }
    if (lives) {
        scene.ThenBox("A1 has been beaten off by C1!");
    }
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), lives ? 7 : 0);
    QCOMPARE(game.BP[3], left);
    QCOMPARE(scene.Log().filter(QStringLiteral("Amoeba's defense failed.")).isEmpty(),
             rolls.isEmpty() || rolls[0] != 3 || rolls[1] == 3);
}

void DialogsFightsTest::withoutBpNothingIsAsked() {
    AttackedScene scene({"def", "esc"}, 0);
    game.Amoeba[1][3].Damage = 1;
    scene.ThenWarnedOfDamage();
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), 0);
}

void DialogsFightsTest::escapes_data() {
    QTest::addColumn<QString>("genes");
    QTest::addColumn<bool>("yes");
    QTest::addColumn<QList<int>>("rolls");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<int>("ends");
    QTest::addColumn<int>("left");
    QTest::newRow("by die") << "" << true << QList<int>{1, 5} << 0 << 8 << 1;
    QTest::newRow("by a chosen square") << "" << true << QList<int>{6, 5} << 12 << 12 << 1;
    QTest::newRow("stays in place") << "" << true << QList<int>{5} << 0 << 0 << 1;
    QTest::newRow("does not want to") << "" << false << QList<int>{} << 0 << 0 << 2;
    QTest::newRow("Streamlining is free") << "str" << true << QList<int>{3, 5} << 0 << 6 << 2;
    QTest::newRow("Movement 2 chooses") << "mv2" << true << QList<int>{5} << 2 << 2 << 1;
}

void DialogsFightsTest::escapes() {
    QFETCH(QString, genes);
    QFETCH(bool, yes);
    QFETCH(QList<int>, rolls);
    QFETCH(int, chosen);
    QFETCH(int, ends);
    QFETCH(int, left);
    AttackedScene scene({"esc"});
    game.Amoeba[1][3].Damage = 1;
    if (!genes.isEmpty()) {
        Give(3, genes.toStdString());
    }
    std::vector<int> all{1};
    all.insert(all.end(), rolls.begin(), rolls.end());
    scene.Roll(all);
    scene.ThenWarnedOfDamage();
    const std::string text = genes == QStringLiteral("str")
                                 ? "Player 3: Would C1 like to attempt to Escape the attack?"
                                 : "Player 3: Would you like to pay 1BP for C1 to attempt to Escape the attack?";
    yes ? scene.ThenYes(text) : scene.ThenNo(text);
    if (chosen > 0) {
        scene.ThenSquare({2, 6, 8, 12}, chosen);
    }
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), ends);
    QCOMPARE(game.BP[3], left);
    const QString told = ends > 0 ? QStringLiteral("Your amoeba C1 escapes to %1.").arg(ends)
                                  : QStringLiteral("Your amoeba C1 failed to escape.");
    QCOMPARE(scene.HasLogLine(told), yes);
}

void DialogsFightsTest::theDeadBecomeFood() {
    PositionScene scene;
    game.Amoeba[1][3].Damage = 2;
    Put(1, 1, 9);
    game.Amoeba[1][1].Damage = 1;
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), 0);
    QCOMPARE(FoodOn(7), (std::vector<int>{2, 2, 2, 2}));
    QCOMPARE(SquareOf(1, 1), 9);
    QCOMPARE(game.AmoebaCount[3], 0);
}

void DialogsFightsTest::lifeExpectancy() {
    PositionScene scene;
    Give(3, "lif");
    game.Amoeba[1][3].Damage = 2;
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), 7);
    game.Amoeba[1][3].Damage = 3;
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), 0);
}

}  // namespace plasmos::testing

int main(int argc, char** argv) {
    return plasmos::testing::RunWindowTests<plasmos::testing::DialogsFightsTest>(argc, argv);
}

#include "dialogs_fights_test.moc"
