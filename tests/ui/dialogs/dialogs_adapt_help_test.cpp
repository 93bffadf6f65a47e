// SPDX-License-Identifier: GPL-3.0-or-later
//
// What helps a person to adapt: the clan's own genes, what is given up, what is missing, a suggestion, and the
// buttons for the BP to pay.

#include <QCheckBox>
#include <QImage>
#include <QRegularExpression>

#include "rules/environment.h"
#include "tests/ui/support/adapting.h"
#include "ui/look/card.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

QString Closing(Scene& scene) {
    const QString text = scene.Text(QStringLiteral("closelab"));
    return text == scene.Find(QStringLiteral("closeb"))->toolTip() ? text : QStringLiteral("two texts");
}

}  // namespace

class DialogsAdaptHelpTest : public QObject {
    Q_OBJECT

private slots:
    void onlyTheOwnGenesAreShownToAdapt();
    void whatIsGivenUpIsStruckThrough();
    void theFigureIsQuietAsSoonAsTheClanIsSafe();
    void theSuggestionIsTaken();
    void stepsOfTheBpToPay();
    void bpThatAreNotCountedAreToldOf();
    void theRefusalStaysAsItIs();
    void allThatAnswersIsInALowWindow();
    void whatHasHappenedIsReadInFull_data();
    void whatHasHappenedIsReadInFull();
};

void DialogsAdaptHelpTest::onlyTheOwnGenesAreShownToAdapt() {
    AdaptScene scene(3);
    scene.ThenGenes([&] {
        for (int gene = 1; gene <= GeneCount; ++gene) {
            QCOMPARE(scene.Sees(QStringLiteral("gcheck%1").arg(gene)), game.Genes[gene][3]);
            QCOMPARE(scene.Sees(QStringLiteral("gcost%1").arg(gene)), game.Genes[gene][3]);
        }
        QCOMPARE(scene.Board().findChildren<QCheckBox*>(QRegularExpression(QStringLiteral("^gcheck"))).size(),
                 GeneCount);
        scene.Click(Box("def"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
}

void DialogsAdaptHelpTest::whatIsGivenUpIsStruckThrough() {
    AdaptScene scene(3);
    Give(3, "ray");
    game.EnvDeck[1].UV = 6;
    const auto struck = [&](const char* code) { return scene.Find(Box(code))->font().strikeOut(); };
    const auto gives = [&](const char* code) { return scene.Text(QStringLiteral("ggives%1").arg(GeneNumber(code))); };
    scene.ThenGenes([&] {
        QCOMPARE(scene.Text(QStringLiteral("missinglab")),
                 QStringLiteral("4 points still missing: give up genes or pay BP"));
        QCOMPARE(Closing(scene), QStringLiteral("Esc: like Done, which is refused until the UV cost is 0"));
        scene.Click(Box("ray"));
        QVERIFY(struck("ray") && !struck("def"));
        QCOMPARE(gives("ray"), QStringLiteral("gives 4 points"));
        QCOMPARE(gives("def"), QString());
        scene.Click(Box("ray"));
        QVERIFY(!struck("ray"));
        QCOMPARE(gives("ray"), QString());
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("3"));
        QCOMPARE(scene.Text(QStringLiteral("missinglab")),
                 QStringLiteral("1 point still missing: give up genes or pay BP"));
        scene.Click(Box("esc"));
        QCOMPARE(scene.Text(QStringLiteral("missinglab")), QStringLiteral("Nothing is missing."));
        QCOMPARE(Closing(scene), QStringLiteral("Esc: like Done; gives up and pays what is shown"));
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("0"));
        scene.Click(QStringLiteral("closeb"));
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(HeldGenes(3), std::string("def sub ray"));
    QCOMPARE(game.BP[3], 3);
}

// The mutation level on the clan's card: in the colour of alarm only while something is missing.
void DialogsAdaptHelpTest::theFigureIsQuietAsSoonAsTheClanIsSafe() {
    AdaptScene scene(5);
    const auto alarmed = [&scene] {
        auto* clans = scene.Board().findChild<QWidget*>(QStringLiteral("genelist2"))->parentWidget();
        const QRect card = QRect(0, 0, clans->width(), clans->height());
        const QImage picture = clans->grab(card).toImage();
        const QRgb alarm = Shade(Tone::Alarm).rgb();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = picture.width() * 2 / 3; x < picture.width(); ++x) {
                if (picture.pixel(x, y) == alarm) {
                    return true;
                }
            }
        }
        return false;
    };
    scene.ThenGenes([&] {
        QVERIFY(alarmed());
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("3"));
        QVERIFY2(alarmed(), "1 point is missing");
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("4"));
        QVERIFY(!alarmed());
        scene.Click(QStringLiteral("resetb"));
        QVERIFY(alarmed());
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("4"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
    QVERIFY2(game.Players[3].MutationLevel > game.UVLevel && !alarmed(), "it has paid for this turn");
}

void DialogsAdaptHelpTest::theSuggestionIsTaken() {
    AdaptScene scene(2);
    game.EnvDeck[1].UV = 6;
    scene.ThenGenes([&] {
        scene.Click(Box("sub"));
        scene.Click(QStringLiteral("adaptb"));
        QVERIFY(!scene.Ticked(Box("def")) && scene.Ticked(Box("esc")) && scene.Ticked(Box("sub")));
        QCOMPARE(scene.Text(QStringLiteral("EnvBP")), QStringLiteral("2"));
        QCOMPARE(scene.Cost(), QStringLiteral("0"));
        QVERIFY2(!scene.Enabled(QStringLiteral("adaptb")), "it is there already");
        QCOMPARE(game.BP[3], 2);
        scene.Click(QStringLiteral("resetb"));
        QCOMPARE(scene.Cost(), QStringLiteral("6"));
        scene.Key(QStringLiteral("adaptb"), Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("doneb"));
        scene.Key(QStringLiteral("doneb"), Qt::Key_Return);
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(HeldGenes(3), std::string("esc sub"));
    QCOMPARE(game.BP[3], 0);
}

void DialogsAdaptHelpTest::stepsOfTheBpToPay() {
    AdaptScene scene(5);
    scene.ThenGenes([&] {
        QVERIFY(!scene.Enabled(QStringLiteral("lessbp")));
        for (int bp = 1; bp <= 5; ++bp) {
            scene.Click(QStringLiteral("morebp"));
            QCOMPARE(scene.Text(QStringLiteral("EnvBP")), QString::number(bp));
            QCOMPARE(scene.Cost(), QString::number(4 - bp));
        }
        QVERIFY2(!scene.Enabled(QStringLiteral("morebp")), "there are 5 BP only");
        scene.Click(QStringLiteral("lessbp"));
        QCOMPARE(scene.Cost(), QStringLiteral("0"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(game.BP[3], 1);
}

void DialogsAdaptHelpTest::bpThatAreNotCountedAreToldOf() {
    AdaptScene scene(2);
    game.EnvDeck[1].UV = 6;
    scene.ThenGenes([&] {
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("2"));
        scene.Click(Box("def"));
        QCOMPARE(scene.Cost(), QStringLiteral("2"));
        QCOMPARE(scene.Text(QStringLiteral("missinglab")),
                 QStringLiteral("The UV cost leaves out 2 BP typed before the last gene: type them again."));
        scene.Type(QStringLiteral("EnvBP"), QStringLiteral("2"));
        QCOMPARE(scene.Text(QStringLiteral("missinglab")), QStringLiteral("Nothing is missing."));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
}

void DialogsAdaptHelpTest::theRefusalStaysAsItIs() {
    AdaptScene scene(0);
    scene.ThenGenes([&] {
        QCOMPARE(scene.Text(QStringLiteral("missinglab")), QStringLiteral("4 points still missing: give up genes"));
        QVERIFY(!scene.Sees(QStringLiteral("morebp")) && !scene.Sees(QStringLiteral("lessbp")));
        scene.Click(QStringLiteral("doneb"));
    });
    scene.ThenBox(Refused);
    scene.ThenGenes([&] {
        scene.Click(QStringLiteral("adaptb"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
    QCOMPARE(HeldGenes(3), std::string("esc sub"));
}

void DialogsAdaptHelpTest::allThatAnswersIsInALowWindow() {
    AdaptScene scene(9, 6);
    scene.Board().resize(940, 640);
    scene.ThenGenes([&] {
        QCoreApplication::processEvents();
        scene.Click(QStringLiteral("morebp"));
        for (const char* name : {"lessbp", "morebp", "EnvBP", "adaptb", "resetb", "doneb", "closeb"}) {
            const QWidget* control = scene.Find(QString::fromLatin1(name));
            QVERIFY2(control->visibleRegion().boundingRect() == control->rect(), name);
        }
        scene.Click(QStringLiteral("adaptb"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
}

void DialogsAdaptHelpTest::whatHasHappenedIsReadInFull_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("a usual window") << QSize(1320, 860);
    QTest::newRow("a low window") << QSize(940, 640);
}

void DialogsAdaptHelpTest::whatHasHappenedIsReadInFull() {
    QFETCH(QSize, size);
    AdaptScene scene(9, 6);
    scene.Board().resize(size);
    scene.ThenGenes([&] {
        QCoreApplication::processEvents();
        const auto* line = dynamic_cast<FitLabel*>(scene.Find(QStringLiteral("msglab")));
        QVERIFY(!scene.Sees(QStringLiteral("msglab")) || line->LeastHeightAt(line->width()) <= line->height() + 2);
        scene.Click(QStringLiteral("adaptb"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, EnvironmentPhase());
}

WINDOW_TESTS(dialogs_adapt_help_test, DialogsAdaptHelpTest)

}  // namespace plasmos::testing

#include "dialogs_adapt_help_test.moc"
