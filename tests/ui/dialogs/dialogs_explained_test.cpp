// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the gene dialog says of the genes: of the one under the pointer or the keyboard, and to a listener.

#include <QAccessible>
#include <QWindow>

#include "model/gene_texts.h"
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
        QCOMPARE(
            heard("mv2"),
            QStringLiteral("Movement 2, 5 BP, 5 mutation points, not held, needs Movement 1; costs 5 BP, you have 3"));
        QCOMPARE(Panel(scene)->accessibleName(), QStringLiteral("Buy new genes"));
        QVERIFY(Panel(scene)->accessibleDescription().startsWith(ToQt(OfferWith(3))));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, NewGenesPhase());
}

WINDOW_TESTS(dialogs_explained_test, DialogsExplainedTest)

}  // namespace plasmos::testing

#include "dialogs_explained_test.moc"
