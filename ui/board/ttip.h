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
    /// Hides `TTwin` and looks no more: the program ends.
    void Stop();

private:
    void ttTimer_Timer();

    PuddleView* puddle_;
    QLabel* TTwin_;
    QTimer* ttTimer_;
};

}  // namespace plasmos
