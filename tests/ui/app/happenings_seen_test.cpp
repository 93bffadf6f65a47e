// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whole games in the window in which everything that a person wants to follow leaves a line in the log.

#include <QTextDocument>
#include <QTextEdit>
#include <set>

#include "model/happening.h"
#include "model/observer.h"
#include "tests/support/game_fixture.h"
#include "tests/ui/support/enrich.h"
#include "tests/ui/support/scene.h"
#include "ui/app/auto_person.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

namespace {

using Kind = Happening::Kind;

/// What is seen on board or cards alone.
bool IsSeenAlone(const Happening& happening) {
    switch (happening.What) {
        case Kind::ChangesSpot:
        case Kind::PaysBP:
        case Kind::OrderIsMade: return true;
        case Kind::Dies: return happening.Number == 0;  // told when it was killed
        case Kind::Moves:
        case Kind::Stays: return game.Players[happening.Clan].IsComputer;           // told before it went
        case Kind::LosesGene: return game.FastMode && game.Phase == "Environment";  // told before it was lost
        case Kind::Defends: return game.FastMode;                                   // told behind it
        default: return false;
    }
}

/// Hears what happens; before the next thing happens the log must have a line more.
class LogWatcher : public Observer {
public:
    LogWatcher(Scene& scene, const QTextEdit& log) : scene_(scene), log_(log) { services.Listener = this; }
    ~LogWatcher() override { services.Listener = nullptr; }
    void OnRoll(int, int) override {}
    void OnBegin(Step, int, int) override {}
    void OnEnd(Step, int, int) override { Check(); }
    void OnHappening(const Happening& happening) override {
        Check();
        last_ = happening;
        waits_ = game.Turn > 0 && !IsSeenAlone(happening);  // the log begins with the first turn
        lines_ = log_.document()->characterCount();
        Kinds.insert(happening.What);
    }
    void OnSay(std::string_view) override {}
    void OnBox(std::string_view) override {}
    void OnAsk(const Question&) override {}
    void OnAnswer(const Question&, const Answer&, bool) override {}
    void OnOver() override { Check(); }

    std::set<Kind> Kinds;

private:
    void Check() {
        if (waits_ && log_.document()->characterCount() == lines_) {
            scene_.Fail(Concat("the log says nothing of it: ", KindName(last_.What), ", clan ", last_.Clan, ", turn ",
                               game.Turn, ", ", game.Phase));
        }
        waits_ = false;
    }

    Scene& scene_;
    const QTextEdit& log_;
    Happening last_;
    bool waits_ = false;
    int lines_ = 0;
};

}  // namespace

class HappeningsSeenTest : public QObject {
    Q_OBJECT

private slots:
    void everythingHasItsLine_data();
    void everythingHasItsLine();
    void everyKindWasMet();

private:
    std::set<Kind> kinds_;
};

void HappeningsSeenTest::everythingHasItsLine_data() {
    QTest::addColumn<int>("replay");
    QTest::addColumn<bool>("twoPersons");
    QTest::addColumn<bool>("fast");
    for (int replay = 1; replay <= 8; ++replay) {
        QTest::addRow("replay %d", replay) << replay << (replay % 2 == 0) << (replay % 4 == 3);
    }
}

void HappeningsSeenTest::everythingHasItsLine() {
    QFETCH(int, replay);
    QFETCH(bool, twoPersons);
    QFETCH(bool, fast);
    Scene scene;
    scene.Board().setUpdatesEnabled(false);
    if (twoPersons) {
        scene.Menu(QStringLiteral("twoplayermen"));
    }
    if (fast) {
        scene.Menu(QStringLiteral("fast_men"));
    }
    game.HasRequestedReplay = true;
    game.RequestedReplay = static_cast<float>(replay);
    LogWatcher watcher(scene, *scene.Board().findChild<QTextEdit*>(QStringLiteral("txtLog")));
    bool rich = false;
    scene.AnswerBy([&](Question& question) {
        if (game.Turn == 1 && !rich) {
            rich = true;
            for (int clan = 2; clan <= 3; ++clan) {
                Enrich(clan, {"agg", "hol", "ten", "esc", "def"}, 60);
            }
        }
        scene.Player().Answer(question);
    });
    PLAY(scene, scene.Click(QStringLiteral("gob")));
    kinds_.insert(watcher.Kinds.begin(), watcher.Kinds.end());
}

void HappeningsSeenTest::everyKindWasMet() {
    // Riders are rare, and a person's tentacle drags where the person says so.
    for (int kind = 0; kind <= static_cast<int>(Kind::OrderIsMade); ++kind) {
        const auto what = static_cast<Kind>(kind);
        const bool rare = what == Kind::Parasitizes || what == Kind::IsWounded || what == Kind::Rides;
        QVERIFY2(rare || kinds_.contains(what), std::string(KindName(what)).c_str());
    }
}

WINDOW_TESTS(happenings_seen_test, HappeningsSeenTest)

}  // namespace plasmos::testing

#include "happenings_seen_test.moc"
