// SPDX-License-Identifier: GPL-3.0-or-later
//
// Answers are taken back and given again.

#include <QAction>
#include <QDir>

#include "record/play_record.h"
#include "record/record_file.h"

#include "tests/ui/support/stand.h"

namespace plasmos::testing {

namespace {

const QString Back = QStringLiteral("backmen");
const QString Again = QStringLiteral("againmen");

}  // namespace

class TakingBackTest : public QObject {
    Q_OBJECT

private slots:
    void everyAnswerIsTakenBackAndGivenAgain();
    void theSameAnswerMeetsTheSameDice();
    void anotherAnswerForgetsWhatWasTakenBack();
    void keysTakeBackWhateverHasTheKeyboard();
    void afterTheWinnersBox();
    void twoPersonsTakeBackTheirOwn();
    void aFastModeIsTakenBackToo();
    void theNumberOfClansIsTakenBack();
    void theMarksAreThePersonsAgain();
};

/// Plays on; after so many questions goes back as far as it goes, and on again to where it was.
void TakingBackTest::everyAnswerIsTakenBackAndGivenAgain() {
    Scene scene;
    Deal(5);
    std::vector<Stand> stands;
    int back = 0;
    int seen = 0;
    bool again = false;
    std::size_t asked = 0;
    scene.AnswerBy([&](Question& question) {
        if (question.Kind == QuestionKind::Box) {
            scene.Player().Answer(question);
            return;
        }
        const auto& places = scene.Board().History().Records().Recorder()->Places();
        if (back == 0 && !again && places.size() == asked) {
            scene.Player().Answer(question);  // the same dialog, a step further
            return;
        }
        asked = places.size();
        if (back == 0 && !again) {
            stands.push_back(StandOf(scene, question));
            if (++seen < 25) {
                scene.Player().Answer(question);
                return;
            }
            back = static_cast<int>(stands.size()) - 1;
            scene.Menu(Back);
            return;
        }
        if (!again) {
            CompareStands(StandOf(scene, question), stands[static_cast<std::size_t>(--back)]);
            if (back > 0) {
                scene.Menu(Back);
                return;
            }
            again = true;
            QVERIFY(!scene.Board().History().Records().CanTakeBack());
        } else {
            CompareStands(StandOf(scene, question), stands[static_cast<std::size_t>(++back)]);
        }
        if (scene.Board().History().Records().CanGoAgain()) {
            scene.Menu(Again);
        } else {
            QCOMPARE(back, static_cast<int>(stands.size()) - 1);
            scene.LeaveGame();
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(again);
}

void TakingBackTest::theSameAnswerMeetsTheSameDice() {
    Scene scene;
    Deal(7);
    std::vector<std::uint64_t> signatures;
    int seen = 0;
    scene.AnswerBy([&](Question& question) {
        if (question.Kind == QuestionKind::Box || ++seen < 6) {
            scene.Player().Answer(question);
            return;
        }
        signatures.push_back(game.Signature);
        if (seen == 12) {
            scene.LeaveGame();
        } else if (seen % 2 == 0) {
            scene.Player().Answer(question);
        } else {
            scene.Menu(Back);
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(signatures.size(), 7U);
    for (std::size_t i = 2; i < signatures.size(); ++i) {
        QCOMPARE(signatures[i], signatures[i - 2]);
    }
}

void TakingBackTest::anotherAnswerForgetsWhatWasTakenBack() {
    Scene scene;
    Deal(5);
    scene.Then(QuestionKind::Square, [&] { scene.ClickSquare(1); });
    scene.Then(QuestionKind::Square, [&] { scene.Menu(Back); });
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(scene.Board().History().Records().CanGoAgain());
        scene.ClickSquare(2);
    });
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(!scene.Board().History().Records().CanGoAgain());
        QVERIFY(game.Occupancy[2][3] == 1 && game.Occupancy[1][3] == 0);
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

void TakingBackTest::keysTakeBackWhateverHasTheKeyboard() {
    Scene scene;
    Deal(5);
    int foods = 0;
    scene.AnswerBy([&](Question& question) {
        if (question.Kind != QuestionKind::Food) {
            scene.Player().Answer(question);
            return;
        }
        if (++foods == 1) {
            scene.Type(QStringLiteral("fdtxt1"), QStringLiteral("1"));
            QTest::keyClick(scene.Board().windowHandle(), Qt::Key_Z, Qt::ControlModifier);
        } else {
            QCOMPARE(scene.Text(QStringLiteral("fdtxt1")), QStringLiteral("0"));
            scene.LeaveGame();
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(foods, 2);
}

void TakingBackTest::afterTheWinnersBox() {
    Scene scene;
    Deal(5);
    scene.AnswerBy([&](Question& question) { scene.Player().Answer(question); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(IsOver());
    QCOMPARE(scene.Settings().Get("results", "games3", "none"), std::string("1"));
    bool back = false;
    scene.AnswerBy([&](Question& question) {
        QVERIFY(back || game.Turn <= LastTurn);
        back = true;
        scene.Player().Answer(question);
    });
    PLAY(scene, scene.Menu(Back));
    QTRY_VERIFY(back);
    QTRY_VERIFY(!scene.Board().Playing());
    QVERIFY(IsOver());
    QCOMPARE(scene.Settings().Get("results", "games3", "none"), std::string("1"));
}

void TakingBackTest::twoPersonsTakeBackTheirOwn() {
    Scene scene;
    game.Menu.twoplayermen = true;
    Deal(5);
    std::vector<std::pair<int, std::size_t>> asked;
    int seen = 0;
    std::size_t expected = 0;
    scene.AnswerBy([&](Question& question) {
        if (question.Kind == QuestionKind::Box) {
            scene.Player().Answer(question);
            return;
        }
        const auto inputs = scene.Board().History().Records().Recorder()->Inputs.size();
        if (expected > 0) {
            QCOMPARE(inputs, expected);
            QCOMPARE(question.Clan, asked.back().first);
            scene.LeaveGame();
            return;
        }
        asked.emplace_back(question.Clan, inputs);
        const auto count = asked.size();
        if (++seen > 8 && asked[count - 2].first != question.Clan) {
            for (std::size_t i = 0; i + 1 < count; ++i) {
                expected = asked[i].first == question.Clan ? asked[i].second : expected;
            }
            scene.Menu(Back);
            return;
        }
        scene.Player().Answer(question);
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(expected > 0);
}

void TakingBackTest::aFastModeIsTakenBackToo() {
    Scene scene;
    Deal(5);
    scene.Then(QuestionKind::Square, [&] {
        scene.Menu(QStringLiteral("fast_men"));
        scene.ClickSquare(1);
    });
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(game.FastMode);
        scene.Menu(Back);
    });
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(!game.FastMode);
        QVERIFY(!scene.Item(QStringLiteral("fast_men"))->isChecked());
        scene.Menu(QStringLiteral("victorymen"));
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY2(scene.Item(QStringLiteral("fast_men"))->isChecked(), "the person wants fast games, and saved that");
    QVERIFY2(scene.Item(QStringLiteral("victorymen"))->isChecked(), "what has been turned since stays");
}

/// Before the deal there is no record yet; another number of clans is another game, in the same file.
void TakingBackTest::theNumberOfClansIsTakenBack() {
    Scene scene;
    game.HasRequestedReplay = true;
    game.RequestedReplay = 5;
    const auto choose = [&](int clans) { scene.Click(QStringLiteral("amopt%1").arg(clans)); };
    const auto kept = [&] {
        const QDir games(ToQt(scene.Files().GamesFolder()));
        const QStringList files = games.entryList({QStringLiteral("*.plasmos")}, QDir::Files);
        return files.size() == 1 ? ReadRecordFile(games.filePath(files.first()).toStdString()) : ReadRecord();
    };
    scene.Then(QuestionKind::Number, [&] { choose(3); });
    scene.Then(QuestionKind::Square, [&] { scene.Menu(Back); });
    scene.Then(QuestionKind::Number, [&] { scene.Menu(Again); });
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(game.NumPlayers, 3);
        QCOMPARE(kept().Fault.Told(), std::string());
        QCOMPARE(kept().Record.Inputs.size(), 1U);
        scene.Menu(Back);
    });
    scene.Then(QuestionKind::Number, [&] { choose(6); });
    scene.Then(QuestionKind::Square, [&] {
        QCOMPARE(game.NumPlayers, 6);
        QVERIFY(!game.Amoeba[1][6].Name.Empty());
        QVERIFY(!scene.Board().History().Records().CanGoAgain());
        QCOMPARE(kept().Fault.Told(), std::string());
        QCOMPARE(kept().Record.Head.Clans, 6);
        scene.ClickSquare(1);
    });
    scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(kept().Fault.Told(), std::string());
    QCOMPARE(kept().Record.Inputs.size(), 2U);
    QCOMPARE(PlayRecordApart(kept().Record).Fault, std::string());
}

void TakingBackTest::theMarksAreThePersonsAgain() {
    Scene scene;
    scene.Menu(QStringLiteral("easymen"));
    Deal(5);
    scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    scene.Menu(QStringLiteral("normmen"));
    bool resumed = false;
    scene.AnswerBy([&](Question&) {
        resumed = true;
        QVERIFY(!game.Menu.normmen && !scene.Item(QStringLiteral("normmen"))->isChecked());
        scene.LeaveGame();
    });
    const auto resume = [&] {
        scene.Click(QStringLiteral("resumeb"));
        QTRY_VERIFY(resumed && !scene.Board().Playing());
    };
    PLAY(scene, resume());
    QVERIFY(game.Menu.normmen && scene.Item(QStringLiteral("normmen"))->isChecked());
}

WINDOW_TESTS(taking_back_test, TakingBackTest)

}  // namespace plasmos::testing

#include "taking_back_test.moc"
