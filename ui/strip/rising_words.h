// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

#include "ui/look/motion_clock.h"
#include "ui/look/theme.h"

namespace plasmos {

/// Short words that rise over a card and fade, such as "−1 BP". It lies over all that its parent holds, lets the mouse
/// through, and is hidden while nothing rises.
class RisingWords : public QWidget {
public:
    explicit RisingWords(QWidget* parent);

    /// Words rise from a place of the parent, below others that do so just now.
    void Rise(const QString& words, QPointF from, Tone tone, int milliseconds);
    /// Nothing rises any more.
    void Stop();
    bool Runs() const { return clock_.Runs(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Words {
        QString Text;
        QPointF From;
        Tone Ink;
        MotionClock::Span Time;
    };

    MotionClock clock_;
    std::vector<Words> words_;
};

}  // namespace plasmos
