// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace plasmos {

/// Works out again everything the state holds twice and compares: pieces per square and clan, spots,
/// mutation levels against genes, supplies and their holders, pieces on real squares, food and BP
/// never negative, and after scoring scores that differ. The answer is what is wrong, or an empty text.
std::string CheckConsistency(bool afterScoring = false);

}  // namespace plasmos
