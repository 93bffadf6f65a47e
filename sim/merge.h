// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "sim/simulate.h"

namespace plasmos {

/// Reads the json results of the runs of `options.Merge` together and hands their games over in replay order, as one
/// run of all of them would have. Raises UsageError, with file and line, where a file is no such result, was played
/// with other settings than the first one, or has a game that another one has, too. `take` answers whether to go on.
void MergeResults(const SimOptions& options, const std::function<bool(const GameResult&)>& take);

}  // namespace plasmos
