// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/resource.h>

#include "files/process.h"

namespace plasmos::testing {

/// While it lives no file of this program may have more bytes: a disk that is full at a chosen byte.
class MostBytes {
public:
    explicit MostBytes(unsigned bytes) {
        PrepareProcess();
        getrlimit(RLIMIT_FSIZE, &was_);
        const rlimit limit{bytes, was_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~MostBytes() { setrlimit(RLIMIT_FSIZE, &was_); }
    MostBytes(const MostBytes&) = delete;
    MostBytes& operator=(const MostBytes&) = delete;

private:
    rlimit was_{};
};

}  // namespace plasmos::testing
