// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace plasmos {

/// Where a computer clan's piece under attack flees to; its own square: it failed. With "mv2" it
/// chooses among the squares it reaches, else a die decides and 6 chooses; with "mv1" two dice.
int FindEscapeSquare(int clan, int amoeba);

}  // namespace plasmos
