// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The rules of it: docs/rules.md#movement-of-a-computer-clan

namespace plasmos {

/// Whether a square next to this one holds food that the clan can eat.
bool HasFoodNextDoor(int square, int clan);

}  // namespace plasmos
