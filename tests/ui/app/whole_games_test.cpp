// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whole games in the window, from Go to the winner.

#include <QTextEdit>
#include <array>
#include <cstring>

#include "model/board_size.h"
#include "model/consistency.h"
#include "model/presentation.h"
#include "questions/ask.h"
#include "questions/visit.h"
#include "tests/support/game_fixture.h"
#include "tests/support/test_scale.h"
#include "tests/ui/support/enrich.h"
#include "tests/ui/support/meddle.h"
#include "tests/ui/support/scene.h"
#include "ui/app/auto_person.h"
#include "ui/board/puddle_view.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

struct Row {
    const char* Name;
    int Clans;
    int Rows;
    int Cols;
    const char* Blocks;
    bool TwoPersons;
    bool Victory;
    int Replays;
    bool Rich = false;
};

constexpr Row Games[] = {
    {"three clans on 5x5", 3, 5, 5, "", false, false, 2},
    {"four clans on 5x5", 4, 5, 5, "", false, false, 2},
    {"five clans on 5x5", 5, 5, 5, "", false, false, 2},
    {"six clans on 5x5", 6, 5, 5, "", false, false, 1},
    {"two persons of three clans", 3, 5, 5, "", true, false, 1},
    {"two persons of six clans", 6, 6, 6, "", true, false, 1},
    {"six clans on twelve squares", 6, 3, 4, "", false, false, 2},
    {"six clans, two persons, twelve squares", 6, 4, 3, "", true, false, 1},
    {"eight blocks", 4, 4, 5, "1:5:7:9:12:14:16:20:", false, false, 2},
    {"a wide board", 5, 4, 9, "", false, false, 1},
    {"a tall board", 5, 9, 4, "", true, false, 1},
    {"six by six to 42 points", 6, 6, 6, "8:15:22:29:", false, true, 1},
    {"a rich clan of three", 3, 4, 4, "", false, false, 2, true},
    {"two rich clans of six", 6, 4, 4, "3:10:", true, false, 2, true},
};

std::vector<SavedValue> Board(const Row& row) {
    return {{"board", "rows", std::to_string(row.Rows)},
            {"board", "cols", std::to_string(row.Cols)},
            {"board", "blocks", row.Blocks},
            {"players", "name3", "Me"}};
}

void SetUp(Scene& scene, const Row& row, int replay) {
    game.HasRequestedReplay = true;
    game.RequestedReplay = static_cast<float>(replay);
    if (row.TwoPersons) {
        scene.Menu(QStringLiteral("twoplayermen"));
    }
    if (row.Victory) {
        scene.Menu(QStringLiteral("victorymen"));
    }
}

/// Every kind of question comes up then.
void EnrichPersons() {
    for (int clan = 2; clan <= 3; ++clan) {
        if (!game.Players[clan].IsComputer) {
            Enrich(clan, {"agg", "hol", "ten", "str"}, 60);
        }
    }
}

}  // namespace

class WholeGamesTest : public QObject {
    Q_OBJECT

private:
    /// Answers as the automatic person does, and checks everything on the way.
    void Attend(Scene& scene, AutoPerson& person, const Row& row) {
        scene.AnswerBy([&scene, &person, &row, this](Question& question) {
            ++kinds_[static_cast<std::size_t>(question.Kind)];
            if (const auto fault = CheckConsistency(); game.Turn >= 1 && !fault.empty()) {
                scene.Fail(fault);
                return;
            }
            if (question.Kind != QuestionKind::Box && question.Clan != 0 && game.Players[question.Clan].IsComputer) {
                scene.Fail("a computer clan is asked: " + question.Text);
                return;
            }
            Meddle(scene, question);
            if (row.Rich && game.Turn == 1 && !rich_) {
                rich_ = true;
                EnrichPersons();
            }
            if (question.Kind == QuestionKind::Number && question.Clan == 0) {
                scene.Click(QStringLiteral("amopt%1").arg(row.Clans));
                return;
            }
            person.Answer(question);
        });
    }

    std::array<int, QuestionKindCount> kinds_{};
    bool rich_ = false;

private slots:
    void aPersonPlays_data();
    void aPersonPlays();
    void everyKindOfQuestionWasMet();
    void isWatched_data();
    void isWatched();
    void theSameNumberDealsTheSameGame();
    void oneGameAfterAnother();
};

void WholeGamesTest::aPersonPlays_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("replay");
    for (int number = 0; number < static_cast<int>(std::size(Games)); ++number) {
        for (int replay = 1; replay <= Scaled(Games[number].Replays); ++replay) {
            QTest::addRow("%s, replay %d", Games[number].Name, replay) << number << replay * 100 + number;
        }
    }
}

void WholeGamesTest::aPersonPlays() {
    QFETCH(int, number);
    QFETCH(int, replay);
    const Row& row = Games[number];
    Scene scene(Board(row));
    AutoPerson& person = scene.Player();
    SetUp(scene, row, replay);
    scene.Board().setUpdatesEnabled(replay < 200 && number % 4 == 0);
    if (number % 2 == 1) {
        scene.Board().resize(scene.Board().minimumSize());
    }
    rich_ = false;
    std::string winner;
    scene.Watch = [&winner](const Question& question) {
        if (question.Kind == QuestionKind::Box && question.Clan == 0) {
            winner = question.Text;
        }
    };
    Attend(scene, person, row);
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(!scene.WasEnded());
    QCOMPARE(game.NumPlayers, row.Clans);
    QCOMPARE(game.Players[3].Name.String(), std::string("Me"));
    QCOMPARE(game.Players[2].IsComputer, !row.TwoPersons);
    QVERIFY(row.Victory || game.Turn == LastTurn + 1);
    const auto name = game.Players[ClanAtPlace(1)].Name.String();
    QCOMPARE(winner, Concat("Clan ", name, " wins!"));
    QCOMPARE(scene.Text(QStringLiteral("titlelab")).toStdString(), Concat(name, " wins!"));
    QCOMPARE(CheckConsistency(true), std::string());
    QCOMPARE(scene.FileText(ErrorFile), QString());
    QVERIFY(scene.Sees(QStringLiteral("gob")) && scene.Enabled(QStringLiteral("gob")));
    QVERIFY2(scene.Sees(QStringLiteral("summarytab")), "the final scores are hidden");
    const QWidget* watch = scene.Find(QStringLiteral("watchb"));
    QVERIFY2(watch->width() >= watch->sizeHint().width(), "a button's text is cut");
    QVERIFY(scene.Sees(QStringLiteral("txtReplay")));
    QCOMPARE(scene.Text(QStringLiteral("txtReplay")), QString());
    QVERIFY(!scene.Item(QStringLiteral("autoeat_men"))->isEnabled());
    QVERIFY(scene.Item(QStringLiteral("pref_men"))->isEnabled());
    QVERIFY(scene.Item(QStringLiteral("twoplayermen"))->isEnabled());
    QVERIFY(!scene.Item(QStringLiteral("leavemen"))->isEnabled());
}

void WholeGamesTest::everyKindOfQuestionWasMet() {
    for (std::size_t kind = 0; kind < kinds_.size(); ++kind) {
        QVERIFY2(kinds_[kind] > 0, QuestionKindName(static_cast<QuestionKind>(kind)).data());
    }
}

void WholeGamesTest::isWatched_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("fast");
    QTest::addColumn<bool>("menu");
    for (int number = 0; number < static_cast<int>(std::size(Games)); ++number) {
        QTest::addRow("%s, slow", Games[number].Name) << number << false << (number % 2 == 0);
        QTest::addRow("%s, fast", Games[number].Name) << number << true << (number % 2 == 1);
    }
}

void WholeGamesTest::isWatched() {
    QFETCH(int, number);
    QFETCH(bool, fast);
    QFETCH(bool, menu);
    const Row& row = Games[number];
    Scene scene(Board(row));
    SetUp(scene, row, number + 7);
    game.RequestedClans = row.Clans;
    if (fast) {
        scene.Menu(QStringLiteral("fast_men"));
    }
    PLAY(scene, menu ? scene.Menu(QStringLiteral("watchmen")) : scene.Click(QStringLiteral("watchb")));
    QCOMPARE(scene.Asked(), 0);
    QCOMPARE(game.NumPlayers, row.Clans);
    QVERIFY(row.Victory || game.Turn == LastTurn + 1);
    for (int clan = 1; clan <= game.NumPlayers; ++clan) {
        QVERIFY(game.Players[clan].IsComputer);
    }
    QVERIFY(!game.AutoPlay);
    QCOMPARE(CheckConsistency(true), std::string());
    QVERIFY(scene.Sees(QStringLiteral("gob")));
    const auto* log = scene.Board().findChild<QTextEdit*>(QStringLiteral("txtLog"));
    const QString wins = QStringLiteral("Clan %1 wins!").arg(ToQt(game.Players[ClanAtPlace(1)].Name.View()));
    QVERIFY(log->toPlainText().contains(wins));
    QVERIFY(log->toPlainText().startsWith(QStringLiteral("Game: %1 ").arg(number + 7)));
}

// Drawing, fast mode, meddling and repetition in one process change nothing about the dice.
void WholeGamesTest::theSameNumberDealsTheSameGame() {
    std::vector<std::uint64_t> signatures;
    for (int round = 0; round < 4; ++round) {
        Scene scene;
        AutoPerson& person = scene.Player();
        game.HasRequestedReplay = true;
        game.RequestedReplay = 77;
        game.RequestedClans = 4;
        scene.Board().setUpdatesEnabled(round == 2);
        if (round == 2) {
            scene.Menu(QStringLiteral("sqno_men"));
            scene.Board().resize(1000, 700);
        }
        scene.AnswerBy([&](Question& question) {
            if (round == 1) {
                Meddle(scene, question);
            }
            if (round == 3) {
                QTest::mouseMove(&scene.Puddle(), QPoint(scene.Asked() % 300, 80));
                if (scene.Asked() % 20 == 0) {
                    scene.Board().grab();
                }
            }
            person.Answer(question);
        });
        PLAY(scene, scene.Click(QStringLiteral("gob")));
        signatures.push_back(game.Signature);
    }
    QCOMPARE(signatures[1], signatures[0]);
    QCOMPARE(signatures[2], signatures[0]);
    QCOMPARE(signatures[3], signatures[0]);
}

void WholeGamesTest::oneGameAfterAnother() {
    Scene scene;
    scene.Board().setUpdatesEnabled(false);
    AutoPerson& person = scene.Player();
    const Row rows[] = {{"", 6, 5, 5, "", false, false, 1}, {"", 3, 5, 5, "", false, false, 1}};
    for (const Row& row : rows) {
        Attend(scene, person, row);
        scene.Type(QStringLiteral("txtReplay"), QStringLiteral("9"));
        bool labels = true;
        scene.Watch = [&](const Question& question) {
            labels = labels && (question.Kind != QuestionKind::Number || question.Clan != 0 ||
                                (scene.Text(QStringLiteral("turnlab")).isEmpty() && game.AmoebaCount[1] == 0));
        };
        PLAY(scene, scene.Click(QStringLiteral("gob")));
        QVERIFY2(labels, "the turn of the game before is still shown");
        QCOMPARE(game.NumPlayers, row.Clans);
        QVERIFY(row.Clans == 6 || scene.Find(QStringLiteral("bplab%1").arg(row.Clans))->isHidden());
        QCOMPARE(scene.Find(QStringLiteral("orderlab5"))->isHidden(), row.Clans != 6);
    }
    game.RequestedClans = 4;
    PLAY(scene, scene.Click(QStringLiteral("watchb")));
    QCOMPARE(game.NumPlayers, 4);
}

WINDOW_TESTS(whole_games_test, WholeGamesTest)

}  // namespace plasmos::testing

#include "whole_games_test.moc"
