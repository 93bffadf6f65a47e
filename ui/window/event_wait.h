// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QEventLoop;

namespace plasmos {

/// The one place where a game that is being played lets the window live. It sleeps until something
/// happens or the time is over.
class EventWait {
public:
    /// Waits for an answer, for the end, or for a time in milliseconds.
    void ForAnswer(int milliseconds) { Run(milliseconds, true); }
    /// Lets the time go by; only the end is earlier.
    void ForTime(int milliseconds) { Run(milliseconds, false); }

    /// There may be an answer.
    void Wake();
    /// Whatever is waited for is over.
    void Interrupt();
    /// The program is to end: no wait lasts any more.
    void End();
    bool Ended() const { return ended_; }

private:
    void Run(int milliseconds, bool wakeable);

    QEventLoop* loop_ = nullptr;
    bool wakeable_ = false;
    bool ended_ = false;
};

}  // namespace plasmos
