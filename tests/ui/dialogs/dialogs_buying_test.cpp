// SPDX-License-Identifier: GPL-3.0-or-later
//
// The gene dialog while a person buys genes.

#include "model/consistency.h"
#include "rules/new_genes.h"
#include "tests/ui/support/position.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

QString Box(const char* code) {
    return QStringLiteral("gcheck%1").arg(GeneNumber(code));
}

std::string OfferWith(int bp) {
    return Concat("Clan Player 3, you have ", bp, " BP.\nWould you like to buy new Genes?");
}

}  // namespace

class DialogsBuyingTest : public QObject {
    Q_OBJECT

private slots:
    void buysAndGivesBack();
    void whatIsHeldStays();
    void anUpgradeTakesTheLowerGene();
    void isAsked_data();
    void isAsked();
    void toolTips_data();
    void toolTips();
    void armourTakesDefence();
    void doubleClicksBuyOnce();
};

void DialogsBuyingTest::buysAndGivesBack() {
    PositionScene scene;
    game.BP[3] = 8;
    const int supply = game.Catalogue[GeneNumber("spo")].Supply;
    scene.ThenYes(OfferWith(8));
    scene.Then(QuestionKind::Genes, [&] {
        QCOMPARE(scene.Text(QStringLiteral("BPlabel")), QStringLiteral("8"));
        QVERIFY(!scene.Sees(QStringLiteral("UVdiff")) && !scene.Sees(QStringLiteral("EnvBP")));
        QVERIFY(!scene.Sees(QStringLiteral("resetb")));
        scene.Click(Box("spo"));
        QCOMPARE(game.BP[3], 8);
    });
    scene.Then(QuestionKind::Genes, [&] {
        QCOMPARE(scene.Text(QStringLiteral("BPlabel")), QStringLiteral("5"));
        QCOMPARE(scene.Text(QStringLiteral("bplab2")), QStringLiteral("5"));
        QCOMPARE(game.Catalogue[GeneNumber("spo")].Supply, supply - 1);
        QCOMPARE(game.Players[3].MutationLevel, 3);
        QVERIFY(scene.Ticked(Box("spo")) && scene.Enabled(Box("spo")));
        QVERIFY2(!scene.Enabled(Box("fru")), "6 BP are not there any more");
        scene.Click(Box("spo"));
    });
    scene.Then(QuestionKind::Genes, [&] {
        QCOMPARE(scene.Text(QStringLiteral("BPlabel")), QStringLiteral("8"));
        QCOMPARE(game.Catalogue[GeneNumber("spo")].Supply, supply);
        QCOMPARE(game.Players[3].MutationLevel, 0);
        QVERIFY(scene.Enabled(Box("fru")));
        scene.Click(Box("int"));
    });
    scene.Then(QuestionKind::Genes, [&] { scene.Click(Box("sub")); });
    scene.Then(QuestionKind::Genes, [&] {
        QCOMPARE(scene.Text(QStringLiteral("BPlabel")), QStringLiteral("2"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, NewGenesPhase());
    QCOMPARE(HeldGenes(3), std::string("int sub"));
    QCOMPARE(game.BP[3], 2);
    QCOMPARE(std::string(game.DialogMode), std::string("NEWGENES"));
    QCOMPARE(CheckConsistency(), std::string());
}

void DialogsBuyingTest::whatIsHeldStays() {
    PositionScene scene;
    Give(3, {"int", "lif"});
    game.BP[3] = 7;
    scene.ThenYes(OfferWith(7));
    scene.Then(QuestionKind::Genes, [&] {
        for (const char* code : {"int", "lif"}) {
            QVERIFY(scene.Ticked(Box(code)) && !scene.Enabled(Box(code)));
            scene.Press(scene.Find(Box(code)));
        }
        scene.Click(Box("mv1"));
    });
    scene.Then(QuestionKind::Genes, [&] {
        QVERIFY(!scene.Enabled(Box("int")) && !scene.Enabled(Box("lif")));
        QVERIFY2(!scene.Enabled(Box("agg")), "it needs another gene");
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, NewGenesPhase());
    QCOMPARE(HeldGenes(3), std::string("int mv1 lif"));
    QCOMPARE(game.BP[3], 4);
}

void DialogsBuyingTest::anUpgradeTakesTheLowerGene() {
    PositionScene scene;
    game.BP[3] = 11;
    scene.ThenYes(OfferWith(11));
    scene.Then(QuestionKind::Genes, [&] {
        QVERIFY(!scene.Enabled(Box("mv2")));
        scene.Click(Box("mv1"));
    });
    scene.Then(QuestionKind::Genes, [&] {
        QVERIFY(scene.Enabled(Box("mv2")));
        scene.Click(Box("mv2"));
    });
    scene.Then(QuestionKind::Genes, [&] {
        QVERIFY(scene.Ticked(Box("mv2")) && !scene.Ticked(Box("mv1")) && !scene.Enabled(Box("mv1")));
        QCOMPARE(game.BP[3], 3);
        scene.Click(Box("mv2"));
    });
    scene.Then(QuestionKind::Genes, [&] {
        QVERIFY(!scene.Ticked(Box("mv2")) && !scene.Ticked(Box("mv1")) && scene.Enabled(Box("mv1")));
        QCOMPARE(scene.Text(QStringLiteral("BPlabel")), QStringLiteral("8"));
        scene.Click(Box("mv1"));
    });
    scene.Then(QuestionKind::Genes, [&] { scene.Click(QStringLiteral("doneb")); });
    PHASE(scene, NewGenesPhase());
    QCOMPARE(HeldGenes(3), std::string("mv1"));
    QCOMPARE(game.BP[3], 5);
}

void DialogsBuyingTest::isAsked_data() {
    QTest::addColumn<int>("bp");
    QTest::addColumn<QString>("held");
    QTest::addColumn<bool>("asked");
    QTest::newRow("1 BP buys nothing") << 1 << "" << false;
    QTest::newRow("2 BP buy Intelligence") << 2 << "" << true;
    QTest::newRow("2 BP beside Intelligence") << 2 << "int" << false;
    QTest::newRow("3 BP beside Intelligence") << 3 << "int" << true;
    QTest::newRow("4 BP, the first seven held") << 4 << "int mv1 spo spe def esc sub" << false;
    QTest::newRow("5 BP, all of the first ten held") << 5 << "int mv1 spo spe def esc sub ray str ten" << true;
    QTest::newRow("4 BP, all of the first ten held") << 4 << "int mv1 spo spe def esc sub ray str ten" << false;
}

void DialogsBuyingTest::isAsked() {
    QFETCH(int, bp);
    QFETCH(QString, held);
    QFETCH(bool, asked);
    PositionScene scene;
    for (const QString& code : held.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        Give(3, code.toStdString());
    }
    game.BP[3] = bp;
    if (asked) {
        scene.ThenNo(OfferWith(bp));
    }
    PHASE(scene, NewGenesPhase());
    QCOMPARE(scene.Asked(), asked ? 1 : 0);
    QCOMPARE(game.BP[3], bp);
    QCOMPARE(scene.Text(QStringLiteral("msglab")), QString());
}

void DialogsBuyingTest::toolTips_data() {
    QTest::addColumn<int>("clans");
    QTest::addColumn<QString>("fourteen");
    QTest::newRow("three clans") << 3 << "6 BP; UV 4";
    QTest::newRow("four clans") << 4 << "6 BP; UV 4";
    QTest::newRow("five clans") << 5 << "6 BP; UV 5";
    QTest::newRow("six clans") << 6 << "6 BP; UV 5";
}

void DialogsBuyingTest::toolTips() {
    QFETCH(int, clans);
    QFETCH(QString, fourteen);
    PositionScene scene(clans);
    game.BP[3] = 2;
    scene.ThenYes(OfferWith(2));
    scene.Then(QuestionKind::Genes, [&] {
        QCOMPARE(scene.Find(QStringLiteral("gcheck14"))->toolTip(), fourteen);
        QCOMPARE(scene.Find(QStringLiteral("gcheck1"))->toolTip(), QStringLiteral("2 BP; UV 3"));
        QCOMPARE(scene.Find(QStringLiteral("gcheck8"))->toolTip(), QStringLiteral("5 BP; UV -2"));
        QCOMPARE(scene.Find(QStringLiteral("gcheck9"))->toolTip(), QStringLiteral("5 BP; UV 5"));
        QCOMPARE(scene.Find(QStringLiteral("gcheck20"))->toolTip(), QStringLiteral("6 BP; UV 6"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, NewGenesPhase());
}

void DialogsBuyingTest::armourTakesDefence() {
    PositionScene scene;
    game.BP[3] = 20;
    Give(3, {"esc", "def"});
    scene.ThenYes(OfferWith(20));
    scene.Then(QuestionKind::Genes, [&] {
        QVERIFY(scene.Enabled(Box("arm")));
        scene.Click(Box("arm"));
    });
    scene.Then(QuestionKind::Genes, [&] {
        QVERIFY(!scene.Ticked(Box("def")) && scene.Ticked(Box("esc")));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, NewGenesPhase());
    QCOMPARE(HeldGenes(3), std::string("esc arm"));
}

void DialogsBuyingTest::doubleClicksBuyOnce() {
    PositionScene scene;
    game.BP[3] = 20;
    scene.ThenYes(OfferWith(20));
    scene.Then(QuestionKind::Genes, [&] {
        scene.DoubleClick(scene.Find(Box("int")));
        scene.Press(scene.Find(Box("ray")), Qt::RightButton);
    });
    scene.Then(QuestionKind::Genes, [&] {
        QCOMPARE(game.BP[3], 18);
        scene.Key(Box("sub"), Qt::Key_Space);
    });
    scene.Then(QuestionKind::Genes, [&] {
        QCOMPARE(game.BP[3], 14);
        scene.Key(QStringLiteral("doneb"), Qt::Key_Return);
    });
    PHASE(scene, NewGenesPhase());
    QCOMPARE(HeldGenes(3), std::string("int sub"));
}

WINDOW_TESTS(dialogs_buying_test, DialogsBuyingTest)

}  // namespace plasmos::testing

#include "dialogs_buying_test.moc"
