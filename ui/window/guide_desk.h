// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

namespace plasmos {

class GuidedGame;
class PointerRing;
class Question;
class TableTop;

/// The guided game in a window: the note below the board, and the ring around what is recommended.
class GuideDesk : public QObject {
public:
    explicit GuideDesk(TableTop& table);

    /// Plays a game under guidance. `begun` is called when the guided game's board is there.
    void Play(const std::function<void()>& begun, const std::function<void()>& play);
    /// Whether the game that is played is the guided one.
    bool Guides() const { return guided_ != nullptr; }
    /// The question that is open on top, as it stands now; nullptr: nobody is asked.
    void Show(const Question* top);

private:
    TableTop* table_;
    PointerRing* ring_;
    GuidedGame* guided_ = nullptr;
};

}  // namespace plasmos
