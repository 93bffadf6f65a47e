// SPDX-License-Identifier: GPL-3.0-or-later
//
// Kept games that something has happened to before they are gone on with.

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <algorithm>

#include "record/play_record.h"
#include "record/record_file.h"
#include "tests/ui/support/stand.h"

namespace plasmos::testing {

namespace {

QDir GamesOf(Scene& scene) {
    return QDir(ToQt(scene.Files().GamesFolder()));
}

QStringList Kept(Scene& scene) {
    return GamesOf(scene).entryList({QStringLiteral("*.plasmos")}, QDir::Files);
}

QString KeptPath(Scene& scene) {
    return GamesOf(scene).filePath(Kept(scene).first());
}

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

class KeptRecordsTest : public QObject {
    Q_OBJECT

private slots:
    void aLineThatTheDiskDidNotTakeIsPartOfTheGame();
    void aGameThatAnotherWindowPlays();
    void whatIsNotSound_data();
    void whatIsNotSound();
    void aKeptGameByAnotherWay();
    void theOldestOfTenIsOpenedFromAnEleventh();
    void theMarksOfWhatIsAutomaticAreItsOwn();
    void withoutADataFolderNoneIsOpened();
    void aGameCountsOnce();
    void aGameCountsThatIsLeftAtItsWinnersBox();

private:
    /// Begins a game and leaves it after a few answers; it is kept then.
    static void LeaveOne(Scene& scene, float replay) {
        Deal(replay);
        scene.Then(QuestionKind::Square, [&] { scene.ClickSquare(1); });
        scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
        PLAY(scene, scene.Click(QStringLiteral("gob")));
    }
    /// Goes on with the latest one, and leaves it again.
    static void Resume(Scene& scene) {
        bool opened = false;
        scene.AnswerBy([&](Question&) {
            opened = true;
            scene.LeaveGame();
        });
        const auto resume = [&] {
            scene.Click(QStringLiteral("resumeb"));
            QTRY_VERIFY(opened && !scene.Board().Playing());
        };
        PLAY(scene, resume());
    }
    static void Change(const QString& path, const QByteArray& text) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    static std::string Wins(Scene& scene) { return scene.Settings().Get("results", "games3", "none"); }
};

/// Pieces whose lines cannot be written stay; the game that is resumed later has them where they stayed.
void KeptRecordsTest::aLineThatTheDiskDidNotTakeIsPartOfTheGame() {
    Scene scene;
    Deal(5);
    const QString moves = ToQt(scene.Files().PathOf(MoveFile));
    Stand left;
    scene.AnswerBy([&](Question& question) {
        if (game.Turn == 1 && QFileInfo(moves).isFile()) {
            QVERIFY(QFile::remove(moves) && QDir().mkdir(moves));
        }
        if (game.Turn < 2) {
            scene.Player().Answer(question);
            return;
        }
        left = StandOf(scene, question);
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(QDir().rmdir(moves));
    const auto path = KeptPath(scene);
    const auto inputs = ReadRecordFile(path.toStdString()).Record.Inputs;
    QVERIFY(std::any_of(inputs.begin(), inputs.end(), [](const Input& input) { return input.IsLostLine(); }));

    scene.AnswerBy([&](Question& question) {
        CompareStands(StandOf(scene, question), left);
        QVERIFY(scene.Board().findChildren<QMessageBox*>().isEmpty());
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("resumeb")));
}

void KeptRecordsTest::aGameThatAnotherWindowPlays() {
    Scene scene;
    Deal(5);
    scene.Then(QuestionKind::Square, [&] { scene.LeaveGame(); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    const QString path = KeptPath(scene);
    GameKeeper other(scene.Files().GamesFolder());
    other.GoOn(path.toStdString(), RecordText(ReadRecordFile(path.toStdString()).Record));
    scene.Click(QStringLiteral("resumeb"));
    const auto* box = scene.Board().findChild<QMessageBox*>();
    QVERIFY(box != nullptr && box->text().contains(QStringLiteral("is being played already")));
    QVERIFY(!scene.Board().Playing());
    QVERIFY(other.IsKept());
}

void KeptRecordsTest::whatIsNotSound_data() {
    QTest::addColumn<QByteArray>("added");
    QTest::addColumn<bool>("stays");
    QTest::newRow("another way than it went") << QByteArray("nobody\nsquare 1\n") << true;
    QTest::newRow("half a line, where the power went") << QByteArray("04aa squ") << false;
}

/// A record that does not fit is left as it is for whoever wants to know why, and the game goes on in a file of its
/// own.
void KeptRecordsTest::whatIsNotSound() {
    QFETCH(QByteArray, added);
    QFETCH(bool, stays);
    Scene scene;
    LeaveOne(scene, 5);
    const QString path = KeptPath(scene);
    const QByteArray whole = BytesOf(path);
    Change(path, whole + added);
    Resume(scene);
    QCOMPARE(BytesOf(path), stays ? whole + added : whole);
    QCOMPARE(Kept(scene).size(), stays ? 2 : 1);
}

void KeptRecordsTest::aKeptGameByAnotherWay() {
    Scene scene;
    LeaveOne(scene, 5);
    const QString link = scene.Folder() + QStringLiteral("/link.plasmos");
    QVERIFY(QFile::link(KeptPath(scene), link));
    bool opened = false;
    scene.AnswerBy([&](Question&) {
        opened = true;
        QCOMPARE(Kept(scene).size(), 1);
        scene.LeaveGame();
    });
    const auto open = [&] {
        scene.Board().OpenGame(link);
        QTRY_VERIFY(opened && !scene.Board().Playing());
    };
    PLAY(scene, open());
    QCOMPARE(Kept(scene).size(), 1);
    QCOMPARE(scene.Settings().Get("record", "file1", ""), std::string());
}

void KeptRecordsTest::theOldestOfTenIsOpenedFromAnEleventh() {
    Scene scene;
    for (int number = 1; number <= 10; ++number) {
        LeaveOne(scene, static_cast<float>(number));
    }
    QCOMPARE(Kept(scene).size(), 10);
    const QString oldest = ToQt(KeptGames(scene.Files().GamesFolder()).back().Path);
    Deal(11);
    bool there = false;
    bool opened = false;
    scene.AnswerBy([&](Question&) {
        if (game.ReplayNo == 11) {
            scene.Board().OpenGame(oldest);
            return;
        }
        opened = true;
        there = QFile::exists(oldest);
        QCOMPARE(game.ReplayNo, 1.0F);
        scene.LeaveGame();
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(opened && there);
}

/// One game is left in which the person's amoebas eat by themselves, and another in which they do not.
void KeptRecordsTest::theMarksOfWhatIsAutomaticAreItsOwn() {
    Scene scene;
    const auto eating = [&] { return scene.Item(QStringLiteral("autoeat_men"))->isChecked(); };
    const auto leaveInTheFirstTurn = [&](float replay, bool eats) {
        Deal(replay);
        scene.AnswerBy([&, eats](Question& question) {
            if (game.Turn == 0 || question.Kind == QuestionKind::Box || game.CurPlayer != 3) {
                scene.Player().Answer(question);
                return;
            }
            if (eats) {
                scene.Menu(QStringLiteral("autoeat_men"));
            }
            QCOMPARE(eating(), eats);
            scene.LeaveGame();
        });
        PLAY(scene, scene.Click(QStringLiteral("gob")));
    };
    leaveInTheFirstTurn(5, true);
    const QString eats = KeptPath(scene);
    leaveInTheFirstTurn(6, false);
    int opened = 0;
    scene.AnswerBy([&](Question&) {
        ++opened;
        QCOMPARE(eating(), game.ReplayNo == 5);
        QVERIFY(scene.Item(QStringLiteral("autoeat_men"))->isEnabled());
        scene.LeaveGame();
    });
    const auto both = [&] {
        scene.Board().OpenGame(eats);
        QTRY_VERIFY(opened == 1 && !scene.Board().Playing());
        scene.Board().OpenGame(GamesOf(scene).filePath(Kept(scene).last()));
        QTRY_VERIFY(opened == 2 && !scene.Board().Playing());
    };
    PLAY(scene, both());
}

void KeptRecordsTest::withoutADataFolderNoneIsOpened() {
    Scene scene;
    LeaveOne(scene, 5);
    const QTemporaryDir away;
    QDir folder(ToQt(scene.Files().PathOf("")));
    QVERIFY(QFile::copy(KeptPath(scene), away.filePath(QStringLiteral("saved.plasmos"))));
    QVERIFY(folder.removeRecursively());
    QFile inTheWay(folder.absolutePath());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    scene.Board().OpenGame(away.filePath(QStringLiteral("saved.plasmos")));
    const auto* box = scene.Board().findChild<QMessageBox*>();
    QVERIFY(box != nullptr && box->text().startsWith(QStringLiteral("The data folder cannot be made.")));
    QVERIFY(!scene.Board().Playing());
}

/// Played to its end, taken back, left, resumed and played to its end again.
void KeptRecordsTest::aGameCountsOnce() {
    Scene scene;
    Deal(5);
    scene.AnswerBy([&](Question& question) { scene.Player().Answer(question); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QCOMPARE(Wins(scene), std::string("1"));
    scene.AnswerBy([&](Question&) { scene.LeaveGame(); });
    const auto back = [&] {
        scene.Menu(QStringLiteral("backmen"));
        QTRY_VERIFY(!scene.Board().Playing() && Kept(scene).size() == 1);
    };
    PLAY(scene, back());
    scene.AnswerBy([&](Question& question) { scene.Player().Answer(question); });
    const auto resume = [&] {
        scene.Click(QStringLiteral("resumeb"));
        QTRY_VERIFY(IsOver() && !scene.Board().Playing());
    };
    PLAY(scene, resume());
    QCOMPARE(Kept(scene).size(), 0);
    QCOMPARE(Wins(scene), std::string("1"));
}

void KeptRecordsTest::aGameCountsThatIsLeftAtItsWinnersBox() {
    Scene scene;
    LeaveOne(scene, 6);
    const QString other = KeptPath(scene);
    Deal(5);
    bool opened = false;
    scene.AnswerBy([&](Question& question) {
        if (game.ReplayNo == 6) {
            opened = true;
            scene.LeaveGame();
        } else if (question.Kind == QuestionKind::Box && IsOver()) {
            scene.Board().OpenGame(other);
        } else {
            scene.Player().Answer(question);
        }
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY(opened);
    QCOMPARE(Wins(scene), std::string("1"));
}

WINDOW_TESTS(kept_records_test, KeptRecordsTest)

}  // namespace plasmos::testing

#include "kept_records_test.moc"
