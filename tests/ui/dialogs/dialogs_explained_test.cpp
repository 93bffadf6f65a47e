// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the gene dialog says of itself: the gene under the pointer or the keyboard, what is missing while a clan
// adapts, what closing does, and what a listener is told.

#include <QAccessible>
#include <QCheckBox>
#include <QWindow>

#include "model/gene_texts.h"
#include "rules/environment.h"
#include "rules/new_genes.h"
#include "tests/ui/support/adapting.h"
#include "ui/look/card.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

/// Moves the pointer onto a control.
void PointAt(Scene& scene, const QString& name) {
    QWidget* control = scene.Find(name);
    WindowHand().Reveal(*control, control->rect().center());
    QWindow* window = scene.Board().windowHandle();
    QTest::mouseMove(window, QPoint(2, 2));
    QTest::mouseMove(window, control->mapTo(&scene.Board(), control->rect().center()));
    QCoreApplication::processEvents();
}

QString Explained(Scene& scene) {
    return scene.Text(QStringLiteral("geneName")) + QLatin1Char('|') + scene.Text(QStringLiteral("geneText")) +
           QLatin1Char('|') + scene.Text(QStringLiteral("geneState"));
}

/// What is told of a gene that is not held.
QString Told(const char* code, const char* price, const char* state) {
    return QStringLiteral("%1: %2|%3|%4")
        .arg(ToQt(GeneName(GeneNumber(code))), QString::fromLatin1(price), ToQt(GeneText(GeneNumber(code))),
             QString::fromLatin1(state));
}

QWidget* Panel(Scene& scene) {
    return scene.Find(QStringLiteral("doneb"))->parentWidget();
}

QString Closing(Scene& scene) {
    const QString text = scene.Text(QStringLiteral("closelab"));
    return text == scene.Find(QStringLiteral("closeb"))->toolTip() ? text : QStringLiteral("two texts");
}

}  // namespace

class DialogsExplainedTest : public QObject {
    Q_OBJECT

private slots:
    void aGeneUnderThePointerIsExplained();
    void theKeyboardExplainsToo();
    void theDialogKeepsItsHeight();
    void everyGeneIsExplainedInFull();
    void listenersAreToldWhatTheBoxesAre();
    void onlyTheOwnGenesAreShownToAdapt();
    void whatIsGivenUpIsStruckThrough();
    void theSuggestionIsTaken();
    void stepsOfTheBpToPay();
    void bpThatAreNotCountedAreToldOf();
    void theRefusalStaysAsItIs();
    void allThatAnswersIsInALowWindow();
};

void DialogsExplainedTest::aGeneUnderThePointerIsExplained() {
    PositionScene scene;
    game.BP[3] = 4;
    Give(3, "mv1");
    scene.ThenYes(OfferWith(4));
    scene.Then(QuestionKind::Genes, [&] {
        PointAt(scene, Box("spe"));
        QCOMPARE(Explained(scene), Told("spe", "4 BP, 3 points; copies left: 2",
                                        "Mutation level 2, with it 5; UV level 10.\nCan be bought."));
        PointAt(scene, Box("mv2"));
        QCOMPARE(Explained(scene), Told("mv2", "5 BP, 5 points; copies left: 2",
                                        "Mutation level 2, with it 5; UV level 10.\nCosts 5 BP, you have 4."));
        PointAt(scene, Box("per"));
        QCOMPARE(Explained(scene), Told("per", "4 BP, 4 points; copies left: 1",
                                        "Mutation level 2, with it 6; UV level 10.\nNeeds Speed."));
        PointAt(scene, Box("mv1"));
        QCOMPARE(Explained(scene),
                 Told("mv1", "3 BP, 2 points; copies left: 1", "Mutation level 2, UV level 10.\nYou hold it."));
        QCOMPARE(Closing(scene), QStringLiteral("Esc: like Done; what is ticked is bought"));
        scene.Click(Box("spe"));
    });
    scene.Then(QuestionKind::Genes, [&] {
        QCOMPARE(Explained(scene), Told("spe", "4 BP, 3 points; copies left: 1",
                                        "Mutation level 5, UV level 10.\nBought just now, goes back for 4 BP."));
        scene.Key(QStringLiteral("doneb"), Qt::Key_Escape);
    });
    PHASE(scene, NewGenesPhase());
    QCOMPARE(HeldGenes(3), std::string("mv1 spe"));
}

void DialogsExplainedTest::theKeyboardExplainsToo() {
    PositionScene scene;
    game.BP[3] = 9;
    scene.ThenYes(OfferWith(9));
    scene.Then(QuestionKind::Genes, [&] {
        QVERIFY(Explained(scene).startsWith(QStringLiteral("Intelligence: ")));
        QTest::keyClick(scene.Board().windowHandle(), Qt::Key_Tab);
        QVERIFY(Explained(scene).startsWith(QStringLiteral("Movement 1: ")));
        QTest::keyClick(scene.Board().windowHandle(), Qt::Key_Tab, Qt::ShiftModifier);
        QVERIFY(Explained(scene).startsWith(QStringLiteral("Intelligence: ")));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, NewGenesPhase());
}

void DialogsExplainedTest::theDialogKeepsItsHeight() {
    PositionScene scene(6);
    game.BP[3] = 30;
    scene.ThenYes(OfferWith(30));
    scene.Then(QuestionKind::Genes, [&] {
        QCoreApplication::processEvents();
        const QRect panel = Panel(scene)->geometry();
        const int done = scene.Find(QStringLiteral("doneb"))->y();
        for (int gene = 1; gene <= GeneCount; ++gene) {
            PointAt(scene, QStringLiteral("gcheck%1").arg(gene));
            QCoreApplication::processEvents();
            QCOMPARE(scene.Text(QStringLiteral("geneText")), ToQt(GeneText(gene)));
            QCOMPARE(Panel(scene)->geometry(), panel);
            QCOMPARE(scene.Find(QStringLiteral("doneb"))->y(), done);
        }
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, NewGenesPhase());
}

// Nothing of a text is cut off in the smallest window.
void DialogsExplainedTest::everyGeneIsExplainedInFull() {
    PositionScene scene(6);
    scene.Board().resize(940, 640);
    game.BP[3] = 30;
    scene.ThenYes(OfferWith(30));
    scene.Then(QuestionKind::Genes, [&] {
        for (int gene = 1; gene <= GeneCount; ++gene) {
            PointAt(scene, QStringLiteral("gcheck%1").arg(gene));
            for (const char* name : {"geneText", "geneState"}) {
                const QWidget* label = scene.Find(QString::fromLatin1(name));
                QVERIFY2(label->visibleRegion().boundingRect() == label->rect(), name);
                WrapLabel alone(nullptr);
                alone.setFont(label->font());
                alone.setText(scene.Text(QString::fromLatin1(name)));
                QVERIFY2(alone.heightForWidth(label->width()) <= label->height(), GeneCodes[gene].data());
            }
        }
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, NewGenesPhase());
}

void DialogsExplainedTest::listenersAreToldWhatTheBoxesAre() {
    PositionScene scene;
    Give(3, "spe");
    game.BP[3] = 3;
    scene.ThenYes(OfferWith(3));
    scene.Then(QuestionKind::Genes, [&] {
        const auto heard = [&](const char* code) {
            return QAccessible::queryAccessibleInterface(scene.Find(Box(code)))->text(QAccessible::Name);
        };
        QCOMPARE(heard("mv1"), QStringLiteral("Movement 1, 3 BP, 2 mutation points, not held, can be bought"));
        QCOMPARE(heard("spe"), QStringLiteral("Speed, 4 BP, 3 mutation points, held, you hold it"));
        QCOMPARE(heard("mv2"), QStringLiteral("Movement 2, 5 BP, 5 mutation points, not held, costs 5 BP, you have 3"));
        QCOMPARE(Panel(scene)->accessibleName(), QStringLiteral("Buy new genes"));
        QVERIFY(Panel(scene)->accessibleDescription().startsWith(ToQt(OfferWith(3))));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, NewGenesPhase());
}

void DialogsExplainedTest::onlyTheOwnGenesAreShownToAdapt() {
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

void DialogsExplainedTest::whatIsGivenUpIsStruckThrough() {
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

void DialogsExplainedTest::theSuggestionIsTaken() {
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

void DialogsExplainedTest::stepsOfTheBpToPay() {
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

void DialogsExplainedTest::bpThatAreNotCountedAreToldOf() {
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

void DialogsExplainedTest::theRefusalStaysAsItIs() {
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

void DialogsExplainedTest::allThatAnswersIsInALowWindow() {
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

}  // namespace plasmos::testing

int main(int argc, char** argv) {
    return plasmos::testing::RunWindowTests<plasmos::testing::DialogsExplainedTest>(argc, argv);
}

#include "dialogs_explained_test.moc"
