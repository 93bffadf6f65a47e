// SPDX-License-Identifier: GPL-3.0-or-later
//
// The dialogs by ear: what they are called, and what toggling does, which is no click.

#include <QAccessible>
#include <QAccessibleActionInterface>

#include "questions/ask.h"
#include "rules/feeding.h"
#include "rules/new_genes.h"
#include "tests/ui/support/meal.h"
#include "ui/board/puddle_view.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

QAccessibleInterface* Of(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget);
}

QString NameOf(QWidget* widget) {
    return Of(widget)->text(QAccessible::Name);
}

void Toggle(QWidget* widget) {
    QAccessibleActionInterface* actions = Of(widget)->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    actions->doAction(QAccessibleActionInterface::toggleAction());
}

QWidget* DialogAround(Scene& scene, const char* control) {
    QWidget* widget = scene.Find(QString::fromLatin1(control))->parentWidget();
    while (widget != nullptr && Of(widget)->role() != QAccessible::Dialog) {
        widget = widget->parentWidget();
    }
    return widget;
}

QString Box(const char* code) {
    return QStringLiteral("gcheck%1").arg(GeneNumber(code));
}

}  // namespace

class DialogsHeardTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QAccessible::setActive(true); }
    void aGeneIsToggled();
    void anAlternativeIsToggled();
    void theQuestionIsTheName();
    void theCardSaysWhatIsAsked();
    void theBoardSaysWhatIsAsked();
    void theStartCardIsRead();
};

void DialogsHeardTest::aGeneIsToggled() {
    PositionScene scene;
    game.BP[3] = 8;
    scene.Then(QuestionKind::YesNo, [&] { scene.Click(QStringLiteral("yesb")); });
    scene.Then(QuestionKind::Genes, [&] { Toggle(scene.Find(Box("spo"))); });
    scene.Then(QuestionKind::Genes, [&] {
        QVERIFY(Of(scene.Find(Box("spo")))->state().checked);
        QCOMPARE(game.BP[3], 5);
        Toggle(scene.Find(Box("spo")));
    });
    scene.Then(QuestionKind::Genes, [&] {
        QVERIFY(!Of(scene.Find(Box("spo")))->state().checked);
        QCOMPARE(game.BP[3], 8);
        Toggle(scene.Find(Box("int")));
    });
    scene.Then(QuestionKind::Genes, [&] { scene.Click(QStringLiteral("doneb")); });
    PHASE(scene, NewGenesPhase());
    QCOMPARE(HeldGenes(3), std::string("int"));
}

void DialogsHeardTest::anAlternativeIsToggled() {
    MealScene scene;
    Give(3, "par");
    Feed(7, {1, 1, 0, 0});
    Put(4, 2, 7);
    game.BP[4] = 2;
    scene.ThenFood([&] {
        for (const bool on : {true, false}) {
            Toggle(scene.Find(QStringLiteral("paropt")));
            QCOMPARE(scene.Ticked(QStringLiteral("paropt")), on);
            QCOMPARE(scene.Enabled(QStringLiteral("victimb")), on);
        }
        scene.Click(QStringLiteral("eatb"));
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(game.Amoeba[1][3].Damage, 1);
}

void DialogsHeardTest::theQuestionIsTheName() {
    Scene start;
    start.Then(QuestionKind::Number, [&] {
        QWidget* dialog = DialogAround(start, "amopt3");
        QVERIFY(dialog != nullptr);
        QVERIFY2(NameOf(dialog).startsWith(QStringLiteral("How many players")), qPrintable(NameOf(dialog)));
        start.Board().close();
    });
    PLAY(start, start.Click(QStringLiteral("gob")));
    PositionScene scene;
    scene.Then(QuestionKind::Box, [&] {
        QWidget* dialog = DialogAround(scene, "okb");
        QVERIFY(dialog != nullptr);
        QCOMPARE(NameOf(dialog), QStringLiteral("Clan Player 1 wins!"));
        scene.Click(QStringLiteral("okb"));
    });
    PHASE(scene, ShowBox(0, "Clan Player 1 wins!"));
}

void DialogsHeardTest::theCardSaysWhatIsAsked() {
    PositionScene scene;
    QWidget* card = scene.Find(QStringLiteral("msglab"))->parentWidget();
    scene.Then(QuestionKind::YesNo, [&] {
        QCOMPARE(Of(card)->role(), QAccessible::Grouping);
        QCOMPARE(NameOf(card), QStringLiteral("Really?"));
        scene.Click(QStringLiteral("yesb"));
    });
    PHASE(scene, QVERIFY(AskYesNo(3, "Really?")));
    QCOMPARE(NameOf(card), QStringLiteral("The message line"));
}

void DialogsHeardTest::theBoardSaysWhatIsAsked() {
    PositionScene scene;
    const auto told = [&] { return Of(&scene.Puddle())->text(QAccessible::Description); };
    const QString keys = told();
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(told(), QStringLiteral("Where?\n") + keys);
        scene.ClickSquare(8);
    });
    PHASE(scene, QCOMPARE(AskSquare(3, "Where?", {6, 8}), 8));
    QCOMPARE(told(), keys);
}

void DialogsHeardTest::theStartCardIsRead() {
    Scene scene;
    QCOMPARE(NameOf(scene.Find(QStringLiteral("txtReplay"))), QStringLiteral("Replay number"));
    QAccessibleInterface* card = Of(scene.Find(QStringLiteral("gob"))->parentWidget());
    QCOMPARE(card->role(), QAccessible::Grouping);
    QCOMPARE(card->text(QAccessible::Name), QStringLiteral("Welcome to the Puddle"));
    QVERIFY(card->text(QAccessible::Description).contains(QStringLiteral("the highest score wins")));
}

WINDOW_TESTS(dialogs_heard_test, DialogsHeardTest)

}  // namespace plasmos::testing

#include "dialogs_heard_test.moc"
