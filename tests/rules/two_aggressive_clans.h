// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include "model/step.h"

/// There is one copy of Aggression. What two clans with it would do shows only where nobody counts the
/// copies after every step.
#define NEEDS_TWO_AGGRESSIVE_CLANS() \
    if (EveryStepIsChecked)          \
    GTEST_SKIP() << "a second copy of Aggression does not exist"
