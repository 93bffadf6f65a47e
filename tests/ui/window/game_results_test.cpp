// SPDX-License-Identifier: GPL-3.0-or-later
//
// How a game came out, and the person's record of all games.

#include "ui/window/game_results.h"
#include <QLabel>
#include "ui/app/auto_person.h"

#include "files/settings_store.h"
#include "tests/ui/support/scene.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

/// A game that is over: the score of clan 1, 2, ... and which of them are persons.
void Over(std::initializer_list<int> scores, std::initializer_list<int> persons) {
    ResetTables();
    game.NumPlayers = static_cast<int>(scores.size());
    int clan = 0;
    for (const int score : scores) {
        ++clan;
        game.Players[clan].Score = score;
        game.Players[clan].Name = Concat("Clan ", clan);
        game.Players[clan].IsComputer = std::find(persons.begin(), persons.end(), clan) == persons.end();
    }
    std::vector<int> order;
    for (clan = 1; clan <= game.NumPlayers; ++clan) {
        order.push_back(clan);
    }
    std::stable_sort(order.begin(), order.end(),
                     [](int one, int other) { return game.Players[one].Score > game.Players[other].Score; });
    for (std::size_t place = 0; place < order.size(); ++place) {
        game.PlayOrder[static_cast<int>(place) + 1] = order[place];
    }
}

}  // namespace

class GameResultsTest : public QObject {
    Q_OBJECT

private slots:
    void told();
    void aWinAndALossAreNoted();
    void otherNumbersOfClansAreCountedByThemselves();
    void gamesOfTwoPersonsAndOfNoneAreNotCounted();
    void damagedRecordsCountAsNone();
    void theCardStaysAndCountsOnce();
    void aGameThatIsLeftIsNoWelcome();
    void theRecordIsCleared();
};

void GameResultsTest::told() {
    Over({12, 33, 29}, {1});
    QCOMPARE(TellResult(game), std::string("Clan 2 wins with 33 points, 4 more than Clan 3."));
    QCOMPARE(TellPlaces(game), std::string("1. Clan 2 33   2. Clan 3 29   3. Clan 1 12"));
    Over({20, 20, 1}, {});
    QCOMPARE(TellResult(game), std::string("Clan 1 wins with 20 points, before Clan 2."));
    QCOMPARE(TellRecord({1, 1, 9}, 3),
             std::string("You have played 1 game with 3 clans and won 1; your best score is 9."));
    QCOMPARE(TellRecord({3, 0, 31}, 4),
             std::string("You have played 3 games with 4 clans and won 0 of them; your best score is 31."));
}

void GameResultsTest::aWinAndALossAreNoted() {
    MemorySettings store;
    Over({12, 33, 29}, {2});
    QVERIFY(NoteGame(store, game));
    Over({40, 30, 29}, {2});
    QVERIFY(NoteGame(store, game));
    const PersonRecord record = LoadRecord(store, 3);
    QCOMPARE(record.Games, 2);
    QCOMPARE(record.Wins, 1);
    QCOMPARE(record.Best, 33);
}

void GameResultsTest::otherNumbersOfClansAreCountedByThemselves() {
    MemorySettings store;
    Over({12, 33, 29, 1}, {2});
    QVERIFY(NoteGame(store, game));
    QCOMPARE(LoadRecord(store, 4).Games, 1);
    QCOMPARE(LoadRecord(store, 3).Games, 0);
}

void GameResultsTest::gamesOfTwoPersonsAndOfNoneAreNotCounted() {
    MemorySettings store;
    Over({12, 33, 29}, {2, 3});
    QVERIFY(NoteGame(store, game));
    Over({12, 33, 29}, {});
    QVERIFY(NoteGame(store, game));
    QVERIFY(store.Values.empty());
}

void GameResultsTest::damagedRecordsCountAsNone() {
    MemorySettings store;
    store.Save("results", "games3", "many");
    store.Save("results", "wins3", "-4");
    store.Save("results", "best3", "99999999999");
    const PersonRecord record = LoadRecord(store, 3);
    QCOMPARE(record.Games + record.Wins + record.Best, 0);
}

void GameResultsTest::theCardStaysAndCountsOnce() {
    Scene scene;
    game.RequestedClans = 4;
    game.HasRequestedReplay = true;
    game.RequestedReplay = 2;
    scene.AnswerBy([&](Question& question) { scene.Player().Answer(question); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(LoadRecord(scene.Settings(), 4).Games, 1);
    bool told = false;
    for (const QLabel* label : scene.Board().findChildren<QLabel*>()) {
        told = told || (label->isVisible() && label->text().contains(ToQt(TellResult(game))) &&
                        label->text().contains(QStringLiteral("You have played 1 game with 4 clans")));
    }
    QVERIFY(told);
    scene.Reopen();
    QCOMPARE(LoadRecord(scene.Settings(), 4).Games, 1);
}

void GameResultsTest::aGameThatIsLeftIsNoWelcome() {
    Scene scene;
    QCOMPARE(scene.Text(QStringLiteral("titlelab")), QStringLiteral("Welcome to the Puddle"));
    game.RequestedClans = 3;
    scene.AnswerBy([&](Question& question) { game.Turn < 2 ? scene.Player().Answer(question) : scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(scene.Text(QStringLiteral("titlelab")), QStringLiteral("This game was left"));
    QCOMPARE(LoadRecord(scene.Settings(), 3).Games, 0);
    scene.Menu(QStringLiteral("clearmen"));
    scene.Click(QStringLiteral("leaveb"));
    QCOMPARE(scene.Text(QStringLiteral("titlelab")), QStringLiteral("This game was left"));
    game.RequestedClans = 0;
    scene.AnswerBy([&](Question&) { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(scene.Text(QStringLiteral("titlelab")), QStringLiteral("Welcome to the Puddle"));
}

void GameResultsTest::theRecordIsCleared() {
    Scene scene({{"results", "games5", "7"}, {"results", "wins5", "3"}, {"results", "best5", "40"}});
    QCOMPARE(LoadRecord(scene.Settings(), 5).Games, 7);
    scene.Menu(QStringLiteral("clearmen"));
    scene.Click(QStringLiteral("leaveb"));
    QCOMPARE(LoadRecord(scene.Settings(), 5).Games, 0);
    QCOMPARE(LoadRecord(scene.Settings(), 5).Best, 0);
}

WINDOW_TESTS(game_results_test, GameResultsTest)

}  // namespace plasmos::testing

#include "game_results_test.moc"
