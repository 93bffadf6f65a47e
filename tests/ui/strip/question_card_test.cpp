// SPDX-License-Identifier: GPL-3.0-or-later
//
// The message line always tells whom it is about, and a question that has been answered no longer stands as asked.

#include <QLabel>

#include "model/message_line.h"
#include "model/narration.h"
#include "questions/ask.h"
#include "rules/movement.h"
#include "tests/ui/support/position.h"
#include "ui/look/palette.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

bool StandsBack(Scene& scene) {
    return scene.Text(QStringLiteral("hintlab")) == QStringLiteral("Answered.");
}

/// The colour in the clan's sign on the card, beside its middle.
QColor SignOn(Scene& scene) {
    QWidget* card = scene.Find(QStringLiteral("msglab"))->parentWidget();
    return card->grab().toImage().pixelColor(25 - 7, 18);
}

bool IsNear(const QColor& one, const QColor& other) {
    const auto apart = [](int a, int b) { return std::abs(a - b) < 24; };
    return apart(one.red(), other.red()) && apart(one.green(), other.green()) && apart(one.blue(), other.blue());
}

}  // namespace

class QuestionCardTest : public QObject {
    Q_OBJECT

private slots:
    void anAnsweredQuestionStandsBack();
    void aBoxOverAQuestion();
    void theStatementBeforeComesBack();
    void aStatementIsNoQuestion();
    void theSignIsWhoItIsAbout();
};

void QuestionCardTest::anAnsweredQuestionStandsBack() {
    PositionScene scene;
    scene.Then(QuestionKind::YesNo, [&] {
        QVERIFY(!StandsBack(scene));
        scene.Click(QStringLiteral("yesb"));
    });
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(!StandsBack(scene));
        scene.ClickSquare(8);
    });
    PHASE(scene, QVERIFY(AskYesNo(3, "Really?")); QVERIFY(StandsBack(scene));
          QCOMPARE(scene.Text(QStringLiteral("msglab")), QStringLiteral("Really?"));
          QCOMPARE(AskSquare(3, "Where?", {8, 12}), 8); QVERIFY(StandsBack(scene)); Say("C1 eats 111 in 7");
          QVERIFY(!StandsBack(scene)));
}

void QuestionCardTest::aBoxOverAQuestion() {
    PositionScene scene;
    scene.ThenBox("There.");
    scene.ThenYes("Really?");
    PHASE(scene, Say("C1 eats 111 in 7"); ShowBox(3, "There."); QVERIFY2(!StandsBack(scene), "a statement");
          QVERIFY(AskYesNo(3, "Really?")));
}

void QuestionCardTest::theStatementBeforeComesBack() {
    PositionScene scene;
    scene.ThenSquare({2, 6, 8, 12}, 6);
    PHASE(scene, ShowStatement("Before", 3); QCOMPARE(ChooseSquare(3, 1, true), 6); QVERIFY(!StandsBack(scene)));
}

void QuestionCardTest::aStatementIsNoQuestion() {
    PositionScene scene;
    scene.ThenYes("Really?");
    PHASE(scene, QVERIFY(AskYesNo(3, "Really?")); ShowStatement("Really?", 3); QVERIFY(!StandsBack(scene)));
}

void QuestionCardTest::theSignIsWhoItIsAbout() {
    PositionScene scene;
    game.CurPlayer = 1;
    scene.Then(QuestionKind::YesNo, [&] {
        QVERIFY2(IsNear(SignOn(scene), ShadesOf(3).Body), "the sign of another clan");
        QCOMPARE(scene.Text(QStringLiteral("speakerlab")), QStringLiteral("Player 3"));
        QVERIFY(scene.Sees(QStringLiteral("speakerlab")));
        const QRect speaker = scene.Find(QStringLiteral("speakerlab"))->geometry();
        const QRect player = scene.Find(QStringLiteral("playerlab"))->geometry();
        QVERIFY(!speaker.intersects(player));
        scene.Click(QStringLiteral("yesb"));
    });
    PHASE(scene, Show(&Presentation::ShowCurrentClan, 1); QVERIFY(AskYesNo(3, "Escape?")); Say("A1 eats 111 in 7");
          QVERIFY(IsNear(SignOn(scene), ShadesOf(1).Body)); QVERIFY(!scene.Sees(QStringLiteral("speakerlab"))));
}

WINDOW_TESTS(question_card_test, QuestionCardTest)

}  // namespace plasmos::testing

#include "question_card_test.moc"
