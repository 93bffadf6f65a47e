#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Records the golden games under tests/golden anew, after a change of the rules that is meant.
# Look at `git diff tests/golden` afterwards: the first line that differs is the first step that does.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
cmake --build "$root/build/release" --target plasmos-golden
"$root/build/release/tests/plasmos-golden"
