// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sim/robot.h"

namespace plasmos::testing {

/// A robot person's board that keeps account of how long each line of the message line could be read.
/// A line has been read after pauses of 4 units since it was shown, of 10 where it concerns a person's
/// clan, or after a wait for a person's answer. What is gone before that is unseen. A line that is added
/// lets the time of the whole begin anew.
class LineReader : public Robot {
public:
    using Robot::Robot;

    bool WantsText() const override { return true; }
    void ShowMessage(std::string_view text, int clan) override;
    void Pause(int units) override;
    void Wait() override;

    /// The game is over: what stands in the message line goes.
    void Finish() { ShowMessage({}, 0); }

    int Lines = 0;                    ///< that have been shown
    int PersonsLines = 0;             ///< of them those that concern a person's clan
    std::vector<std::string> Gone;    ///< the lines that were shown and are gone
    std::vector<std::string> Unseen;  ///< of them those that nobody could read

private:
    struct Line {
        std::string Text;
        int Needed = 0;  ///< units
        int Paused = 0;  ///< units since it was shown
        bool Read = false;
    };

    std::size_t CountKept(std::string_view text) const;
    void Drop(std::size_t from);
    void Add(std::string_view text, int clan);

    std::string message_;
    std::vector<Line> lines_;
};

}  // namespace plasmos::testing
