// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace plasmos {

/// What the current computer clan gives up when its mutation level is above the UV level and it cannot
/// simply pay: first genes that are no favourites and Ray Protection, the cheapest first, then "div",
/// then its favourites. It pays BP as soon as that settles the rest.
void ComputerAdaptEnvironment();

}  // namespace plasmos
