// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QTimer>

#include "tests/model/happening_scenes.h"
#include "tests/ui/support/scene.h"
#include "ui/app/auto_person.h"
#include "ui/window/uboard.h"

namespace plasmos::testing {

/// A window with A1 of clan 1 in square 13 and B1 of clan 2 beside it, on which the scenes of all happenings can be
/// played. Whoever is asked says yes.
class HappeningStage : public Scene {
public:
    explicit HappeningStage(int clans = 3) {
        NewPosition(clans);
        Put(1, 1, 13, 3);
        Put(2, 1, 13, 4);
        game.CurPlayer = game.CurAmoeba = 1;
        game.BP[1] = game.BP[2] = 3;
        game.UVLevel = 8;
        constexpr std::int32_t colours[] = {0, 0xFF0000, 0xFF00FF, 0x00FFFF, 0x0000FF, 0x0BB000, 0x0080FF};
        for (int clan = 1; clan <= clans; ++clan) {
            game.Players[clan].Colour = colours[clan];
        }
        AnswerBy([this](Question& question) {
            question.Kind == QuestionKind::YesNo ? Click(QStringLiteral("yesb")) : Player().Answer(question);
        });
    }

    /// What has been seen by a look every few milliseconds, while something goes on.
    void LookWhile(const std::function<void()>& rule, const std::function<void()>& look, const char* file, int line) {
        QTimer often;
        QObject::connect(&often, &QTimer::timeout, &Board(), look);
        constexpr int Often = 15;
        often.start(Often);
        RunPhase(rule, file, line);
    }

    /// Keeps a picture of the window where PLASMOS_PICTURES names a folder.
    void TakePicture(const QString& name) {
        if (const QString folder = qEnvironmentVariable("PLASMOS_PICTURES"); !folder.isEmpty()) {
            Board().grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
        }
    }
};

}  // namespace plasmos::testing
