// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace plasmos {

class ScoreTrack;
class SideStrip;
struct GameState;

/// Board and strip side by side; the strip takes what is left of a comfortable share.
class TableTop : public QWidget {
public:
    TableTop(QWidget* parent, const GameState& state);

    ScoreTrack* Track;
    SideStrip* Strip;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Arrange();
};

}  // namespace plasmos
