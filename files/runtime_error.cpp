// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/runtime_error.h"

namespace plasmos {

bool IsFileError(int number) {
    return number == 53 || number == 57 || number == 61 || number == 70 || number == 75 || number == 76;
}

void RaiseSubscriptError() {
    throw RuntimeError(9, "Subscript out of range");
}

}  // namespace plasmos
