// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/dice.h"

#include <bit>
#include <cmath>

#include "files/strings.h"
#include "model/services.h"

namespace plasmos {

namespace {

constexpr std::uint64_t DiceStream = 54;

/// Only signs, digits, one point and an exponent: no hexadecimal, no "inf", no blanks inside.
bool LooksDecimal(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789+-.eE") == std::string_view::npos;
}

}  // namespace

int DiceTape::Next(int n) {
    if (AtEnd()) {
        throw RuntimeError(5, Concat("Invalid procedure call: the tape has no roll for a die with ", n, " faces"));
    }
    const int face = faces_[next_];
    if (face < 1 || (face > n && n >= 1)) {
        throw RuntimeError(5, Concat("Invalid procedure call: the tape says ", face, " for a die with ", n, " faces"));
    }
    ++next_;
    return face;
}

void SeedRandom(float replayNo) {
    game.Generator.Seed(std::bit_cast<std::uint32_t>(replayNo), DiceStream);
}

int RollDieHeard(int n) {
    int face = 1;
    if (services.Tape != nullptr) {
        face = services.Tape->Next(n);
    } else {
        const std::uint64_t number = game.Generator.Next();
        face = n < 1 ? 1 : static_cast<int>((number * static_cast<std::uint64_t>(n)) >> 32U) + 1;
    }
    Sign(SignedEvent::Roll, n, face);
    if (services.Listener != nullptr) {
        services.Listener->OnRoll(n, face);
    }
    return face;
}

bool ParseReplayNumber(std::string_view text, float& number) {
    text = Trim(text);
    if (!LooksDecimal(text)) {
        return false;
    }
    if (text.substr(0, 2) == "+-") {
        return false;
    }
    if (text.front() == '+') {
        text.remove_prefix(1);
    }
    float value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(value)) {
        return false;
    }
    number = value;
    return true;
}

std::string ReplayText(float replayNo) {
    const float size = std::fabs(replayNo);
    const bool plain = size == 0 || (size >= 1e-5F && size < 1e9F);
    char text[64];
    const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    const auto end = std::to_chars(text, text + sizeof text, replayNo, format).ptr;
    return {text, end};
}

}  // namespace plasmos
