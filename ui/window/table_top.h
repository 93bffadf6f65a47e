// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace plasmos {

class GuideBar;
class LookBar;
class ScoreTrack;
class SideStrip;
struct GameState;

/// Board and strip side by side, the turns below the board, and below all the note of the guided game; the strip takes
/// what is left of a comfortable share.
class TableTop : public QWidget {
public:
    TableTop(QWidget* parent, const GameState& state);

    ScoreTrack* Track;
    SideStrip* Strip;
    GuideBar* Guide;
    LookBar* Look;

    /// Makes room for the guided game's note below both, or takes it back.
    void ShowGuide(bool on);
    /// What is shown below the board has another height.
    void ArrangeAgain() { Arrange(); }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Arrange();
};

}  // namespace plasmos
