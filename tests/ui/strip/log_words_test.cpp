// SPDX-License-Identifier: GPL-3.0-or-later
//
// Everything that happens has its line in the log: one that is told, or a quiet one.

#include <QTextBlock>
#include <QTextEdit>
#include <QTextFragment>

#include "tests/ui/support/happening_stage.h"
#include "ui/look/palette.h"

namespace plasmos::testing {

namespace {

/// The lines of the log below its header that are about what happens in a scene.
QStringList LinesOf(Scene& scene, const QStringList& before) {
    return scene.Log().mid(before.size());
}

struct Row {
    const char* Scene;
    QStringList Lines;
    int Person = 0;  ///< the clan that is a person's; 0: none
};

const Row Rows[] = {
    {"a_move", {}},
    {"a_move", {"A1 (1) of Player 1 moves from 13 to 14"}, 1},
    {"a_move_to_where_it_is", {}},
    {"a_move_to_where_it_is", {"A1 (1) of Player 1 stays in 13"}, 1},
    {"a_throw",
     {"A1 (1) of Player 1 throws 3: left to 12", "Amoeba 1 will move Left instead.",
      "A1 (1) of Player 1 moves from 13 to 12"}},
    {"a_throw_that_stays",
     {"A1 (1) of Player 1 throws 5: stays in 13", "Amoeba 1 will move in place anyway.",
      "A1 (1) of Player 1 stays in 13"}},
    {"a_throw_against_the_edge",
     {"A2 (2) of Player 1 throws 3: left, stays in 11", "Amoeba 2 will move Left instead.",
      "A2 (2) of Player 1 stays in 11"}},
    {"two_throws",
     {"A1 (1) of Player 1 throws 2: down to 18", "A1 (1) of Player 1 throws 2: down to 18",
      "A1 will move to 18 instead", "A1 (1) of Player 1 moves from 13 to 18"}},
    {"a_ride", {"B1 holding on to A1"}},
    {"food_is_carried_along", {"A1 (1) of Player 1 carries 2 purple food from 13 to 14"}},
    {"a_change_of_spot", {}},
    {"a_meal", {"A1 eats 21 in 13"}},
    {"a_parasites_meal", {"A1 parasitizing off of clan Player 2", "A1 eats 21 in 13"}},
    {"hunger", {"A1 starves in 13"}},
    {"a_birth", {"C1 (1) of Player 3 is born in 7"}},
    {"a_death_of_hunger", {"Turn 1 · Aggression", "A1 (1) of Player 1 dies of its damage in 13"}},
    {"a_piece_is_eaten", {"A1 (1) of Player 1 attacks B1 (1) of Player 2 in 13 to eat it", "B1 Eaten!"}},
    {"a_piece_is_torn", {"A1 picking a fight with B1 in 13", "B1 torn viciously to pieces!!!"}},
    {"a_wound", {"A1 picking a fight with B1 in 13", "B1 (1) of Player 2 is wounded in its armour, damage 1"}},
    {"an_escape", {"B1 escaped to 12!"}},
    {"no_escape", {"B1 (1) of Player 2 fails to escape"}},
    {"no_escape",
     {"B1 (1) of Player 2 throws 5: stays in 13", "Amoeba 1 will move in place instead.",
      "Your amoeba B1 failed to escape."},
     2},
    {"a_defence", {"B1 (1) of Player 2 beats off A1 (1) of Player 1"}},
    {"a_defence_that_fails", {"Amoeba's defense failed."}},
    {"a_purchase", {"Player 1 just bought: Movement 1"}},
    {"a_purchase", {"Player 1 buys Movement 1"}, 1},
    {"a_loss", {"Player 1 loses Armor"}},
    {"an_income", {"Player 3 gains 10 BP"}},
    {"a_card", {"Turn 4 · Environment", "A new card: UV level 11, drift Left"}},
    {"scores_and_order",
     {"Turn 1 · Scoring", "Player 1 scores nothing and stays on 3 (0 for 1 amoeba, 0 for 0 genes)",
      "Player 2 scores nothing and stays on 2 (0 for 1 amoeba, 0 for 0 genes)",
      "Player 3 scores: from 1 to 5 (0 for 0 amoebas, 2 for 4 genes, 2 taken spaces jumped)"}},
};

}  // namespace

class LogWordsTest : public QObject {
    Q_OBJECT

private slots:
    void whatTheLogSays_data();
    void whatTheLogSays();
    void aQuietLineStandsBack();
};

void LogWordsTest::whatTheLogSays_data() {
    QTest::addColumn<int>("row");
    for (int row = 0; row < static_cast<int>(std::size(Rows)); ++row) {
        QTest::addRow("%s of clan %d", Rows[row].Scene, Rows[row].Person) << row;
    }
}

void LogWordsTest::whatTheLogSays() {
    QFETCH(int, row);
    const Row& told = Rows[row];
    const auto* scene = std::find_if(std::begin(SceneRows), std::end(SceneRows),
                                     [&told](const SceneRow& one) { return one.Name == told.Scene; });
    QVERIFY(scene != std::end(SceneRows));
    HappeningStage stage;
    if (told.Person > 0) {
        Person(told.Person);
    }
    stage.Roll(scene->Rolls);
    QStringList lines;
    PHASE(stage, const QStringList before = stage.Log(); scene->Happens(); lines = LinesOf(stage, before));
    QCOMPARE(lines.join(u'|'), told.Lines.join(u'|'));
}

// Quiet lines have the clan's sign and the faint ink, told ones are in full ink.
void LogWordsTest::aQuietLineStandsBack() {
    HappeningStage stage;
    Person(1);
    stage.Roll({9});
    PHASE(stage, MoveAmoeba(1, 1, 14); Say("A1 waits"));
    const auto* log = stage.Board().findChild<QTextEdit*>(QStringLiteral("txtLog"));
    const QTextBlock told = log->document()->lastBlock();
    const QTextBlock quiet = told.previous();
    const auto inkOf = [](const QTextBlock& block) {
        return (--block.end()).fragment().charFormat().foreground().color();
    };
    QCOMPARE(quiet.text(), SignCharacter(1) + " A1 (1) of Player 1 moves from 13 to 14");
    QCOMPARE(inkOf(quiet), Shade(Tone::Faint));
    QCOMPARE(inkOf(told), Shade(Tone::Ink));
}

WINDOW_TESTS(log_words_test, LogWordsTest)

}  // namespace plasmos::testing

#include "log_words_test.moc"
