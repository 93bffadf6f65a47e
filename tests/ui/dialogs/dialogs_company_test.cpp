// SPDX-License-Identifier: GPL-3.0-or-later
//
// What moves along with an amoeba: food and others by the tentacle, hitch-hikers.

#include <QAction>
#include <QLabel>
#include <QTextDocument>

#include "rules/move_amoeba.h"
#include "tests/ui/support/position.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

class DialogsCompanyTest : public QObject {
    Q_OBJECT

private slots:
    void theTentacleCarries();
    void theTentacleCarriesNothing_data();
    void theTentacleCarriesNothing();
    void theTentacleDrags();
    void theTentacleDragsOneOfMany();
    void theTentacleByItself();

    void hitchHikers();
    void tipsAreTakenToTheLetter();
    void noHitchHiker_data();
    void noHitchHiker();
    void theWindowLosesTheFocus();
};

void DialogsCompanyTest::theTentacleCarries() {
    PositionScene scene;
    Give(3, "ten");
    Feed(7, {1, 3, 2, 0});
    scene.Then(QuestionKind::Food, [&] {
        QCOMPARE(scene.Text(QStringLiteral("dialogTitle")), QStringLiteral("Carry food out of square 7"));
        QVERIFY(scene.Enabled(QStringLiteral("fdtxt3")));
        QVERIFY(!scene.Sees(QStringLiteral("legallab")) && !scene.Sees(QStringLiteral("paropt")));
        QVERIFY(!scene.Sees(QStringLiteral("victimb")) && !scene.Sees(QStringLiteral("suggestb")));
        scene.Type(QStringLiteral("fdtxt2"), QStringLiteral("3"));
        scene.Click(QStringLiteral("eatb"));
    });
    scene.ThenBox("You may not carry more than 2 food.");
    scene.Then(QuestionKind::Food, [&] {
        QCOMPARE(scene.Text(QStringLiteral("msglab")), QStringLiteral("Please try again."));
        QCOMPARE(scene.Text(QStringLiteral("fdtxt2")), QStringLiteral("3"));
        scene.Type(QStringLiteral("fdtxt2"), QStringLiteral("0"));
        scene.Type(QStringLiteral("fdtxt1"), QStringLiteral("2"));
        scene.Click(QStringLiteral("eatb"));
    });
    scene.ThenBox("You may not carry out more food than there is in the square!");
    scene.Then(QuestionKind::Food, [&] {
        scene.Type(QStringLiteral("fdtxt1"), QStringLiteral("1"));
        scene.Type(QStringLiteral("fdtxt3"), QStringLiteral("1"));
        scene.Click(QStringLiteral("eatb"));
    });
    PHASE(scene, MoveAmoeba(3, 1, 8));
    QCOMPARE(FoodOn(7), (std::vector<int>{0, 3, 1, 0}));
    QCOMPARE(FoodOn(8), (std::vector<int>{1, 0, 1, 0}));
    QCOMPARE(SquareOf(3, 1), 8);
}

void DialogsCompanyTest::theTentacleCarriesNothing_data() {
    QTest::addColumn<bool>("close");
    QTest::newRow("zero is an answer") << false;
    QTest::newRow("the dialog is closed") << true;
}

void DialogsCompanyTest::theTentacleCarriesNothing() {
    QFETCH(bool, close);
    PositionScene scene;
    Give(3, "ten");
    Feed(7, {1, 3, 2, 0});
    scene.Then(QuestionKind::Food, [&] {
        if (close) {
            scene.Type(QStringLiteral("fdtxt1"), QStringLiteral("1"));
        }
        scene.Click(close ? QStringLiteral("closeb") : QStringLiteral("eatb"));
    });
    PHASE(scene, MoveAmoeba(3, 1, 8));
    QCOMPARE(FoodOn(7), (std::vector<int>{1, 3, 2, 0}));
    QCOMPARE(SquareOf(3, 1), 8);
}

void DialogsCompanyTest::theTentacleDrags() {
    PositionScene scene;
    Give(3, "ten");
    Put(3, 4, 7);
    game.BP[3] = 1;
    scene.ThenYes("Would C1 like to pay 1BP to drag another amoeba of its clan along?");
    PHASE(scene, MoveAmoeba(3, 1, 8));
    QCOMPARE(SquareOf(3, 4), 8);
    QCOMPARE(game.BP[3], 0);
    QVERIFY(scene.HasLogLine(QStringLiteral("C4 holding on to C1")));
}

void DialogsCompanyTest::theTentacleDragsOneOfMany() {
    PositionScene scene;
    Give(3, "ten");
    Put(3, 4, 7);
    Put(3, 6, 7);
    Put(3, 2, 9);
    game.Amoeba[4][3].Name = "A & 4";
    game.BP[3] = 2;
    scene.ThenYes("Would C1 like to pay 1BP to drag another amoeba of its clan along?");
    scene.Then(QuestionKind::Amoeba, [&] {
        QCOMPARE(scene.Text(QStringLiteral("amlab")), QStringLiteral("Which amoeba shall be dragged along?"));
        QVERIFY(!scene.Enabled(QStringLiteral("amopt1")) && !scene.Enabled(QStringLiteral("amopt2")));
        QCOMPARE(scene.Text(QStringLiteral("amopt4")), QStringLiteral("A && 4"));
        scene.Press(scene.Find(QStringLiteral("amopt2")));
        QCOMPARE(game.Reply, -1);
        scene.Click(QStringLiteral("amopt6"));
    });
    scene.ThenYes("Would C1 like to pay 1BP to drag another amoeba of its clan along?");
    scene.Then(QuestionKind::Amoeba, [&] { scene.Click(QStringLiteral("amoptb")); });
    PHASE(scene, MoveAmoeba(3, 1, 8); Put(3, 5, 8); Put(3, 7, 8); MoveAmoeba(3, 1, 13));
    QCOMPARE(SquareOf(3, 6), 8);
    QCOMPARE(SquareOf(3, 4), 7);
    QCOMPARE(SquareOf(3, 1), 13);
    QCOMPARE(game.BP[3], 1);
}

void DialogsCompanyTest::theTentacleByItself() {
    PositionScene scene;
    Give(3, "ten");
    game.AutoFlags[3][2] = true;
    Feed(7, {1, 0, 0, 0});
    Feed(8, {0, 1, 0, 1});
    PHASE(scene, MoveAmoeba(3, 1, 8));
    QCOMPARE(scene.Asked(), 0);
    QCOMPARE(FoodOn(8), (std::vector<int>{1, 1, 0, 1}));
}

void DialogsCompanyTest::hitchHikers() {
    PositionScene scene;
    Give(3, "hol");
    Put(3, 4, 7);
    Put(1, 1, 7);
    scene.ThenYes(
        "Player 3: there is an amoeba moving from square 7 to 8\nWould any of your amoebas like to hitch a ride?");
    scene.Then(QuestionKind::Victim, [&] {
        QCOMPARE(scene.Text(QStringLiteral("vfamlab")), QStringLiteral("Choose the Hitch-hiker(s):"));
        QVERIFY2(!scene.Enabled(QStringLiteral("figure0")), "the mover cannot ride on itself");
        const int before = scene.Find(QStringLiteral("vfpict"))->height();
        scene.Click(QStringLiteral("figure1"));
        scene.Click(QStringLiteral("figure2"));
        const QWidget* words = scene.Find(QStringLiteral("vfamlab"));
        QTRY_VERIFY2(words->height() >= words->heightForWidth(words->width()), "every word can be read");
        QVERIFY2(scene.Find(QStringLiteral("vfpict"))->height() >= before, "the picture pays for the words");
        QCOMPARE(scene.Text(QStringLiteral("vfamlab")),
                 QStringLiteral("Choose the Hitch-hiker(s):\n1- C1 (0) of Player 3\n4- C4 (0) of Player 3"));
        scene.Click(QStringLiteral("figure1"));
        QCOMPARE(scene.Text(QStringLiteral("vfamlab")),
                 QStringLiteral("Choose the Hitch-hiker(s):\n4- C4 (0) of Player 3"));
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, game.CurPlayer = 1; MoveAmoeba(1, 1, 8));
    QCOMPARE(SquareOf(1, 1), 8);
    QCOMPARE(SquareOf(3, 4), 8);
    QCOMPARE(SquareOf(3, 1), 7);
    QCOMPARE(scene.Text(QStringLiteral("msglab")), QStringLiteral("C4 holding on to A1"));
}

void DialogsCompanyTest::noHitchHiker_data() {
    QTest::addColumn<int>("way");
    QTest::newRow("no") << 0;
    QTest::newRow("the dialog is closed") << 1;
    QTest::newRow("unmarked again, then closed") << 2;
}

void DialogsCompanyTest::noHitchHiker() {
    QFETCH(int, way);
    PositionScene scene;
    Give(3, "hol");
    Put(1, 1, 7);
    const std::string text =
        "Player 3: there is an amoeba moving from square 7 to 8\nWould any of your amoebas like to hitch a ride?";
    if (way == 0) {
        scene.ThenNo(text);
    } else {
        scene.ThenYes(text);
        scene.Then(QuestionKind::Victim, [&] {
            scene.Click(QStringLiteral("figure1"));
            if (way == 2) {
                scene.Click(QStringLiteral("figure1"));
                QVERIFY(!scene.Enabled(QStringLiteral("doneb")));
            }
            scene.Click(QStringLiteral("closeb"));
        });
    }
    PHASE(scene, game.CurPlayer = 1; MoveAmoeba(1, 1, 8));
    QCOMPARE(SquareOf(1, 1), 8);
    QCOMPARE(SquareOf(3, 1), 7);
}

void DialogsCompanyTest::theWindowLosesTheFocus() {
    PositionScene scene;
    Give(3, "hol");
    Put(1, 1, 7);
    scene.Then(QuestionKind::YesNo, [&] { scene.Click(QStringLiteral("yesb")); });
    scene.Then(QuestionKind::Victim, [&] {
        scene.Click(QStringLiteral("figure1"));
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QCOMPARE(scene.Text(QStringLiteral("vfamlab")),
                 QStringLiteral("Choose the Hitch-hiker(s):\n1- C1 (0) of Player 3"));
        QVERIFY(scene.Enabled(QStringLiteral("doneb")));
        other.close();
        scene.Board().activateWindow();
        scene.Click(QStringLiteral("doneb"));
    });
    PHASE(scene, game.CurPlayer = 1; MoveAmoeba(1, 1, 8));
    QCOMPARE(SquareOf(3, 1), 8);
}

namespace {

/// What a person reads in the tool tip of a control.
QString TipOf(PositionScene& scene, const QString& control) {
    const QString tip = scene.Find(control)->toolTip();
    QTextDocument document;
    Qt::mightBeRichText(tip) ? document.setHtml(tip) : document.setPlainText(tip);
    return document.toPlainText();
}

}  // namespace

// Whatever somebody calls an amoeba or a clan.
void DialogsCompanyTest::tipsAreTakenToTheLetter() {
    PositionScene scene;
    Give(3, "hol");
    Give(3, "ten");
    Put(3, 4, 7);
    Put(3, 5, 7);
    Put(1, 1, 7);
    game.Amoeba[4][3].Name = "<b>O</b>";
    game.Players[3].Name = std::string_view("<i>&lt;Ann</i>");
    game.BP[3] = 2;
    scene.Then(QuestionKind::YesNo, [&] { scene.Click(QStringLiteral("yesb")); });
    scene.Then(QuestionKind::Victim, [&] {
        QCOMPARE(TipOf(scene, QStringLiteral("figure2")), QStringLiteral("<b>O</b> of <i>&lt;Ann</i>"));
        scene.Click(QStringLiteral("figure2"));
        scene.Click(QStringLiteral("doneb"));
    });
    scene.Then(QuestionKind::YesNo, [&] { scene.Click(QStringLiteral("yesb")); });
    scene.Then(QuestionKind::Amoeba, [&] {
        QCOMPARE(TipOf(scene, QStringLiteral("amopt4")), QStringLiteral("<b>O</b>"));
        scene.Click(QStringLiteral("amoptb"));
    });
    PHASE(scene, game.CurPlayer = 1; MoveAmoeba(1, 1, 8); Put(3, 4, 7); game.CurPlayer = 3; MoveAmoeba(3, 1, 8));
}

WINDOW_TESTS(dialogs_company_test, DialogsCompanyTest)

}  // namespace plasmos::testing

#include "dialogs_company_test.moc"
