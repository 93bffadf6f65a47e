// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/version.h"

namespace plasmos {

const std::string_view ProgramVersion = PLASMOS_VERSION;

}  // namespace plasmos
