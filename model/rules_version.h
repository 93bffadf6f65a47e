// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace plasmos {

/// The version of the rules as they are played: one more with every change after which the same replay number and the
/// same inputs give another game. A record of another version cannot be played again.
inline constexpr int RulesVersion = 1;

}  // namespace plasmos
