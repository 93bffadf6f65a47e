// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/event_wait.h"

#include <QEventLoop>
#include <QTimer>

namespace plasmos {

namespace {

/// What our own exits give; a loop that the application ends gives something else.
constexpr int Woken = 1;

}  // namespace

void EventWait::Wake() {
    if (loop_ != nullptr && wakeable_) {
        loop_->exit(Woken);
    }
}

void EventWait::End() {
    ended_ = true;
    Interrupt();
}

void EventWait::Interrupt() {
    if (loop_ != nullptr) {
        loop_->exit(Woken);
    }
}

void EventWait::Run(int milliseconds, bool wakeable) {
    if (ended_ || milliseconds <= 0) {
        return;
    }
    QEventLoop loop;
    QEventLoop* const outer = loop_;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &loop, [&loop] { loop.exit(Woken); });
    timer.start(milliseconds);
    loop_ = &loop;
    wakeable_ = wakeable;
    if (loop.exec() != Woken) {
        ended_ = true;
    }
    loop_ = outer;
}

}  // namespace plasmos
