#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The one list of packages, by the names Debian 12 and Ubuntu 24.04 give them.
#
#   packaging/packages.sh                     the whole list with what each package is for
#   packaging/packages.sh GROUP...            the names of some groups, one a line
#
# Groups: build (the game), test (its tests), ci (what the checks need beside), wayland (a desktop
# without an X server), long (checks that take long and are run by hand).
set -euo pipefail

list() {
    cat <<'LIST'
build    g++                 the compiler
build    cmake               configures the build (3.25 or newer)
build    ninja-build         runs the build
build    qt6-base-dev        window, dialogs, timers, settings, window tests (Qt 6.4 or newer)
build    libcli11-dev        command line of the simulator
build    nlohmann-json3-dev  journal of the simulator
build    fonts-dejavu-core   letters where no desktop has brought any
test     libgtest-dev        unit tests
test     libgmock-dev        matchers of the unit tests
test     librapidcheck-dev   property tests
test     dbus-daemon         the bus of a desktop that the window asks
ci       clang               the second compiler
ci       clang-tidy          reads the sources for mistakes
ci       clang-format        keeps the sources in one shape
ci       libclang-rt-dev     sanitizers and fuzzing with clang++
ci       libbenchmark-dev    benchmarks
ci       gcovr               line coverage
ci       cppcheck            a second reader of the sources
ci       xvfb                an X server without a screen, for the window tests
ci       xauth               needed by xvfb-run
ci       xdotool             moves its pointer and presses its keys
ci       at-spi2-core        the accessibility bus, for the game by ear
ci       python3-gi          talks over them
ci       ccache              makes second builds quick
ci       python3             draws the rooms
ci       desktop-file-utils  looks at the desktop entry
ci       appstream           looks at what software centres read
ci       mandoc              looks at the manual pages
ci       man-db              shows them
ci       shared-mime-info    makes the type of records known
ci       libglib2.0-bin      asks for the type of a file
ci       dpkg-dev            finds what the packages depend on
ci       lintian             looks at the packages
ci       parallel            spreads games over workers
wayland  qt6-wayland         a window where there is Wayland and no X server
long     mingw-w64           builds the program for Windows
long     wine64              runs it there
long     wine                the command that finds it
long     imagemagick         makes the handbook's pictures small
long     valgrind            a slow look at every memory access
LIST
}

if [ $# -eq 0 ]; then
    list
    exit 0
fi
for group in "$@"; do
    if ! list | awk -v group="$group" '$1 == group { print $2; found = 1 } END { exit !found }'; then
        echo "packages.sh: there is no group '$group'; there are build, test, ci, wayland and long" >&2
        exit 2
    fi
done
