// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <Qt>
#include <string>

class QWidget;
class QWindow;

namespace plasmos {

/// Why a press at a point of a control (in its own coordinates) would not reach it: it is hidden, covered
/// by another control, scrolled out of sight, or off its window or screen. Empty: it is in reach.
std::string WhyOutOfReach(const QWidget& control, QPoint point);

/// A hand at the windows of the program. It presses places of a window, as the mouse does; what lies
/// uppermost there gets the press.
class Hand {
public:
    Hand() = default;
    virtual ~Hand() = default;
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;

    /// Presses and releases the mouse where a control has a point, which the wheel brings into sight first.
    /// Gives why it could not be pressed; empty: it was.
    std::string Press(QWidget& control, QPoint point, Qt::MouseButton button = Qt::LeftButton);
    /// The same in the control's middle.
    std::string Press(QWidget& control, Qt::MouseButton button = Qt::LeftButton);
    /// Turns the wheel over whatever scrolls around a control until a point of it is in sight.
    void Reveal(QWidget& control, QPoint point);

protected:
    /// Presses and releases at a point of a window.
    virtual void PressWindow(QWindow& window, QPoint place, Qt::MouseButton button) = 0;
    /// One notch of the wheel, up (towards the beginning) or down, at a point of a window.
    virtual void TurnWheel(QWindow& window, QPoint place, bool up) = 0;
};

/// A hand without a mouse: the window is handed what the mouse would send.
class WindowHand : public Hand {
protected:
    void PressWindow(QWindow& window, QPoint place, Qt::MouseButton button) override;
    void TurnWheel(QWindow& window, QPoint place, bool up) override;
};

}  // namespace plasmos
