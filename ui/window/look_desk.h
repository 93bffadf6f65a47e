// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "model/game_state.h"
#include "ui/board/puddle_motions.h"

namespace plasmos {

class LookBar;
class RecordDesk;
class TableTop;

/// Looking back in a window: an earlier board in place of the present one, while the game waits and nothing can be
/// changed.
class LookDesk : public QObject {
public:
    /// What the window does itself.
    struct Deeds {
        std::function<void(const GameState& state)> ShowState;  ///< in place of the one it shows
        std::function<void(bool on)> Freeze;                    ///< nothing goes on, and nothing answers
    };

    LookDesk(TableTop& table, RecordDesk& records, Deeds deeds);

    bool LooksBack() const { return then_ != nullptr; }
    /// Shows the board of a moment.
    void LookAt(int moment);
    /// Shows the board at the end of a turn; 0: before the first.
    void LookAtTurn(int turn);
    /// Chapters back and on from what is shown.
    void Move(int chapters);
    void LookAtFirst() { Move(-1000000); }
    /// Shows the present again.
    void Return();
    /// The game goes on from what is shown.
    void GoOn();
    /// The bar follows the game.
    void Follow();

private:
    void ShowChapter(int chapter);
    void Show(int moment, const QString& what);
    void SetSlider(int chapter);

    TableTop* table_;
    LookBar* bar_;
    RecordDesk* records_;
    Deeds deeds_;
    std::unique_ptr<GameState> then_;
    int moment_ = 0;
    PieceId outlined_;  ///< in the present, where a piece acts
    bool moving_ = false;
};

}  // namespace plasmos
