// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rules/directions.h"

namespace plasmos {

/// Decides and carries out the move of one amoeba of a computer clan: it holds fast, drifts, or pays
/// to move actively, once more with "spe" or "per". The clan's personality plays no part in it.
void ComputerMoveAmoeba(int clan, int amoeba);

/// Whether a square next to this one holds food that the clan can eat.
bool HasFoodNextDoor(int square, int clan);

}  // namespace plasmos
