// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

namespace plasmos::testing {

/// A device for tests: a terminal of their own, which never says a word. Whatever a broken program does to
/// it, run by whomever, the devices of the system stay as they are.
class Terminal {
public:
    Terminal() : number_(posix_openpt(O_RDWR | O_NOCTTY)) {
        EXPECT_TRUE(number_ >= 0 && grantpt(number_) == 0 && unlockpt(number_) == 0);
    }
    ~Terminal() { close(number_); }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    std::string Path() const { return ptsname(number_); }

private:
    int number_;
};

}  // namespace plasmos::testing
