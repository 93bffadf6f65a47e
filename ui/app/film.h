// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/app/shot_wish.h"

namespace plasmos {

/// Films a turn: the pictures of a window in which somebody plays go to the folder as frame-001.png and so on, three a
/// second. Answers whether all could be written.
bool TakeFilm(const Wish& wish);

}  // namespace plasmos
