// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the other questions say of themselves: what they cost, whether a meal is legal, what closing does.

#include <QAccessible>
#include <QLineEdit>

#include "rules/division.h"
#include "rules/feeding.h"
#include "rules/movement.h"
#include "tests/ui/support/meal.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

QString Verdict(Scene& scene) {
    return scene.Text(QStringLiteral("verdictlab"));
}

QString Heard(Scene& scene, const QString& name) {
    return QAccessible::queryAccessibleInterface(scene.Find(name))->text(QAccessible::Name);
}

QString Closing(Scene& scene) {
    const QString text = scene.Text(QStringLiteral("closelab"));
    return text == scene.Find(QStringLiteral("closeb"))->toolTip() ? text : QStringLiteral("two texts");
}

QString Hint(Scene& scene) {
    return scene.Sees(QStringLiteral("questionHint")) ? scene.Text(QStringLiteral("questionHint")) : QString();
}

}  // namespace

class DialogsHintsTest : public QObject {
    Q_OBJECT

private slots:
    void everyChangeOfAMealIsJudged();
    void aMealIsOneClick();
    void mealsByTheKeyboard();
    void theColoursAreNamed();
    void closingAMeal();
    void theNumberOfAmoebasAndTheirSquares();
    void theOfferToMove_data();
    void theOfferToMove();
};

void DialogsHintsTest::everyChangeOfAMealIsJudged() {
    MealScene scene;
    scene.ThenFood([&] {
        QCOMPARE(Verdict(scene), QStringLiteral("Nothing entered: your amoeba must eat."));
        scene.Type(Field(1), QStringLiteral("1"));
        QCOMPARE(Verdict(scene), QStringLiteral("Not legal: 1 is no menu of yours."));
        scene.Type(Field(2), QStringLiteral("2"));
        QCOMPARE(Verdict(scene), QStringLiteral("Not legal: more than the square holds."));
        scene.Click(QStringLiteral("less2"));
        scene.Click(QStringLiteral("more4"));
        QCOMPARE(Verdict(scene), QStringLiteral("Legal: 111."));
        scene.Click(QStringLiteral("less4"));
        scene.Eat();
    });
    scene.ThenBox(
        "The menu you chose was not legal.\nPossible menus are:  111, (depending on the food and amounts in "
        "square!)");
    scene.ThenFood([&] {
        QCOMPARE(Verdict(scene), QStringLiteral("Not legal: 11 is no menu of yours."));
        scene.Click(QStringLiteral("suggestb"));
        QCOMPARE(Verdict(scene), QStringLiteral("Legal: 111."));
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
}

void DialogsHintsTest::aMealIsOneClick() {
    MealScene scene;
    Feed(7, {2, 1, 5, 0});
    Give(3, "fru");
    scene.ThenFood([&] {
        QVERIFY2(!scene.Sees(QStringLiteral("meal111")) && !scene.Sees(QStringLiteral("meal3")),
                 "the square holds too little for them");
        QVERIFY2(!scene.Sees(QStringLiteral("meal11")), "the suggestion is shown once");
        QCOMPARE(scene.Text(QStringLiteral("suggestb")), QStringLiteral("Suggested menu: 11"));
        QCOMPARE(scene.Find(QStringLiteral("suggestb"))->toolTip(), QStringLiteral("Meal 11: 1 blue, 1 purple"));
        QVERIFY(scene.Sees(QStringLiteral("oneclicklab")) && scene.Sees(QStringLiteral("meal21")));
        QCOMPARE(Heard(scene, QStringLiteral("meal21")), QStringLiteral("Meal 21: 2 blue, 1 purple"));
        scene.Click(QStringLiteral("meal21"));
        QCOMPARE(scene.Fields(), QStringLiteral("2 1 0 0"));
        QCOMPARE(Verdict(scene), QStringLiteral("Legal: 21."));
        QVERIFY2(!scene.Enabled(QStringLiteral("meal21")), "the fields hold it");
        scene.Click(QStringLiteral("suggestb"));
        QCOMPARE(scene.Fields(), QStringLiteral("1 1 0 0"));
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(FoodOn(7), (std::vector<int>{1, 0, 7, 0}));
}

void DialogsHintsTest::mealsByTheKeyboard() {
    MealScene scene;
    Give(3, "sub");
    Feed(7, {3, 1, 5, 1});
    scene.ThenFood([&] {
        scene.Key(QStringLiteral("meal31"), Qt::Key_Space);
        QCOMPARE(scene.Fields(), QStringLiteral("3 1 0 0"));
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("eatb"));
        scene.Key(QStringLiteral("suggestb"), Qt::Key_Space);
        QCOMPARE(scene.Fields(), QStringLiteral("1 1 0 1"));
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("eatb"));
        scene.Key(QStringLiteral("eatb"), Qt::Key_Return);
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(FoodOn(7), (std::vector<int>{2, 0, 7, 0}));
}

void DialogsHintsTest::theColoursAreNamed() {
    MealScene scene;
    scene.ThenFood([&] {
        QCOMPARE(Heard(scene, QStringLiteral("more1")), QStringLiteral("one more blue: Player 1"));
        QCOMPARE(Heard(scene, QStringLiteral("less4")), QStringLiteral("one less red: Player 4"));
        QCOMPARE(Heard(scene, Field(2)), QStringLiteral("purple: Player 2, 1 in the square"));
        scene.Click(QStringLiteral("suggestb"));
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
}

void DialogsHintsTest::closingAMeal() {
    MealScene scene;
    scene.ThenFood([&] {
        QCOMPARE(Closing(scene), QStringLiteral("Esc: is refused, as your amoeba can eat"));
        scene.Click(QStringLiteral("suggestb"));
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    Feed(7, {0, 0, 5, 0});
    Give(3, "sfs");
    Put(1, 1, 7);
    game.BP[3] = 1;
    scene.ThenFood([&] {
        QCOMPARE(Closing(scene), QStringLiteral("Esc: eats nothing; your amoeba starves"));
        QCOMPARE(Verdict(scene), QStringLiteral("Nothing to eat here: it starves, 1 damage."));
        QVERIFY2(!scene.Sees(QStringLiteral("oneclicklab")), "there is no meal to click");
        QVERIFY(Hint(scene).startsWith(
            QStringLiteral("There is nothing to eat here. Starve: 1 damage; it has 0 and dies of 2. Struggle: 1 BP")));
        scene.Click(QStringLiteral("closeb"));
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(DamageOf(3, 1), 1);
}

void DialogsHintsTest::theNumberOfAmoebasAndTheirSquares() {
    PositionScene scene;
    game.BP[3] = 9;
    scene.Then(QuestionKind::YesNo, [&] {
        QCOMPARE(Hint(scene), QStringLiteral("6 BP each, you have 19: 3 at most. 1 of 7 are on the board."));
        scene.Click(QStringLiteral("yesb"));
    });
    scene.Then(QuestionKind::Number, [&] {
        QCOMPARE(Hint(scene), QStringLiteral("6 BP each, you have 19: 3 at most. 1 of 7 are on the board."));
        QCOMPARE(Closing(scene), QStringLiteral("Esc: chooses 0"));
        QCOMPARE(Heard(scene, QStringLiteral("amopt2")), QStringLiteral("2"));
        QCOMPARE(Heard(scene, QStringLiteral("amopt4")), QStringLiteral("4, cannot be chosen"));
        scene.Click(QStringLiteral("amopt2"));
    });
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(Hint(scene), QStringLiteral("Amoeba 1 of 2. Every square without one of yours is offered."));
        scene.ClickSquare(1);
    });
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(Hint(scene), QStringLiteral("Amoeba 2 of 2. Squares next to yours are offered."));
        scene.ClickSquare(2);
    });
    PHASE(scene, DivisionPhase());
    QCOMPARE(Hint(scene), QString());
}

void DialogsHintsTest::theOfferToMove_data() {
    QTest::addColumn<QSize>("size");
    QTest::newRow("a usual window") << QSize(1320, 860);
    QTest::newRow("a low window") << QSize(940, 640);
}

// The question is read in full, whether or not there is room for what stands beside it.
void DialogsHintsTest::theOfferToMove() {
    QFETCH(QSize, size);
    PositionScene scene(6);
    scene.Board().resize(size);
    game.Drift = 1;
    game.BP[3] = 2;
    scene.Then(QuestionKind::YesNo, [&] {
        QCoreApplication::processEvents();
        const QWidget* hint = scene.Find(QStringLiteral("questionHint"));
        const QWidget* card = scene.Find(QStringLiteral("yesb"))->parentWidget();
        const QString text = scene.Text(QStringLiteral("questionHint"));
        QVERIFY(text.startsWith(QStringLiteral("Yes: 1 BP, wherever it leads. Die: 1 right, 2 down, ")));
        QCOMPARE(card->toolTip(), hint->isVisible() ? QString() : text);
        QCOMPARE(card->accessibleDescription(), text);
        QVERIFY2(size.height() < 800 || hint->isVisible(), "there is room for it");
        scene.Click(QStringLiteral("nob"));
    });
    PHASE(scene, MovePersonsAmoeba(3, 1));
    QCOMPARE(SquareOf(3, 1), 8);
}

WINDOW_TESTS(dialogs_hints_test, DialogsHintsTest)

}  // namespace plasmos::testing

#include "dialogs_hints_test.moc"
