// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "record/game_recorder.h"

namespace plasmos {

/// Where taking back leads in a game: to so many inputs, at which a question was open that has been answered since.
/// `clan` is the clan that takes back, whose own answer it is then; 0: whoever answered last. None: there is nothing to
/// take back.
std::optional<std::size_t> PlaceToTakeBackTo(const GameRecorder& played, int clan);

/// What was taken back, as long as it can be gone through again.
class TakenBack {
public:
    /// The game is about to go back; what it has come to is kept, unless a longer one is kept already.
    void Keep(const GameRecorder& played);
    void Forget() { *this = {}; }

    /// Where the next question was open, or where it all ended; none: nothing of what was taken back is left, or
    /// another answer has been given.
    std::optional<std::size_t> PlaceToGoOnTo(const InputList& inputs) const;
    /// The inputs up to such a place.
    InputList InputsTo(std::size_t place) const;

private:
    bool Continues(const InputList& inputs) const;

    InputList inputs_;
    std::vector<std::size_t> places_;
};

}  // namespace plasmos
