// SPDX-License-Identifier: GPL-3.0-or-later
//
// Defence, escape and death, as a person meets them whose amoeba is attacked.

#include "rules/aggression.h"
#include "tests/ui/support/position.h"

namespace plasmos::testing {

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

class DialogsAttackedTest : public QObject {
    Q_OBJECT

private slots:
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

void DialogsAttackedTest::isTornToPieces() {
    AttackedScene scene({});
    scene.ThenWarned();
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), 0);
    QCOMPARE(game.BP[1], 0);
    QCOMPARE(FoodOn(7), (std::vector<int>{2, 2, 2, 2}));
    QVERIFY(!scene.Log().filter(QStringLiteral("C1 torn viciously to pieces!!!")).isEmpty());
}

void DialogsAttackedTest::isWarnedOfDamage() {
    AttackedScene scene({"def"}, 0);
    game.Amoeba[1][3].Damage = 1;
    scene.ThenWarnedOfDamage();
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), 0);
}

void DialogsAttackedTest::defends_data() {
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

void DialogsAttackedTest::defends() {
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

void DialogsAttackedTest::withoutBpNothingIsAsked() {
    AttackedScene scene({"def", "esc"}, 0);
    game.Amoeba[1][3].Damage = 1;
    scene.ThenWarnedOfDamage();
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), 0);
}

void DialogsAttackedTest::escapes_data() {
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

void DialogsAttackedTest::escapes() {
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

void DialogsAttackedTest::theDeadBecomeFood() {
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

void DialogsAttackedTest::lifeExpectancy() {
    PositionScene scene;
    Give(3, "lif");
    game.Amoeba[1][3].Damage = 2;
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), 7);
    game.Amoeba[1][3].Damage = 3;
    PHASE(scene, AggressionPhase());
    QCOMPARE(SquareOf(3, 1), 0);
}

WINDOW_TESTS(dialogs_attacked_test, DialogsAttackedTest)

}  // namespace plasmos::testing

#include "dialogs_attacked_test.moc"
