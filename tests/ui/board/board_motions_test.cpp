// SPDX-License-Identifier: GPL-3.0-or-later
//
// What happens is seen: every kind has its motion or its mark, and when it is over the window rests.

#include <QElapsedTimer>
#include <QSet>

#include "questions/ask.h"
#include "tests/ui/support/happening_stage.h"
#include "ui/board/puddle_view.h"
#include "ui/board/score_track.h"
#include "ui/strip/clan_panel.h"
#include "ui/strip/environment_view.h"

namespace plasmos::testing {

namespace {

/// Counts the paintings of a window and all that is in it.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& window) : window_(&window) { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(watched);
        Times += event->type() == QEvent::Paint && widget != nullptr && widget->window() == window_ ? 1 : 0;
        return false;
    }
    int Times = 0;

private:
    QWidget* window_;
};

ClanPanel& ClansOf(Scene& scene) {
    return *dynamic_cast<ClanPanel*>(scene.Find(QStringLiteral("bplab0"))->parentWidget());
}

EnvironmentView& EnvironmentOf(Scene& scene) {
    return *dynamic_cast<EnvironmentView*>(scene.Find(QStringLiteral("turnlab"))->parentWidget());
}

/// Where something moves just now.
QString WhatMoves(Scene& scene) {
    QString where;
    where += scene.Puddle().Motions().Runs() ? "board " : "";
    where += scene.Board().findChild<ScoreTrack*>()->Runs() ? "track " : "";
    where += ClansOf(scene).Runs() ? "clans " : "";
    where += EnvironmentOf(scene).Runs() ? "environment " : "";
    return where.trimmed();
}

/// Scenes whose happenings are only a mark, or nothing at all.
bool IsStill(std::string_view scene) {
    return scene == "a_move_to_where_it_is" || scene == "a_throw_that_stays" || scene == "a_throw_against_the_edge" ||
           scene == "no_meal";
}

/// Motions and pauses take a quarter of their time where nobody looks on.
constexpr double Briskly = 0.25;

/// What moves has come to rest in the time that a motion may take, a third of a second.
#define COMES_TO_REST(scene, speed) \
    QTRY_COMPARE_WITH_TIMEOUT(WhatMoves(scene), QString(), static_cast<int>(320 * (speed)))

const SceneRow& RowOf(std::string_view name) {
    return *std::find_if(std::begin(SceneRows), std::end(SceneRows),
                         [name](const SceneRow& row) { return row.Name == name; });
}

/// Six clans with four pieces each.
void Crowd() {
    for (int clan = 1; clan <= 6; ++clan) {
        for (int amoeba = 2; amoeba <= 4; ++amoeba) {
            Put(clan, amoeba, 1 + (clan * 7 + amoeba * 5) % 25);
        }
        game.Players[clan].MutationLevel = clan;
    }
    for (int square = 1; square <= 25; ++square) {
        Feed(square, {square % 3, square % 2, square % 5, square % 4, square % 3, square % 2});
    }
}

struct PictureRow {
    const char* Name;
    int After;  ///< milliseconds until the picture
    std::function<void()> Happens;
};

const PictureRow Pictures[] = {
    {"attack", 250, [] { RowOf("a_piece_is_torn").Happens(); }},
    {"outcome", 700, [] { RowOf("a_piece_is_eaten").Happens(); }},
    {"defence", 400,
     [] {
         Happened({.What = Kind::AttacksToEat, .Clan = 1, .Amoeba = 1, .Square = 13, .OtherClan = 2, .OtherAmoeba = 1});
         Happened({.What = Kind::Defends, .Clan = 2, .Amoeba = 1, .Square = 13, .OtherClan = 1, .OtherAmoeba = 1});
     }},
    {"birth", 120,
     [] {
         Put(4, 5, 12);
         Happened({.What = Kind::IsBorn, .Clan = 4, .Amoeba = 5, .Square = 12});
     }},
    {"meal", 120,
     [] { Happened({.What = Kind::Eats, .Clan = 1, .Amoeba = 1, .Square = 13, .Number = 211, .Second = 356}); }},
    {"food", 120,
     [] {
         Happened({.What = Kind::CarriesFood,
                   .Clan = 1,
                   .Amoeba = 1,
                   .From = 12,
                   .Square = 13,
                   .OtherClan = 4,
                   .Number = 3});
     }},
    {"hunger", 120, [] { Happened({.What = Kind::Starves, .Clan = 1, .Amoeba = 1, .Square = 13, .Number = 1}); }},
    {"card", 120, [] { RowOf("a_card").Happens(); }},
    {"upgrade", 120, [] { RowOf("an_upgrade").Happens(); }},
    {"scores", 120, [] { RowOf("scores_and_order").Happens(); }},
};

}  // namespace

class BoardMotionsTest : public QObject {
    Q_OBJECT

private slots:
    void everyHappeningIsSeen_data();
    void everyHappeningIsSeen();
    void nothingMovesInFastMode_data() { everyHappeningIsSeen_data(); }
    void nothingMovesInFastMode();
    void anAttackIsLinkedUntilItsOutcome_data();
    void anAttackIsLinkedUntilItsOutcome();
    void theOutcomeStandsBehindItsBox();
    void anotherStateShowsNoMotions();
    void theWindowRestsWhileAQuestionIsOpen();
    void pictures_data();
    void pictures();
};

void BoardMotionsTest::everyHappeningIsSeen_data() {
    QTest::addColumn<int>("row");
    for (int row = 0; row < static_cast<int>(std::size(SceneRows)); ++row) {
        QTest::addRow("%s", std::string(SceneRows[row].Name).c_str()) << row;
    }
}

void BoardMotionsTest::everyHappeningIsSeen() {
    QFETCH(int, row);
    HappeningStage stage;
    stage.Roll(SceneRows[row].Rolls);
    bool seen = false;
    const auto look = [&] { seen = seen || !WhatMoves(stage).isEmpty() || stage.Puddle().Motions().IsLinked(); };
    stage.LookWhile(
        [&] {
            QCOMPARE(WhatMoves(stage), QString());
            stage.Board().SetSpeed(Briskly);
            SceneRows[row].Happens();
            look();
        },
        look, __FILE__, __LINE__);
    QVERIFY2(seen || IsStill(SceneRows[row].Name), "nothing is seen of it");
    COMES_TO_REST(stage, Briskly);
}

void BoardMotionsTest::nothingMovesInFastMode() {
    QFETCH(int, row);
    HappeningStage stage;
    stage.Board().SetSpeed(1);
    game.FastMode = true;
    stage.Roll(SceneRows[row].Rolls);
    PHASE(stage, SceneRows[row].Happens(); QCOMPARE(WhatMoves(stage), QString()));
}

void BoardMotionsTest::anAttackIsLinkedUntilItsOutcome_data() {
    QTest::addColumn<QString>("scene");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("eaten") << "a_piece_is_eaten"
                           << "eaten";
    QTest::newRow("torn") << "a_piece_is_torn"
                          << "torn to pieces";
    QTest::newRow("wounded") << "a_wound"
                             << "wounded";
}

void BoardMotionsTest::anAttackIsLinkedUntilItsOutcome() {
    QFETCH(QString, scene);
    QFETCH(QString, outcome);
    HappeningStage stage;
    stage.Board().SetSpeed(Briskly);
    const SceneRow& row = RowOf(scene.toStdString());
    stage.Roll(row.Rolls);
    QStringList seen;
    stage.LookWhile(
        [&] {
            row.Happens();
            BeginPhase("Scoring");
            QVERIFY2(!stage.Puddle().Motions().IsLinked(), "the attack is marked in the next phase");
        },
        [&] {
            const PuddleMotions& motions = stage.Puddle().Motions();
            const QString now = !motions.IsLinked()               ? ""
                                : motions.LinkOutcome().isEmpty() ? "attack"
                                                                  : motions.LinkOutcome();
            if (seen.isEmpty() || seen.back() != now) {
                seen << now;
            }
        },
        __FILE__, __LINE__);
    seen.removeAll(QString());
    QCOMPARE(seen, (QStringList{"attack", outcome}));
}

// Who has been beaten off is seen, and in the log, before the box about it asks for OK.
void BoardMotionsTest::theOutcomeStandsBehindItsBox() {
    HappeningStage stage;
    Person(2);
    Give(2, "def");
    stage.ThenBox("B: You are being attacked!");
    stage.Then(QuestionKind::YesNo, [&] {
        QVERIFY(stage.Puddle().Motions().IsLinked());
        QCOMPARE(stage.Puddle().Motions().LinkOutcome(), QString());
        stage.Click(QStringLiteral("yesb"));
    });
    stage.Then(QuestionKind::Box, [&] {
        QVERIFY(stage.Puddle().Motions().IsLinked());
        QCOMPARE(stage.Puddle().Motions().LinkOutcome(), QStringLiteral("beaten off"));
        QVERIFY2(stage.HasLogLine(QStringLiteral("B1 (1) of B beats off A1 (1) of Player 1")),
                 qPrintable(stage.Log().join(QLatin1Char('|'))));
        stage.Click(QStringLiteral("okb"));
    });
    game.Players[2].Name = "B";
    stage.Roll({2, 4});
    PHASE(stage, EatAPiece());
}

void BoardMotionsTest::anotherStateShowsNoMotions() {
    HappeningStage stage;
    stage.Board().SetSpeed(Briskly);
    GameState earlier;
    PHASE(stage, earlier = game; stage.Board().ShowState(earlier); QTest::qWait(50); RowOf("a_piece_is_torn").Happens();
          QCOMPARE(WhatMoves(stage), QString()); QVERIFY(!stage.Puddle().Motions().IsLinked());
          stage.Board().ShowState(game));
}

void BoardMotionsTest::theWindowRestsWhileAQuestionIsOpen() {
    HappeningStage stage;
    stage.Board().SetSpeed(1);
    stage.Then(QuestionKind::Square, [&] {
        QTest::qWait(600);
        stage.Key(QStringLiteral("Picture1"), Qt::Key_Right);
        QTest::qWait(200);
        const PaintCounter paints(stage.Board());
        QTest::qWait(700);
        QCOMPARE(paints.Times, 0);
        QCOMPARE(WhatMoves(stage), QString());
        stage.ClickSquare(8);
    });
    stage.Roll({9});
    PHASE(stage, MoveAmoeba(1, 1, 14); QCOMPARE(AskSquare(3, "Where?", {6, 8}), 8));
}

void BoardMotionsTest::pictures_data() {
    QTest::addColumn<int>("picture");
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(1320, 860), QSize(940, 640)}) {
        for (int picture = 0; picture < static_cast<int>(std::size(Pictures)); ++picture) {
            QTest::addRow("%s %d", Pictures[picture].Name, size.width()) << picture << size;
        }
    }
}

// In the middle of a motion the board looks as it does not at rest.
void BoardMotionsTest::pictures() {
    QFETCH(int, picture);
    QFETCH(QSize, size);
    const PictureRow& row = Pictures[picture];
    HappeningStage stage(6);
    stage.Board().resize(size);
    Crowd();
    QImage during;
    const auto take = [&] {
        during = stage.Board().grab().toImage();
        stage.TakePicture(QStringLiteral("%1-%2").arg(QLatin1String(row.Name)).arg(size.width()));
        stage.Board().SetSpeed(0);
    };
    PHASE(stage, stage.Board().SetSpeed(1); QTimer::singleShot(row.After, &stage.Board(), take); row.Happens();
          QTRY_VERIFY(!during.isNull()));
    COMES_TO_REST(stage, 1);
    QVERIFY(during != stage.Board().grab().toImage());
}

WINDOW_TESTS(board_motions_test, BoardMotionsTest)

}  // namespace plasmos::testing

#include "board_motions_test.moc"
