// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/motion_clock.h"

#include <QWidget>
#include <algorithm>

namespace plasmos {

namespace {

constexpr int FrameMilliseconds = 16;

}  // namespace

MotionClock::MotionClock(QWidget& widget) : widget_(&widget) {
    clock_.start();
    timer_.setInterval(FrameMilliseconds);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Tick(); });
}

MotionClock::Span MotionClock::Begin(int milliseconds) {
    if (milliseconds <= 0 || !widget_->isVisible()) {
        return {};
    }
    const Span span{clock_.elapsed(), milliseconds};
    end_ = std::max(end_, span.From + milliseconds);
    timer_.start();
    widget_->update();
    return span;
}

double MotionClock::Share(const Span& span) const {
    if (span.Milliseconds <= 0 || !Runs()) {
        return 1;
    }
    const double share = static_cast<double>(clock_.elapsed() - span.From) / span.Milliseconds;
    return share >= 1 ? 1 : share * share * (3 - 2 * share);
}

void MotionClock::Stop() {
    timer_.stop();
    end_ = 0;
    widget_->update();
}

void MotionClock::Tick() {
    if (clock_.elapsed() >= end_) {
        timer_.stop();
    }
    widget_->update();
}

}  // namespace plasmos
