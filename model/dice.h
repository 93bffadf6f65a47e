// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "model/game_state.h"
#include "model/observer.h"
#include "model/services.h"
#include "model/signature.h"

namespace plasmos {

/// Rolls that were recorded or written down by a test, handed out instead of the generator's.
class DiceTape {
public:
    explicit DiceTape(std::vector<int> faces) : faces_(std::move(faces)) {}

    /// The next face. Raises error 5 when the tape is at its end or holds a face a die with
    /// `n` faces does not have.
    int Next(int n);

    bool AtEnd() const { return next_ == faces_.size(); }

private:
    std::vector<int> faces_;
    std::size_t next_ = 0;
};

/// Seeds the dice with a replay number: the same number gives the same rolls.
void SeedRandom(float replayNo);

/// The tape's or the observed roll; use RollDie.
int RollDieHeard(int n);

/// One die with n faces, 1..n: the only source of chance in the rules. With n below 1 the result is
/// 1, and a number is drawn all the same.
inline int RollDie(int n) {
    if (services.Tape != nullptr || services.Listener != nullptr) [[unlikely]] {
        return RollDieHeard(n);
    }
    const std::uint64_t number = game.Generator.Next();
    const int face = n < 1 ? 1 : static_cast<int>((number * static_cast<std::uint64_t>(n)) >> 32U) + 1;
    Sign(SignedEvent::Roll, n, face);
    return face;
}

/// Reads a replay number: the whole trimmed text is a finite decimal number that fits a single
/// (sign, ".", exponent allowed). False: it is none.
bool ParseReplayNumber(std::string_view text, float& number);

/// The shortest digits that read back to the same single, in plain notation where that is readable.
std::string ReplayText(float replayNo);

}  // namespace plasmos
