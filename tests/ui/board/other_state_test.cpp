// SPDX-License-Identifier: GPL-3.0-or-later
//
// The window shows an earlier state while the game has gone on, and the game is none the wiser.

#include <QImage>
#include <cstring>
#include <vector>

#include "model/happening.h"
#include "rules/move_amoeba.h"
#include "tests/ui/support/position.h"
#include "ui/app/auto_person.h"
#include "ui/board/puddle_view.h"
#include "ui/board/score_track.h"
#include "ui/strip/clan_panel.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

/// What board and track, clans and environment look like.
struct Pictures {
    QImage Track, Clans, Environment;
};

/// A state and how it was shown when it was the current one.
struct Moment {
    GameState State;
    Pictures Shown;
};

ClanPanel& ClansOf(Scene& scene) {
    return *static_cast<ClanPanel*>(scene.Find(QStringLiteral("bplab0"))->parentWidget());
}

Pictures Take(Scene& scene) {
    QWidget* environment = scene.Find(QStringLiteral("turnlab"))->parentWidget();
    return {scene.Board().findChild<ScoreTrack*>()->grab().toImage(), ClansOf(scene).grab().toImage(),
            environment->grab().toImage()};
}

/// What differs; empty: nothing.
std::string Difference(const Pictures& one, const Pictures& other) {
    std::string parts;
    parts += one.Track == other.Track ? "" : " the board";
    parts += one.Clans == other.Clans ? "" : " the clans";
    parts += one.Environment == other.Environment ? "" : " the environment";
    return parts;
}

/// The question at hand marks nothing on the board and nobody's card.
void TakeMarksAway(Scene& scene) {
    scene.Puddle().OutlinePiece(0, 0, false);
    scene.Puddle().SetSpokenOf(0);
    ClansOf(scene).ShowCurrentClan(0);
}

bool SameAsCurrent(const GameState& state) {
    return std::memcmp(&state, &game, sizeof state) == 0;
}

}  // namespace

class OtherStateTest : public QObject {
    Q_OBJECT

private slots:
    void everyEarlierStateOfAGame();
    void theGameGoesOnBehind();
    void aBoardOfAnotherSize();
};

void OtherStateTest::everyEarlierStateOfAGame() {
    Scene scene;
    game.HasRequestedReplay = true;
    game.RequestedReplay = 12;
    std::vector<Moment> moments;
    int asked = 0;
    int lookedBack = 0;
    scene.Watch = [&](const Question& question) {
        if (question.Kind != QuestionKind::YesNo || game.Turn < 1) {
            return;
        }
        TakeMarksAway(scene);
        const bool last = game.Turn == LastTurn && lookedBack == 0;
        if (++asked % 5 == 0 || last) {
            moments.push_back({game, Take(scene)});
        }
        if (!last) {
            return;
        }
        const GameState before = game;
        for (const Moment& moment : moments) {
            scene.Board().ShowState(moment.State);
            const std::string wrong = Difference(Take(scene), moment.Shown);
            QVERIFY2(wrong.empty(), Concat("turn ", moment.State.Turn, ", ", moment.State.Phase, ":", wrong).c_str());
            ++lookedBack;
        }
        scene.Board().ShowState(game);
        QCOMPARE(Difference(Take(scene), moments.back().Shown), std::string());
        QVERIFY(SameAsCurrent(before));
    };
    scene.AnswerBy([&scene](Question& question) { scene.Player().Answer(question); });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    QVERIFY2(lookedBack >= 8, Concat(lookedBack, " states were looked at").c_str());
    QVERIFY(!Difference(moments.front().Shown, moments.back().Shown).empty());
    QCOMPARE(game.Turn, LastTurn + 1);
}

// What the rules tell meanwhile changes nothing that is shown of the earlier state.
void OtherStateTest::theGameGoesOnBehind() {
    PositionScene scene;
    GameState earlier;
    PHASE(scene, TakeMarksAway(scene); earlier = game; const Pictures first = Take(scene);
          scene.Board().ShowState(earlier); game.BP[3] = 9; game.Players[3].Score = 30; game.UVLevel = 14;
          game.Drift = 1; game.Turn = 2; Give(3, {"int"}); Show(&Presentation::ShowClan, 3);
          Happened({.What = Happening::Kind::CardIsTurned}); Show(&Presentation::ShowTurn); BeginPhase("Movement");
          Happened({.What = Happening::Kind::OrderIsMade}); MoveAmoeba(3, 1, 8); TakeMarksAway(scene);
          QCOMPARE(Difference(Take(scene), first), std::string()); QCOMPARE(SquareOf(3, 1), 8);
          QCOMPARE(earlier.Amoeba[1][3].Square, 7); scene.Board().ShowState(game);
          QCOMPARE(Difference(Take(scene), first), std::string(" the board the clans the environment"));
          QCOMPARE(scene.Text(QStringLiteral("bplab2")), QStringLiteral("9"));
          QCOMPARE(scene.Text(QStringLiteral("turnlab")), QStringLiteral("Turn 2"));
          QCOMPARE(scene.Text(QStringLiteral("driftlab")), QStringLiteral("Right"));
          QCOMPARE(scene.Text(QStringLiteral("UVlab")), QStringLiteral("14")));
}

void OtherStateTest::aBoardOfAnotherSize() {
    PositionScene scene;
    const QImage usual = scene.Puddle().grab().toImage();
    const GameState before = game;
    GameState wide = game;
    wide.NumRows = 3;
    wide.NumCols = 8;
    wide.NumSquares = 24;
    scene.Board().ShowState(wide);
    const double square = scene.Puddle().width() / 8.0;
    QVERIFY(std::abs(scene.Puddle().height() - 3 * square) < 1);
    const QPoint units = scene.Puddle().UnitsAt(QPointF(7.5 * square, 2.5 * square));
    QCOMPARE(units.x() / SquareUnits, 7);
    QCOMPARE(units.y() / SquareUnits, 2);
    scene.Board().ShowState(game);
    QCOMPARE(scene.Puddle().grab().toImage(), usual);
    QVERIFY(SameAsCurrent(before));
}

WINDOW_TESTS(other_state_test, OtherStateTest)

}  // namespace plasmos::testing

#include "other_state_test.moc"
