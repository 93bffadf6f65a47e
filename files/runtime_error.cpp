// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/runtime_error.h"

namespace plasmos {

void RaiseSubscriptError() {
    throw RuntimeError(9, "Subscript out of range");
}

}  // namespace plasmos
