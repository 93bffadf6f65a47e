// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/ui/support/scene.h"
#include "ui/app/auto_person.h"
#include "ui/window/history_desk.h"
#include "ui/window/record_desk.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

/// What a person sees of where the game stands.
struct Stand {
    std::uint64_t Signature = 0;
    QString Question;
    QStringList Log;
};

inline void CompareStands(const Stand& now, const Stand& then) {
    QCOMPARE(now.Question, then.Question);
    QCOMPARE(now.Signature, then.Signature);
    QCOMPARE(now.Log.join(QLatin1Char('\n')), then.Log.join(QLatin1Char('\n')));
}

inline Stand StandOf(Scene& scene, const Question& question) {
    QStringList log = scene.Log();
    if (!log.isEmpty()) {
        log.removeFirst();  // the time of day
    }
    return {game.Signature, ToQt(question.Text), log};
}

/// The next game is dealt from a replay number, to so many clans.
inline void Deal(float replay, int clans = 3) {
    game.RequestedClans = clans;
    game.HasRequestedReplay = true;
    game.RequestedReplay = replay;
}

/// Plays a game of three clans up to its nth question that is no box, and does something there.
inline void PlayTo(Scene& scene, int number, const std::function<void(Question&)>& act) {
    game.RequestedClans = 3;
    game.HasRequestedReplay = true;
    game.RequestedReplay = 5;
    int seen = 0;
    scene.AnswerBy([&scene, number, act, seen](Question& question) mutable {
        if (question.Kind == QuestionKind::Box || seen + 1 < number) {
            seen += question.Kind == QuestionKind::Box ? 0 : 1;
            scene.Player().Answer(question);
        } else {
            act(question);
        }
    });
}

}  // namespace plasmos::testing
