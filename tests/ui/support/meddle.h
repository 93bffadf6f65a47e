// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWindow>
#include <cstring>

#include "questions/question.h"
#include "tests/ui/support/scene.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

/// What a person does that must not answer: the game stands as it stood.
inline void Meddle(Scene& scene, const Question& question) {
    const GameState before = game;
    if (question.Kind != QuestionKind::Square) {
        scene.ClickSquare(1 + scene.Asked() % game.NumSquares);
    }
    if (question.Kind != QuestionKind::YesNo) {
        for (const char* name : {"yesb", "nob"}) {
            if (scene.Sees(QString::fromLatin1(name))) {
                scene.Click(QString::fromLatin1(name));
            }
        }
        QTest::keyClick(scene.Board().windowHandle(), Qt::Key_Y);
        QTest::keyClick(scene.Board().windowHandle(), Qt::Key_N);
    }
    scene.Board().gob_Click();
    scene.Board().watch_Click();
    scene.Menu(QStringLiteral("watchmen"));
    if (std::memcmp(&before, &game, sizeof(GameState)) != 0) {
        scene.Fail("something has answered or changed: " + question.Text);
    }
}

}  // namespace plasmos::testing
