// SPDX-License-Identifier: GPL-3.0-or-later
//
// The record of a game in the window: taken back and gone through again, kept, resumed, saved and opened.

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>

#include "record/play_record.h"
#include "record/record_file.h"
#include "tests/ui/support/scene.h"
#include "ui/app/auto_person.h"
#include "ui/window/record_desk.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

const QString Back = QStringLiteral("backmen");
const QString Again = QStringLiteral("againmen");

/// What a person sees of where the game stands.
struct Stand {
    std::uint64_t Signature = 0;
    QString Question;
    QStringList Log;
};

void CompareStands(const Stand& now, const Stand& then) {
    QCOMPARE(now.Question, then.Question);
    QCOMPARE(now.Signature, then.Signature);
    QCOMPARE(now.Log.join(QLatin1Char('\n')), then.Log.join(QLatin1Char('\n')));
}

Stand StandOf(Scene& scene, const Question& question) {
    QStringList log = scene.Log();
    if (!log.isEmpty()) {
        log.removeFirst();  // the time of day
    }
    return {game.Signature, ToQt(question.Text), log};
}

/// Types a file's name, which has the keyboard in such a dialog, and presses Return.
void GiveName(QFileDialog& dialog, const QString& path) {
    QTRY_VERIFY(dialog.isVisible() && dialog.focusWidget() != nullptr);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(dialog.focusWidget(), path);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
}

}  // namespace

class RecordsTest : public QObject {
    Q_OBJECT

private slots:
    void everyAnswerIsTakenBackAndGivenAgain();
    void theSameAnswerMeetsTheSameDice();
    void anotherAnswerForgetsWhatWasTakenBack();
    void keysTakeBackWhateverHasTheKeyboard();
    void afterTheWinnersBox();
    void twoPersonsTakeBackTheirOwn();
    void aFastModeIsTakenBackToo();
    void leavingAsksNothingAndTheGameWaits();
    void aClosedWindowOffersTheGame();
    void theLastTenAreKept();
    void aGameThatIsOverIsNotKept();
    void savedAndOpened();
    void openedInTheMiddleOfAnother();
    void ofAnotherBoard();
    void recordsThatDoNotFit_data();
    void recordsThatDoNotFit();
    void aGameThatCannotBeKeptGoesOn();

private:
    static QString GamesOf(Scene& scene) { return ToQt(scene.Files().GamesFolder()); }
    static QStringList Kept(Scene& scene) {
        return QDir(GamesOf(scene)).entryList({QStringLiteral("*.plasmos")}, QDir::Files);
    }
    static void Deal(float replay, int clans = 3) {
        game.RequestedClans = clans;
        game.HasRequestedReplay = true;
        game.RequestedReplay = replay;
    }
};

/// Plays on; after so many questions goes back as far as it goes, and on again to where it was.
void RecordsTest::everyAnswerIsTakenBackAndGivenAgain() {
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
        const auto& places = scene.Board().Records().Recorder()->Places();
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
            QVERIFY(!scene.Board().Records().CanTakeBack());
        } else {
            CompareStands(StandOf(scene, question), stands[static_cast<std::size_t>(++back)]);
        }
        if (scene.Board().Records().CanGoAgain()) {
            scene.Menu(Again);
        } else {
            QCOMPARE(back, static_cast<int>(stands.size()) - 1);
            scene.LeaveGame();
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(again);
}

void RecordsTest::theSameAnswerMeetsTheSameDice() {
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

void RecordsTest::anotherAnswerForgetsWhatWasTakenBack() {
    Scene scene;
    Deal(5);
    scene.Then(QuestionKind::Square, [&] { scene.ClickSquare(1); });
    scene.Then(QuestionKind::Square, [&] { scene.Menu(Back); });
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(scene.Board().Records().CanGoAgain());
        scene.ClickSquare(2);
    });
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY(!scene.Board().Records().CanGoAgain());
        QVERIFY(game.Occupancy[2][3] == 1 && game.Occupancy[1][3] == 0);
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

void RecordsTest::keysTakeBackWhateverHasTheKeyboard() {
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

void RecordsTest::afterTheWinnersBox() {
    Scene scene;
    Deal(5);
    scene.AnswerBy([&](Question& question) { scene.Player().Answer(question); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(game.Turn > LastTurn || game.GameOver);
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
    QVERIFY(game.Turn > LastTurn || game.GameOver);
    QCOMPARE(scene.Settings().Get("results", "games3", "none"), std::string("1"));
}

void RecordsTest::twoPersonsTakeBackTheirOwn() {
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
        const auto inputs = scene.Board().Records().Recorder()->Inputs.size();
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

void RecordsTest::aFastModeIsTakenBackToo() {
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
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

// ---- kept ----

void RecordsTest::leavingAsksNothingAndTheGameWaits() {
    Scene scene;
    Deal(5);
    Stand stood;
    scene.Then(QuestionKind::Square, [&] { scene.ClickSquare(1); });
    scene.Watch = [&](Question& question) { stood = StandOf(scene, question); };
    scene.Then(QuestionKind::Square, [&] {
        scene.Menu(QStringLiteral("leavemen"));
        QVERIFY(!scene.Sees(QStringLiteral("leavebox")));
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(Kept(scene).size(), 1);
    QVERIFY(scene.Sees(QStringLiteral("resumeb")));
    QCOMPARE(scene.Text(QStringLiteral("resumelab")), QStringLiteral("Before the first turn, 3 clans"));
    const Stand left = stood;
    bool resumed = false;
    scene.Watch = nullptr;
    scene.AnswerBy([&](Question& question) {
        resumed = true;
        CompareStands(StandOf(scene, question), left);
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("resumeb")));
    QTRY_VERIFY(resumed && !scene.Board().Playing());
    QCOMPARE(Kept(scene).size(), 1);
}

void RecordsTest::aClosedWindowOffersTheGame() {
    Scene scene;
    Deal(5);
    int seen = 0;
    std::uint64_t signature = 0;
    scene.AnswerBy([&](Question& question) {
        if (++seen == 15) {
            signature = game.Signature;
            scene.Board().close();
        } else {
            scene.Player().Answer(question);
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(!scene.Board().isVisible());
    scene.Reopen();
    QVERIFY(scene.Sees(QStringLiteral("resumeb")));
    QVERIFY2(scene.Board().focusWidget() == scene.Find(QStringLiteral("gob")), "it never asks in the way");
    bool resumed = false;
    scene.AnswerBy([&](Question&) {
        resumed = true;
        QCOMPARE(game.Signature, signature);
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("resumeb")));
    QTRY_VERIFY(resumed && !scene.Board().Playing());
}

void RecordsTest::theLastTenAreKept() {
    Scene scene;
    for (int number = 1; number <= 12; ++number) {
        Deal(static_cast<float>(number));
        scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
        PLAY(scene, scene.Click(QStringLiteral("gob")));
    }
    QCOMPARE(Kept(scene).size(), 10);
    auto* recent = scene.Board().findChild<QMenu*>(QStringLiteral("recentmen"));
    emit recent->aboutToShow();
    QCOMPARE(recent->actions().size(), 10);
    QVERIFY(recent->actions().first()->text().startsWith(QStringLiteral("Before the first turn, 3 clans (")));
}

void RecordsTest::aGameThatIsOverIsNotKept() {
    Scene scene;
    Deal(5);
    scene.AnswerBy([&](Question& question) { scene.Player().Answer(question); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(Kept(scene).size(), 0);
    QVERIFY(!scene.Sees(QStringLiteral("resumeb")));
}

// ---- saved and opened ----

void RecordsTest::savedAndOpened() {
    Scene scene;
    Deal(5);
    const QString path = scene.Folder() + QStringLiteral("/mine.plasmos");
    int seen = 0;
    Stand saved;
    scene.AnswerBy([&](Question& question) {
        if (++seen < 20 || question.Kind == QuestionKind::Box) {
            scene.Player().Answer(question);
            return;
        }
        saved = StandOf(scene, question);
        scene.Menu(QStringLiteral("savemen"));
        auto* dialog = scene.Board().findChild<QFileDialog*>(QStringLiteral("savedialog"));
        QVERIFY(dialog != nullptr && dialog->isVisible());
        QVERIFY2(scene.Board().Playing(), "the game waits behind the dialog");
        GiveName(*dialog, path);
        QTRY_VERIFY(QFile::exists(path));
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(ReadRecordFile(path.toStdString()).Fault.Told(), std::string());
    bool opened = false;
    scene.AnswerBy([&](Question& question) {
        opened = true;
        CompareStands(StandOf(scene, question), saved);
        scene.LeaveGame();
    });
    const auto open = [&] {
        scene.Menu(QStringLiteral("openmen"));
        auto* dialog = scene.Board().findChild<QFileDialog*>(QStringLiteral("opendialog"));
        QVERIFY(dialog != nullptr && dialog->isVisible());
        GiveName(*dialog, path);
        QTRY_VERIFY(opened && !scene.Board().Playing());
    };
    PLAY(scene, open());
    auto* recent = scene.Board().findChild<QMenu*>(QStringLiteral("recentmen"));
    emit recent->aboutToShow();
    QCOMPARE(recent->actions().last()->text(), QStringLiteral("mine.plasmos"));
}

void RecordsTest::openedInTheMiddleOfAnother() {
    Scene scene;
    Deal(5);
    scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    const QString first = Kept(scene).first();
    Deal(6);
    int seen = 0;
    scene.AnswerBy([&](Question& question) {
        if (++seen == 5) {
            scene.Board().OpenGame(GamesOf(scene) + QStringLiteral("/") + first);
        } else if (game.ReplayNo == 5) {
            scene.LeaveGame();
        } else {
            scene.Player().Answer(question);
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(seen, 6);
    QCOMPARE(Kept(scene).size(), 2);
}

void RecordsTest::ofAnotherBoard() {
    Scene scene({{"board", "rows", "4"}, {"board", "cols", "4"}});
    Deal(5);
    scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    const QString path = GamesOf(scene) + QStringLiteral("/") + Kept(scene).first();
    QFile::copy(path, scene.Folder() + QStringLiteral("/small.plasmos"));
    scene.Settings().Save("board", "rows", "6");
    scene.Settings().Save("board", "cols", "6");
    scene.Reopen();
    QCOMPARE(game.NumSquares, 36);
    bool opened = false;
    scene.AnswerBy([&](Question&) {
        QCOMPARE(game.NumSquares, 16);
        if (std::exchange(opened, true)) {
            scene.LeaveGame();
        } else {
            scene.ClickSquare(16);
        }
    });
    const auto open = [&] {
        scene.Board().OpenGame(scene.Folder() + QStringLiteral("/small.plasmos"));
        QTRY_VERIFY(opened && !scene.Board().Playing());
    };
    PLAY(scene, open());
    scene.AnswerBy(nullptr);
    Deal(8);
    scene.Then(QuestionKind::Square, [&] {
        QVERIFY2(game.NumSquares == 36, "a new game is played on the person's own board");
        scene.ClickSquare(36);
    });
    scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
}

void RecordsTest::recordsThatDoNotFit_data() {
    QTest::addColumn<QString>("old");
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("told");
    QTest::addColumn<bool>("opens");
    QTest::newRow("cut off") << QStringLiteral("\nend") << QStringLiteral("\nsqu") << QStringLiteral("is cut off")
                             << true;
    QTest::newRow("other rules") << QStringLiteral("rules 1") << QStringLiteral("rules 9")
                                 << QStringLiteral("line 2: the game was played by version 9") << false;
    QTest::newRow("no record") << QStringLiteral("Plasmos game record 1") << QStringLiteral("Dear diary")
                               << QStringLiteral("line 1: \"Dear diary\" stands where") << false;
    QTest::newRow("an answer too many") << QStringLiteral("\nend") << QStringLiteral("\nnobody\nsquare 1\n")
                                        << QStringLiteral("is refused here") << true;
    QTest::newRow("a large board") << QStringLiteral("rows 5") << QStringLiteral("rows 9")
                                   << QStringLiteral("at most 36") << false;
}

void RecordsTest::recordsThatDoNotFit() {
    QFETCH(QString, old);
    QFETCH(QString, change);
    QFETCH(QString, told);
    QFETCH(bool, opens);
    Scene scene;
    Deal(5);
    scene.Then(QuestionKind::Square, [&] { scene.ClickSquare(1); });
    scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QFile kept(GamesOf(scene) + QStringLiteral("/") + Kept(scene).first());
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QString text = QString::fromUtf8(kept.readAll()) + QStringLiteral("end");
    QVERIFY(text.contains(old));
    text.replace(old, change);
    text.remove(QRegularExpression(QStringLiteral("end$")));
    const QString path = scene.Folder() + QStringLiteral("/odd.plasmos");
    QFile odd(path);
    QVERIFY(odd.open(QIODevice::WriteOnly));
    odd.write(text.toUtf8());
    odd.close();
    bool opened = false;
    scene.AnswerBy([&](Question&) {
        opened = true;
        scene.LeaveGame();
    });
    const auto open = [&] {
        scene.Board().OpenGame(path);
        const auto* box = scene.Board().findChild<QMessageBox*>();
        QVERIFY(box != nullptr && box->text().contains(told));
        QCOMPARE(box->text().contains(QStringLiteral("as far as it is sound")), opens);
        QTRY_VERIFY(opened == opens && !scene.Board().Playing());
    };
    PLAY(scene, open());
    QVERIFY(odd.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(odd.readAll()), text);
}

void RecordsTest::aGameThatCannotBeKeptGoesOn() {
    Scene scene;
    scene.Files().Rewrite("Games", "in the way");
    Deal(5);
    int seen = 0;
    scene.AnswerBy([&](Question& question) {
        ++seen;
        if (seen == 10) {
            QCOMPARE(scene.Board().findChildren<QMessageBox*>().size(), 1);
            QVERIFY(scene.Board().findChild<QMessageBox*>()->text().contains(QStringLiteral("cannot be kept in")));
            QVERIFY(QFile::remove(GamesOf(scene)));
        }
        if (seen == 14) {
            QCOMPARE(Kept(scene).size(), 1);
            QVERIFY(QDir(GamesOf(scene)).removeRecursively());
        }
        if (seen < 20) {
            scene.Player().Answer(question);
        } else {
            scene.LeaveGame();
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(Kept(scene).size(), 1);
    const auto path = GamesOf(scene) + QStringLiteral("/") + Kept(scene).first();
    const ReadRecord read = ReadRecordFile(path.toStdString());
    QCOMPARE(read.Fault.Told(), std::string());
    const PlayedRecord played = PlayRecordApart(read.Record);
    QCOMPARE(played.Fault, std::string());
    QCOMPARE(played.State.Signature, game.Signature);
}

}  // namespace plasmos::testing

int main(int argc, char** argv) {
    return plasmos::testing::RunWindowTests<plasmos::testing::RecordsTest>(argc, argv);
}

#include "records_test.moc"
