// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "record/play_record.h"
#include "sim/journal.h"
#include "tests/record/restless_robot.h"
#include "tests/support/game_fixture.h"

namespace plasmos::testing {

/// Tests with records of games.
class Records : public GameTest {
protected:
    /// Plays a numbered game; the record is what it writes down.
    GameRecord Play(int number, std::string& journal) {
        SetUpRestlessGame(number);
        Journal written;
        written.Start();
        RestlessRobot robot(static_cast<std::uint64_t>(number), &written);
        GameRecorder recorder(&robot);
        text_.clear();
        recorder.OnText = [this](std::string_view lines) { text_ += lines; };
        services.Window = &robot;
        services.Listener = &recorder;
        PlayOrLeave();
        services = {};
        journal = written.Text();
        return recorder.Record();
    }

    /// What stands in the file, as it grew input by input.
    std::string text_;
};

}  // namespace plasmos::testing
