// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>

namespace plasmos {

class StartCard;

/// How the last game came out, on the card that stays until the next one, and the person's record so far.
class ResultDesk {
public:
    /// `tell` is a box for the person.
    ResultDesk(StartCard& card, std::function<void(const QString& text)> tell);

    /// Shows the current game's result, that it was left before its end, or the welcome where there is no game. A game
    /// that has just been played to its end is taken into the record. `waits`: one that was left can be gone on with.
    void Show(bool played, bool waits);
    /// Forgets the record. What the card shows follows.
    void Clear(bool waits);

private:
    void ShowUnfinished(bool waits);
    void TellUnsaved() const;

    StartCard* card_;
    std::function<void(const QString& text)> tell_;
};

}  // namespace plasmos
