// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QTimer>
#include <string>

namespace plasmos {

class PuddleView;
struct GameState;

/// The text for the amoeba of a state whose marker lies under a point in board units, "3- Blue3 (1)": its number,
/// its name, and how often it has starved. Empty where there is none. The band that counts lies 40
/// units below the marker, on purpose.
std::string TipTextAt(const GameState& state, int x, int y);

/// The small window that follows the pointer over an amoeba.
class ToolTips : public QObject {
public:
    explicit ToolTips(PuddleView* puddle);
    ~ToolTips() override;

    /// Shows, moves or hides `TTwin`; a shown tip is looked at again every 5 ms, else every 1500 ms.
    void ShowTip(const std::string& text);
    /// Hides `TTwin` until the pointer has left the amoeba that it tells of: something has been pressed or asked.
    void Hush();
    /// Hides `TTwin` and looks no more: the program ends.
    void Stop();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ttTimer_Timer();
    std::string TextUnderPointer() const;

    PuddleView* puddle_;
    QLabel* TTwin_;
    QTimer* ttTimer_;
    std::string hushed_;  ///< the text that is not shown again where the pointer is
};

}  // namespace plasmos
