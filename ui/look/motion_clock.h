// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QTimer>

class QWidget;

namespace plasmos {

/// The time of a widget's short motions. The widget is painted again and again only while one of them goes on.
class MotionClock {
public:
    explicit MotionClock(QWidget& widget);

    /// The time that one motion takes.
    struct Span {
        qint64 From = 0;
        int Milliseconds = 0;
    };

    /// A span that begins now. Nothing moves in a widget that is not in sight: its span is over at once.
    Span Begin(int milliseconds);
    /// How far a motion has come, from 0 to 1; it starts and ends softly.
    double Share(const Span& span) const;
    bool IsOver(const Span& span) const { return Share(span) >= 1; }
    /// Nothing moves any more.
    void Stop();
    bool Runs() const { return timer_.isActive(); }

private:
    void Tick();

    QWidget* widget_;
    QElapsedTimer clock_;
    QTimer timer_;
    qint64 end_ = 0;
};

}  // namespace plasmos
