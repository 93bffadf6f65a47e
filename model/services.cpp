// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/services.h"

namespace plasmos {

constinit thread_local Services services;

}  // namespace plasmos
