// SPDX-License-Identifier: GPL-3.0-or-later
//
// The food dialog: what may be eaten, and what is refused.

#include "rules/feeding.h"
#include "rules/movement.h"
#include "tests/ui/support/meal.h"

namespace plasmos::testing {

namespace {

const std::string Invitation =
    "Your amoeba may eat the suggested menu in square 7, or using your amoebas' genes you may design your own.";
const std::string TooMuch = "You cannot eat more food than is in the square; please try again.";
const std::string NotLegal4 =
    "The menu you chose was not legal.\nPossible menus are:  111, (depending on the food and amounts in square!)";

}  // namespace

struct RefusedRow {
    const char* Name;
    std::vector<int> Food;
    std::vector<int> Typed;
    std::string Message;
};

class DialogsFeedingTest : public QObject {
    Q_OBJECT

private slots:
    void theDialogOpens();
    void theSuggestionIsEaten_data();
    void theSuggestionIsEaten();
    void aTypedMenuIsEaten();
    void isRefused_data();
    void isRefused();
    void closingIsRefusedWhileItCanEat();
    void legalMenusFollowTheGenes_data();
    void legalMenusFollowTheGenes();
    void sixClansEatLikeFive();
    void starvesWithoutADialog();
    void automaticEatingAsksNothing();
};

void DialogsFeedingTest::theDialogOpens() {
    MealScene scene;
    scene.ThenFood([&] {
        QCOMPARE(scene.Text(QStringLiteral("msglab")).toStdString(), Invitation);
        QCOMPARE(scene.Fields(), QStringLiteral("0 0 0 0"));
        QVERIFY(!scene.Enabled(Field(3)) && scene.Enabled(Field(1)) && scene.Enabled(Field(4)));
        QVERIFY(!scene.Sees(Field(0)) && !scene.Sees(Field(5)) && !scene.Sees(Field(7)));
        QCOMPARE(scene.Text(QStringLiteral("fdlab3")), QStringLiteral("5"));
        QCOMPARE(scene.Text(QStringLiteral("suggestb")), QStringLiteral("Suggested menu: 111"));
        QCOMPARE(scene.Text(QStringLiteral("legallab")), QStringLiteral("Legal menu(s):  111,"));
        QCOMPARE(scene.Text(QStringLiteral("eatb")), QStringLiteral("Eat"));
        QVERIFY(scene.Sees(QStringLiteral("paropt")) && !scene.Enabled(QStringLiteral("paropt")));
        QVERIFY(!scene.Sees(QStringLiteral("sfsopt")));
        QVERIFY(!scene.Enabled(QStringLiteral("victimb")));
        scene.Click(QStringLiteral("suggestb"));
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(FoodOn(7), (std::vector<int>{0, 0, 7, 0}));
    QCOMPARE(DamageOf(3, 1), 0);
    QCOMPARE(scene.Text(QStringLiteral("msglab")), QStringLiteral("C1 eats 111 in 7"));
    QVERIFY2(scene.Log().filter(QStringLiteral("C1 eats 111 in 7")).size() == 1, "the meal is told");
}

void DialogsFeedingTest::theSuggestionIsEaten_data() {
    QTest::addColumn<int>("way");
    QTest::newRow("by mouse") << 0;
    QTest::newRow("by Enter in a field") << 1;
    QTest::newRow("by the keyboard's buttons") << 2;
}

void DialogsFeedingTest::theSuggestionIsEaten() {
    QFETCH(int, way);
    MealScene scene;
    Feed(7, {3, 1, 0, 2});
    scene.ThenFood([&] {
        if (way == 0) {
            scene.Click(QStringLiteral("suggestb"));
        } else if (way == 1) {
            scene.Key(Field(1), Qt::Key_Return);
        } else {
            scene.Key(QStringLiteral("suggestb"), Qt::Key_Space);
        }
        QCOMPARE(scene.Fields(), QStringLiteral("1 1 0 1"));
        QCOMPARE(FoodOn(7), (std::vector<int>{3, 1, 0, 2}));
        way == 1 ? scene.Key(Field(1), Qt::Key_Return) : scene.Key(QStringLiteral("eatb"), Qt::Key_Space);
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(FoodOn(7), (std::vector<int>{2, 0, 2, 1}));
}

void DialogsFeedingTest::aTypedMenuIsEaten() {
    MealScene scene;
    Give(3, "sub");
    Feed(7, {3, 1, 0, 2});
    scene.ThenFood([&] {
        scene.Enter({2, 0, 0, 2});
        QCOMPARE(scene.Text(QStringLiteral("eatb")), QStringLiteral("Eat"));
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(FoodOn(7), (std::vector<int>{1, 1, 2, 0}));
}

const RefusedRow RefusedRows[] = {
    {"more than there is", {1, 1, 0, 1}, {2, 1, 0, 1}, TooMuch},
    {"too much and not legal", {1, 1, 0, 1}, {9, 9, 0, 9}, TooMuch},
    {"two colours only", {3, 3, 0, 3}, {1, 1, 0, 0}, NotLegal4},
    {"two of one", {3, 3, 0, 3}, {2, 1, 0, 1}, NotLegal4},
    {"ten of one", {12, 1, 0, 1}, {10, 1, 0, 1}, NotLegal4},
    {"eleven is not one and one", {11, 1, 0, 1}, {11, 0, 0, 1}, NotLegal4},
    {"a hundred and eleven of one", {120, 1, 0, 1}, {111, 0, 0, 0}, NotLegal4},
    {"nothing at all", {1, 1, 0, 1}, {0, 0, 0, 0}, NotLegal4},
};

void DialogsFeedingTest::isRefused_data() {
    QTest::addColumn<int>("number");
    for (int number = 0; number < static_cast<int>(std::size(RefusedRows)); ++number) {
        QTest::newRow(RefusedRows[number].Name) << number;
    }
}

void DialogsFeedingTest::isRefused() {
    QFETCH(int, number);
    const RefusedRow& row = RefusedRows[number];
    MealScene scene;
    for (int colour = 1; colour <= 4; ++colour) {
        game.Food[7][colour] = row.Food[static_cast<std::size_t>(colour - 1)];
    }
    const auto food = FoodOn(7);
    QString fields;
    scene.ThenFood([&] {
        scene.Enter(row.Typed);
        fields = scene.Fields();
        scene.Eat();
    });
    scene.Then(QuestionKind::Box, [&] {
        QCOMPARE(scene.Text(QStringLiteral("boxlab")).toStdString(), row.Message);
        QVERIFY(!scene.Enabled(Field(1)));
        QVERIFY(!scene.Enabled(QStringLiteral("eatb")));
        scene.Click(QStringLiteral("okb"));
    });
    scene.ThenFood([&] {
        QCOMPARE(scene.Text(QStringLiteral("msglab")), QStringLiteral("Please try again."));
        QCOMPARE(scene.Fields(), fields);
        QCOMPARE(FoodOn(7), food);
        QCOMPARE(DamageOf(3, 1), 0);
        scene.Enter({1, 1, 0, 1});
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(game.Food[7][3], food[2] + 2);
    QCOMPARE(game.Food[7][1], food[0] - 1);
}

void DialogsFeedingTest::closingIsRefusedWhileItCanEat() {
    MealScene scene;
    scene.ThenFood([&] { scene.Click(QStringLiteral("closeb")); });
    scene.ThenBox(NotLegal4);
    scene.ThenFood([&] { scene.Key(Field(1), Qt::Key_Escape); });
    scene.ThenBox(NotLegal4);
    scene.ThenFood([&] {
        scene.Click(QStringLiteral("suggestb"));
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(DamageOf(3, 1), 0);
}

void DialogsFeedingTest::legalMenusFollowTheGenes_data() {
    QTest::addColumn<int>("clans");
    QTest::addColumn<QString>("genes");
    QTest::addColumn<QString>("legal");
    QTest::newRow("three") << 3 << ""
                           << "Legal menu(s):  21,";
    QTest::newRow("three, sub") << 3 << "sub"
                                << "Legal menu(s):  21, 4, 31,";
    QTest::newRow("four, sub") << 4 << "sub"
                               << "Legal menu(s):  111, 22, 31,";
    QTest::newRow("four, fru") << 4 << "fru"
                               << "Legal menu(s):  111, 3, 11, 21,";
    QTest::newRow("four, both") << 4 << "sub fru"
                                << "Legal menu(s):  111, 22, 31, 3, 11, 21,";
    QTest::newRow("five") << 5 << ""
                          << "Legal menu(s):  1111,";
    QTest::newRow("five, sub") << 5 << "sub"
                               << "Legal menu(s):  1111, 221, 311,";
    QTest::newRow("six, both") << 6 << "sub fru"
                               << "Legal menu(s):  1111, 221, 311, 22, 31, 111, 21, 211,";
}

void DialogsFeedingTest::legalMenusFollowTheGenes() {
    QFETCH(int, clans);
    QFETCH(QString, genes);
    QFETCH(QString, legal);
    MealScene scene(clans);
    Feed(7, {4, 4, 0});
    for (int colour = 4; colour <= clans; ++colour) {
        game.Food[7][colour] = 4;
    }
    for (const QString& code : genes.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        Give(3, code.toStdString());
    }
    scene.ThenFood([&] {
        QCOMPARE(scene.Text(QStringLiteral("legallab")), legal);
        scene.Type(Field(1), QStringLiteral("3"));
        QCOMPARE(scene.Text(QStringLiteral("legallab")), legal);
        for (int colour = 1; colour <= 6; ++colour) {
            QCOMPARE(scene.Sees(Field(colour)), colour <= clans);
        }
        scene.Click(QStringLiteral("suggestb"));
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(game.Food[7][3], 2);
}

void DialogsFeedingTest::sixClansEatLikeFive() {
    MealScene scene(6);
    for (const int colour : {1, 2, 4, 5, 6}) {
        game.Food[7][colour] = 1;
    }
    scene.ThenFood([&] {
        QCOMPARE(scene.Text(QStringLiteral("suggestb")), QStringLiteral("Suggested menu: 1111"));
        scene.Enter({1, 1, 0, 1, 1, 1});
        scene.Eat();
    });
    scene.ThenBox(
        "The menu you chose was not legal.\nPossible menus are:  1111, (depending on the food and amounts in square!)");
    scene.ThenFood([&] {
        scene.Type(Field(1), QStringLiteral("0"));
        scene.Eat();
    });
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(FoodOn(7), (std::vector<int>{1, 0, 7, 0, 0, 0}));
}

void DialogsFeedingTest::starvesWithoutADialog() {
    MealScene scene;
    Feed(7, {1, 0, 5, 1});
    Put(1, 1, 7);
    PHASE(scene, FeedAmoeba(7, 3));
    QCOMPARE(scene.Asked(), 0);
    QCOMPARE(DamageOf(3, 1), 1);
    QVERIFY(scene.HasLogLine(QStringLiteral("C1 starves in 7")));
}

void DialogsFeedingTest::automaticEatingAsksNothing() {
    MealScene scene;
    game.AutoFlags[3][1] = true;
    PHASE(scene, MovementPhase());
    QCOMPARE(scene.Asked(), 0);
    QCOMPARE(FoodOn(7), (std::vector<int>{0, 0, 7, 0}));
}

WINDOW_TESTS(dialogs_feeding_test, DialogsFeedingTest)

}  // namespace plasmos::testing

#include "dialogs_feeding_test.moc"
