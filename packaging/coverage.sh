#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Builds the tests of core and simulator instrumented, runs them, and prints the line coverage of the core.
#
#   packaging/coverage.sh              a table, one line a file
#   packaging/coverage.sh --html DIR   pages to look at beside it
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
folder=$root/build/coverage
# shellcheck source=packaging/common.sh
. "$root/packaging/common.sh"

pages=()
case ${1:-} in
    '') ;;
    --html)
        [ $# -eq 2 ] || { echo "coverage.sh: --html wants a folder" >&2; exit 2; }
        mkdir -p "$2"
        pages=(--html-details "$(cd "$2" && pwd)/index.html")
        ;;
    *) echo "coverage.sh: unknown argument '$1'; --html DIR is understood" >&2; exit 2 ;;
esac

install_missing build test
command -v gcovr >/dev/null 2>&1 || fail "gcovr is missing; it is the package gcovr"
configure "$folder" release -DCMAKE_BUILD_TYPE=Debug -DPLASMOS_COVERAGE=ON -DPLASMOS_TESTS=ON \
    -DPLASMOS_WINDOW=OFF
build "$folder"
find "$folder" -name '*.gcda' -delete
log=$(mktemp)
trap 'rm -f "$log"' EXIT
PLASMOS_TEST_SCALE=${PLASMOS_TEST_SCALE:-10} run_ctest "$folder" "$log" --no-tests=error
cd "$root"
gcovr --root "$root" --object-directory "$folder" --exclude-throw-branches \
    --filter 'files/' --filter 'model/' --filter 'questions/' --filter 'rules/' --filter 'ai/' --filter 'flow/' \
    --filter 'record/' --print-summary "${pages[@]}"
