// SPDX-License-Identifier: GPL-3.0-or-later
//
// The gene dialog while a person adapts to the UV level.

#include "model/consistency.h"
#include "rules/environment.h"
#include "tests/ui/support/adapting.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

class DialogsAdaptTest : public QObject {
    Q_OBJECT

private slots:
    void theDialogOpens();
    void genesAndBpTogether();
    void doneTwiceIsPaidOnce();
    void aLowWindowStillSaysWhatHappened();
    void typedBpAreNotCountedWhenABoxIsClicked();
    void rayProtectionCountsFour();
    void withoutBp();
    void atTheLevelNothingHappens();
    void twoPersonsOneAfterTheOther();
};

void DialogsAdaptTest::theDialogOpens() {
    AdaptScene scene(3);
    scene.ThenGenes([&] {
        QCOMPARE(scene.Text(QStringLiteral("msglab")).toStdString(), Changed);
        QCOMPARE(scene.Text(QStringLiteral("playerlab")), QStringLiteral("Player 3"));
        QCOMPARE(scene.Text(QStringLiteral("driftlab")), QStringLiteral("Right"));
        QCOMPARE(scene.Text(QStringLiteral("UVlab")), QStringLiteral("8"));
        QCOMPARE(scene.Cost(), QStringLiteral("4"));
        QCOMPARE(scene.Text(QStringLiteral("UVdiffLab")), QStringLiteral("UV cost"));
        QVERIFY(!IsBlue(scene));
        QCOMPARE(scene.Text(QStringLiteral("ofLab")), QStringLiteral("of 3"));
        QCOMPARE(scene.Text(QStringLiteral("EnvBP")), QStringLiteral("0"));
        QVERIFY(!scene.Sees(QStringLiteral("resetb")));
        QVERIFY(!scene.Sees(QStringLiteral("BPlabel")));
        for (int gene = 1; gene <= GeneCount; ++gene) {
            const QString box = QStringLiteral("gcheck%1").arg(gene);
            QCOMPARE(scene.Ticked(box), game.Genes[gene][3]);
            QCOMPARE(scene.Enabled(box), game.Genes[gene][3]);
            QCOMPARE(scene.Text(box), ToQt(GeneName(gene)));
        }
        scene.Click(Box("esc"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(HeldGenes(3), std::string("def sub"));
    QCOMPARE(scene.Text(QStringLiteral("msglab")), QString());
    QCOMPARE(std::string(game.DialogMode), std::string());
    QVERIFY(!scene.Sees(QStringLiteral("doneb")));
}

void DialogsAdaptTest::genesAndBpTogether() {
    AdaptScene scene(3);
    game.EnvDeck[1].UV = 6;
    scene.ThenGenes([&] {
        QCOMPARE(scene.Cost(), QStringLiteral("6"));
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("2"));
        QCOMPARE(scene.Cost(), QStringLiteral("4"));
        QVERIFY(scene.Sees(QStringLiteral("resetb")));
        scene.Click(Box("def"));
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("2"));
        QCOMPARE(scene.Cost(), QStringLiteral("0"));
        QVERIFY(IsBlue(scene));
        QCOMPARE(game.BP[3], 3);
        QCOMPARE(HeldGenes(3), std::string("def esc sub"));
        scene.Click(QStringLiteral("doneb"));
    });
    const int supply = game.Catalogue[GeneNumber("def")].Supply;
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(game.BP[3], 1);
    QCOMPARE(scene.Text(QStringLiteral("bplab2")), QStringLiteral("1"));
    QCOMPARE(HeldGenes(3), std::string("esc sub"));
    QCOMPARE(game.Catalogue[GeneNumber("def")].Supply, supply + 1);
    QCOMPARE(game.Players[3].MutationLevel, 8);
    QCOMPARE(CheckConsistency(), std::string());
}

// Two presses that wait in the queue together.
void DialogsAdaptTest::doneTwiceIsPaidOnce() {
    AdaptScene scene(9);
    scene.ThenGenes([&] {
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("4"));
        scene.Click(QStringLiteral("doneb"));
        scene.Click(QStringLiteral("doneb"));
        scene.Click(QStringLiteral("closeb"));
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(game.BP[3], 5);
}

void DialogsAdaptTest::aLowWindowStillSaysWhatHappened() {
    AdaptScene scene(9);
    scene.Board().resize(940, 640);
    scene.ThenGenes([&] {
        QCoreApplication::processEvents();
        const bool card = scene.Sees(QStringLiteral("msglab"));
        QVERIFY2(card != scene.Sees(QStringLiteral("messagelab")), "the message is said once");
        QCOMPARE(scene.Text(card ? QStringLiteral("msglab") : QStringLiteral("messagelab")).toStdString(), Changed);
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("4"));
        QCoreApplication::processEvents();
        for (const char* name : {"EnvBP", "UVdiff", "resetb", "doneb"}) {
            const QWidget* control = scene.Find(QString::fromLatin1(name));
            QVERIFY2(control->width() >= control->minimumSizeHint().width(), name);
            QVERIFY2(control->mapTo(&scene.Board(), control->rect().bottomRight()).x() < scene.Board().width(), name);
            QVERIFY2(control->mapTo(&scene.Board(), control->rect().bottomRight()).y() < scene.Board().height(), name);
        }
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
}

void DialogsAdaptTest::typedBpAreNotCountedWhenABoxIsClicked() {
    AdaptScene scene(3);
    scene.ThenGenes([&] {
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("3"));
        QCOMPARE(scene.Cost(), QStringLiteral("1"));
        scene.Click(Box("def"));
        QCOMPARE(scene.Cost(), QStringLiteral("0"));
        scene.Click(Box("def"));
        QCOMPARE(scene.Cost(), QStringLiteral("4"));
        QCOMPARE(scene.Text(QStringLiteral("EnvBP")), QStringLiteral("3"));
        scene.Click(Box("def"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(game.BP[3], 0);
    QCOMPARE(HeldGenes(3), std::string("esc sub"));
}

void DialogsAdaptTest::rayProtectionCountsFour() {
    AdaptScene scene(0);
    Give(3, "ray");
    scene.ThenGenes([&] {
        QCOMPARE(scene.Cost(), QStringLiteral("2"));
        scene.Click(Box("ray"));
        QCOMPARE(scene.Cost(), QStringLiteral("-2"));
        scene.Click(Box("ray"));
        QCOMPARE(scene.Cost(), QStringLiteral("2"));
        scene.Click(Box("ray"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(game.Players[3].MutationLevel, 12);
    QVERIFY(game.Players[3].MutationLevel > game.UVLevel);
}

void DialogsAdaptTest::withoutBp() {
    AdaptScene scene(0);
    scene.ThenGenes([&] {
        QVERIFY(!scene.Sees(QStringLiteral("EnvBP")));
        QVERIFY(!scene.Sees(QStringLiteral("ofLab")));
        QVERIFY(!scene.Sees(QStringLiteral("payLab")));
        scene.Click(Box("sub"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(HeldGenes(3), std::string("def esc"));
}

void DialogsAdaptTest::atTheLevelNothingHappens() {
    AdaptScene scene(3);
    game.EnvDeck[1].UV = 12;
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(scene.Asked(), 0);
    QCOMPARE(game.BP[3], 3);
    QCOMPARE(scene.Text(QStringLiteral("UVlab")), QStringLiteral("12"));
}

void DialogsAdaptTest::twoPersonsOneAfterTheOther() {
    AdaptScene scene(3);
    Person(2);
    Give(2, {"lif", "ten"});
    scene.ThenGenes([&] {
        QCOMPARE(scene.Text(QStringLiteral("playerlab")), QStringLiteral("Player 2"));
        QCOMPARE(scene.Cost(), QStringLiteral("1"));
        QVERIFY(!scene.Sees(QStringLiteral("EnvBP")));
        scene.Click(Box("ten"));
        scene.Click(QStringLiteral("doneb"));
    });
    scene.ThenGenes([&] {
        QCOMPARE(scene.Text(QStringLiteral("playerlab")), QStringLiteral("Player 3"));
        QVERIFY(scene.Sees(QStringLiteral("EnvBP")));
        scene.Click(Box("sub"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(HeldGenes(2), std::string("lif"));
    QCOMPARE(HeldGenes(3), std::string("def esc"));
}

WINDOW_TESTS(dialogs_adapt_test, DialogsAdaptTest)

}  // namespace plasmos::testing

#include "dialogs_adapt_test.moc"
