// SPDX-License-Identifier: GPL-3.0-or-later
//
// Alone in its file, so that a test can stand for another platform.

#include "files/platform.h"

namespace plasmos {

bool HasUpDownControls() {
    return true;
}

}  // namespace plasmos
