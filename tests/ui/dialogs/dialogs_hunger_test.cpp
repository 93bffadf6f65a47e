// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the food dialog offers besides food: parasitism, the struggle for survival, starving.

#include "model/consistency.h"
#include "rules/feeding.h"
#include "tests/ui/support/meal.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

/// Nothing to eat, but a victim of clan 1, and a clan that fights.
class FightScene : public MealScene {
public:
    explicit FightScene(const char* gene = "sfs") {
        Give(3, gene);
        Feed(7, {0, 0, 0, 0});
        Put(1, 2, 7);
        game.BP[3] = 2;
    }
    void ThenStruggle() {
        ThenFood([this] {
            QVERIFY(Sees(QStringLiteral("sfsopt")) && Enabled(QStringLiteral("sfsopt")));
            Click(QStringLiteral("sfsopt"));
            QVERIFY(!Enabled(QStringLiteral("eatb")) && Enabled(QStringLiteral("victimb")));
            Click(QStringLiteral("victimb"));
        });
    }
    void ThenVictim(const char* figure) {
        Then(QuestionKind::Victim, [this, figure] {
            QCOMPARE(Text(QStringLiteral("vfamlab")), QStringLiteral("Choose your Attack-victim:"));
            Click(QString::fromLatin1(figure));
            Click(QStringLiteral("doneb"));
        });
    }
};

class DialogsHungerTest : public QObject {
    Q_OBJECT

private slots:
    void aParasiteEats();
    void aParasiteWithTwoHosts();
    void aHostWithoutBpLendsNothing();
    void theParasitesPickIsWithdrawn();

    void theStruggleIsWon();
    void theStruggleFails();
    void theStruggleIsCancelled();
    void starvesByTheButton_data();
    void starvesByTheButton();
    void theAttackedPersonDefends();
};

void DialogsHungerTest::aParasiteEats() {
    MealScene scene;
    Give(3, "par");
    Feed(7, {1, 1, 0, 0});
    Put(4, 2, 7);
    game.BP[4] = 2;
    scene.ThenFood([&] {
        QCOMPARE(scene.Text(QStringLiteral("hostlab")), QStringLiteral("hosts: 1"));
        QCOMPARE(scene.Text(QStringLiteral("eatb")), QStringLiteral("Starve"));
        QVERIFY(!scene.Sees(QStringLiteral("suggestb")));
        QVERIFY(scene.Enabled(QStringLiteral("paropt")) && !scene.Enabled(QStringLiteral("victimb")));
        scene.Click(QStringLiteral("paropt"));
        QVERIFY(scene.Enabled(QStringLiteral("victimb")));
        scene.Click(QStringLiteral("paropt"));
        QVERIFY(!scene.Ticked(QStringLiteral("paropt")) && !scene.Enabled(QStringLiteral("victimb")));
        scene.Click(QStringLiteral("paropt"));
        scene.Click(QStringLiteral("victimb"));
    });
    scene.Then(QuestionKind::Victim, [&] {
        QCOMPARE(scene.Text(QStringLiteral("vfamlab")), QStringLiteral("Choose your Parasite-victim:"));
        QVERIFY(!scene.Enabled(QStringLiteral("figure0")) && scene.Enabled(QStringLiteral("figure1")));
        QVERIFY(!scene.Enabled(QStringLiteral("doneb")));
        scene.Press(scene.Find(QStringLiteral("figure0")));
        QVERIFY(!scene.Enabled(QStringLiteral("doneb")));
        scene.Click(QStringLiteral("figure1"));
        QCOMPARE(scene.Text(QStringLiteral("vfamlab")),
                 QStringLiteral("Choose your Parasite-victim:\n2- D2 (0) of Player 4"));
        scene.Click(QStringLiteral("doneb"));
    });
    scene.ThenFood([&] {
        QVERIFY(scene.Sees(Field(0)) && !scene.Sees(Field(7)));
        QCOMPARE(scene.Text(QStringLiteral("fdname0")), QStringLiteral("lent by Player 4"));
        QCOMPARE(scene.Text(Field(0)), QStringLiteral("1"));
        scene.Enter({1, 1, 0, 0});
        QCOMPARE(scene.Text(QStringLiteral("eatb")), QStringLiteral("Eat"));
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(FoodOn(7), (std::vector<int>{0, 0, 2, 0}));
    QCOMPARE(game.BP[4], 1);
    QCOMPARE(scene.Text(QStringLiteral("bplab3")), QStringLiteral("1"));
    QCOMPARE(DamageOf(4, 2), 0);
    QVERIFY2(scene.HasLogLine(QStringLiteral("C1 parasitizing off of clan Player 4")),
             qPrintable(scene.Log().join(QLatin1Char('|'))));
}

void DialogsHungerTest::aParasiteWithTwoHosts() {
    MealScene scene;
    Give(3, "par");
    Feed(7, {1, 0, 0, 0});
    Put(2, 1, 7);
    Put(4, 2, 7);
    game.BP[2] = game.BP[4] = 1;
    scene.ThenFood([&] {
        QCOMPARE(scene.Text(QStringLiteral("hostlab")), QStringLiteral("hosts: 2"));
        scene.Click(QStringLiteral("paropt"));
        scene.Click(QStringLiteral("victimb"));
    });
    scene.Then(QuestionKind::Victim, [&] {
        scene.Click(QStringLiteral("figure2"));
        scene.Click(QStringLiteral("doneb"));
    });
    scene.ThenFood([&] {
        QVERIFY(scene.Sees(Field(0)) && !scene.Sees(Field(7)));
        scene.Click(QStringLiteral("victimb"));
    });
    scene.Then(QuestionKind::Victim, [&] {
        QVERIFY2(!scene.Enabled(QStringLiteral("figure2")), "nobody lends twice");
        scene.Click(QStringLiteral("figure0"));
        scene.Click(QStringLiteral("doneb"));
    });
    scene.ThenFood([&] {
        QVERIFY(scene.Sees(Field(0)) && scene.Sees(Field(7)));
        scene.Enter({1, 0, 0, 0});
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(FoodOn(7), (std::vector<int>{0, 0, 2, 0}));
    QCOMPARE(game.BP[2] + game.BP[4], 0);
    QVERIFY2(scene.HasLogLine(QStringLiteral("C1 parasitizing off of clan Player 4 and clan Player 2")),
             qPrintable(scene.Log().join(QLatin1Char('|'))));
}

void DialogsHungerTest::aHostWithoutBpLendsNothing() {
    MealScene scene;
    Give(3, "par");
    Feed(7, {1, 1, 0, 0});
    Put(4, 2, 7);
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(scene.Asked(), 0);
    QCOMPARE(DamageOf(3, 1), 1);
}

void DialogsHungerTest::theParasitesPickIsWithdrawn() {
    MealScene scene;
    Give(3, "par");
    Feed(7, {1, 1, 0, 0});
    Put(4, 2, 7);
    game.BP[4] = 2;
    scene.ThenFood([&] {
        scene.Click(QStringLiteral("paropt"));
        scene.Click(QStringLiteral("victimb"));
    });
    scene.Then(QuestionKind::Victim, [&] {
        scene.Click(QStringLiteral("figure1"));
        scene.Click(QStringLiteral("closeb"));
    });
    scene.ThenFood([&] {
        QVERIFY(!scene.Sees(Field(0)));
        scene.Click(QStringLiteral("victimb"));
    });
    scene.Then(QuestionKind::Victim, [&] {
        scene.Click(QStringLiteral("figure1"));
        scene.Click(QStringLiteral("doneb"));
    });
    scene.ThenFood([&] {
        scene.Click(QStringLiteral("paropt"));
        QVERIFY2(!scene.Sees(Field(0)), "the option is off, and the lent piece gone");
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(game.BP[4], 2);
    QCOMPARE(DamageOf(3, 1), 1);
}

void DialogsHungerTest::theStruggleIsWon() {
    FightScene scene;
    scene.ThenStruggle();
    scene.ThenVictim("figure0");
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(SquareOf(1, 2), 0);
    QCOMPARE(game.BP[3], 1);
    QCOMPARE(DamageOf(3, 1), 0);
    QCOMPARE(FoodOn(7), (std::vector<int>{1, 1, 1, 1}));
    QVERIFY(scene.HasLogLine(QStringLiteral("A2 Eaten!")));
}

void DialogsHungerTest::theStruggleFails() {
    FightScene scene("agg");
    Give(1, "def");
    game.BP[1] = 1;
    scene.Roll({2, 5});
    scene.ThenStruggle();
    scene.ThenVictim("figure0");
    scene.ThenBox("C1 has been beaten off by A2!");
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(SquareOf(1, 2), 7);
    QCOMPARE(game.BP[3], 1);
    QCOMPARE(game.BP[1], 0);
    QCOMPARE(DamageOf(3, 1), 1);
    QVERIFY(scene.HasLogLine(QStringLiteral("C1 starves in 7")));
}

void DialogsHungerTest::theStruggleIsCancelled() {
    FightScene scene;
    scene.ThenStruggle();
    scene.Then(QuestionKind::Victim, [&] {
        scene.Click(QStringLiteral("figure0"));
        scene.Key(QStringLiteral("figure0"), Qt::Key_Escape);
    });
    scene.ThenFood([&] {
        QCOMPARE(game.BP[3], 2);
        QVERIFY(scene.Ticked(QStringLiteral("sfsopt")));
        scene.Click(QStringLiteral("sfsopt"));
        QVERIFY(scene.Enabled(QStringLiteral("eatb")) && !scene.Enabled(QStringLiteral("victimb")));
        QCOMPARE(scene.Text(QStringLiteral("eatb")), QStringLiteral("Starve"));
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(game.BP[3], 2);
    QCOMPARE(SquareOf(1, 2), 7);
    QCOMPARE(DamageOf(3, 1), 1);
}

void DialogsHungerTest::starvesByTheButton_data() {
    QTest::addColumn<bool>("close");
    QTest::newRow("Starve") << false;
    QTest::newRow("the cross") << true;
}

void DialogsHungerTest::starvesByTheButton() {
    QFETCH(bool, close);
    FightScene scene;
    scene.ThenFood([&] {
        QCOMPARE(scene.Text(QStringLiteral("eatb")), QStringLiteral("Starve"));
        scene.Click(close ? QStringLiteral("closeb") : QStringLiteral("eatb"));
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(DamageOf(3, 1), 1);
    QCOMPARE(game.BP[3], 2);
    QVERIFY(scene.HasLogLine(QStringLiteral("C1 starves in 7")));
}

// Two persons: the one who is attacked is told, and answers.
void DialogsHungerTest::theAttackedPersonDefends() {
    FightScene scene;
    Person(2);
    LiftPiece(1, 2);
    --game.AmoebaCount[1];
    Put(2, 4, 7);
    Give(2, "def");
    game.BP[2] = 1;
    scene.Roll({6, 1});
    scene.ThenStruggle();
    scene.ThenVictim("figure0");
    scene.ThenBox("Player 2: You are being attacked!");
    scene.Then(QuestionKind::YesNo, [&] {
        QCOMPARE(scene.Text(QStringLiteral("msglab")),
                 QStringLiteral("C1 (1) of Player 3 attacks B4 (4) in 7 to eat it.\n"
                                "Player 2: would you like to pay 1BP for B4 to Defend itself against the attack?"));
        scene.Click(QStringLiteral("yesb"));
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(SquareOf(2, 4), 0);
    QCOMPARE(game.BP[2], 0);
    QCOMPARE(DamageOf(3, 1), 0);
    QCOMPARE(CheckConsistency(), std::string());
}

WINDOW_TESTS(dialogs_hunger_test, DialogsHungerTest)

}  // namespace plasmos::testing

#include "dialogs_hunger_test.moc"
