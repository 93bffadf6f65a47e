// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace plasmos {

/// The version of the programs, as the build tells it: "1.0.0".
extern const std::string_view ProgramVersion;

}  // namespace plasmos
