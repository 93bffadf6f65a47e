// SPDX-License-Identifier: GPL-3.0-or-later
//
// How adapting to the UV level ends: what is typed for BP, begun afresh, refused and closed.

#include "rules/environment.h"
#include "rules/new_genes.h"
#include "tests/ui/support/adapting.h"

namespace plasmos::testing {

class DialogsAdaptDoneTest : public QObject {
    Q_OBJECT

private slots:
    void doneIsRefused();
    void theTextForBp_data();
    void theTextForBp();
    void theResetButton();
    void closingIsDone_data();
    void closingIsDone();
};

void DialogsAdaptDoneTest::doneIsRefused() {
    AdaptScene scene(3);
    scene.ThenGenes([&] {
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("3"));
        scene.Click(QStringLiteral("doneb"));
        QCOMPARE(game.BP[3], 3);
    });
    scene.Then(QuestionKind::Box, [&] {
        QCOMPARE(scene.Text(QStringLiteral("boxlab")).toStdString(), Refused);
        QVERIFY(!scene.Enabled(QStringLiteral("gcheck5")));
        if (scene.Sees(Box("def"))) {
            scene.Press(scene.Find(Box("def")));
        }
        scene.Click(QStringLiteral("okb"));
    });
    scene.ThenGenes([&] {
        QCOMPARE(scene.Cost(), QStringLiteral("4"));
        QCOMPARE(scene.Text(QStringLiteral("EnvBP")), QStringLiteral("0"));
        QVERIFY(!scene.Sees(QStringLiteral("resetb")));
        QVERIFY(scene.Ticked(Box("def")) && scene.Ticked(Box("esc")) && scene.Ticked(Box("sub")));
        scene.Click(Box("def"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(game.BP[3], 3);
    QCOMPARE(HeldGenes(3), std::string("esc sub"));
}

void DialogsAdaptDoneTest::theTextForBp_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("becomes");
    QTest::addColumn<QString>("cost");
    QTest::addColumn<int>("left");
    QTest::newRow("all of them") << "3"
                                 << "3"
                                 << "-3" << 0;
    QTest::newRow("a plus") << "+2"
                            << "+2"
                            << "-2" << 1;
    QTest::newRow("a fraction is cut off") << "2.9"
                                           << "2.9"
                                           << "-2" << 1;
    QTest::newRow("blanks") << " 1 "
                            << " 1 "
                            << "-1" << 2;
    QTest::newRow("negative: neither paid nor refunded") << "-2"
                                                         << "-2"
                                                         << "2" << 3;
    QTest::newRow("letters") << "abc"
                             << "0"
                             << "0" << 3;
    QTest::newRow("too large") << "4"
                               << "0"
                               << "0" << 3;
    QTest::newRow("empty") << ""
                           << "0"
                           << "0" << 3;
    QTest::newRow("forty digits") << "1111111111111111111111111111111111111111"
                                  << "0"
                                  << "0" << 3;
    QTest::newRow("ten digits") << "0000000001"
                                << "0"
                                << "0" << 3;
    QTest::newRow("a hexadecimal") << "0x2"
                                   << "0"
                                   << "0" << 3;
    QTest::newRow("an exponent") << "1e0"
                                 << "0"
                                 << "0" << 3;
    QTest::newRow("two signs") << "+-1"
                               << "0"
                               << "0" << 3;
}

void DialogsAdaptDoneTest::theTextForBp() {
    QFETCH(QString, text);
    QFETCH(QString, becomes);
    QFETCH(QString, cost);
    QFETCH(int, left);
    AdaptScene scene(3);
    scene.ThenGenes([&] {
        scene.Click(Box("def"));
        if (text.isEmpty()) {
            scene.Type(QStringLiteral("EnvBP"), text);
        } else {
            scene.Paste(QStringLiteral("EnvBP"), text);
        }
        QCOMPARE(scene.Text(QStringLiteral("EnvBP")), becomes);
        QCOMPARE(scene.Cost(), cost);
        if (cost == QStringLiteral("2")) {
            scene.Click(Box("esc"));
            QCOMPARE(scene.Text(QStringLiteral("EnvBP")), becomes);
        }
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(game.BP[3], left);
}

void DialogsAdaptDoneTest::theResetButton() {
    AdaptScene scene(3);
    scene.ThenGenes([&] {
        scene.Click(Box("def"));
        scene.Click(Box("sub"));
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("1"));
        QCOMPARE(scene.Cost(), QStringLiteral("-5"));
        scene.Click(QStringLiteral("resetb"));
        QCOMPARE(scene.Cost(), QStringLiteral("4"));
        QCOMPARE(scene.Text(QStringLiteral("EnvBP")), QStringLiteral("0"));
        QVERIFY(scene.Ticked(Box("def")) && scene.Ticked(Box("sub")));
        QVERIFY(!scene.Sees(QStringLiteral("resetb")));
        scene.Click(Box("sub"));
        QVERIFY(scene.Sees(QStringLiteral("resetb")));
        QCOMPARE(scene.Cost(), QStringLiteral("0"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(HeldGenes(3), std::string("def esc"));
    QCOMPARE(game.BP[3], 3);
}

void DialogsAdaptDoneTest::closingIsDone_data() {
    QTest::addColumn<bool>("key");
    QTest::newRow("the cross") << false;
    QTest::newRow("Escape") << true;
}

void DialogsAdaptDoneTest::closingIsDone() {
    QFETCH(bool, key);
    const auto close = [key](Scene& scene) {
        key ? scene.Key(QStringLiteral("doneb"), Qt::Key_Escape) : scene.Click(QStringLiteral("closeb"));
    };
    AdaptScene scene(3);
    scene.ThenGenes([&] { close(scene); });
    scene.ThenBox(Refused);
    scene.ThenGenes([&] {
        scene.Click(Box("sub"));
        close(scene);
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(HeldGenes(3), std::string("def esc"));
    game.BP[3] = 9;
    scene.ThenYes(OfferWith(9));
    scene.ThenGenes([&] { close(scene); });
    PHASE(scene, NewGenesPhase());
    QCOMPARE(game.BP[3], 9);
}

WINDOW_TESTS(dialogs_adapt_done_test, DialogsAdaptDoneTest)

}  // namespace plasmos::testing

#include "dialogs_adapt_done_test.moc"
