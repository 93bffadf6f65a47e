#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Every check that takes too long for ./test, one after the other: about two hours on two cores.
#   packaging/long_forms.sh             all of them
#   packaging/long_forms.sh NAME...     some: games tests sanitizers fuzz threads memory windows
# The first finding stops it.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"
# shellcheck source=packaging/common.sh
. "$root/packaging/common.sh"
release=$root/build/release

# 167,200 games with the state looked through after every step.
games() {
    "$root/packaging/long_games.sh"
}

# Ten times as many games in every test, every wait closed, 200 games of the monkey.
tests() {
    PLASMOS_TEST_SCALE=1000 ctest --test-dir "$release" --output-on-failure -j "$(nproc)"
}

# A tenth of the games under the sanitizers.
sanitizers() {
    configure "$root/build/asan" asan
    build "$root/build/asan" --target plasmos-sim
    "$root/packaging/long_games.sh" --short "$root/build/asan/plasmos-sim"
}

# Ten minutes for each fuzzing target.
fuzz() {
    "$root/packaging/fuzz.sh"
}

# The simulator's jobs under the thread sanitizer.
threads() {
    configure "$root/build/threads" asan -DPLASMOS_SANITIZE=thread -DPLASMOS_WINDOW=OFF -DPLASMOS_TESTS=ON
    build "$root/build/threads" --target plasmos-sim sim_tests
    export TSAN_OPTIONS=halt_on_error=1
    "$root/build/threads/plasmos-sim" --games 2000 --jobs 4 >/dev/null
    "$root/build/threads/plasmos-sim" --games 100 --jobs 4 --check --persons 1 --journal /dev/null >/dev/null
    "$root/build/threads/tests/sim_tests" --gtest_brief=1
}

# Every memory access of the simulator, and of the window from its opening to its end.
memory() {
    local folder
    folder=$(mktemp -d)
    valgrind --quiet --error-exitcode=9 --leak-check=full \
        "$release/plasmos-sim" --games 60 --persons 1 --check --jobs 2 >/dev/null
    QT_QPA_PLATFORM=offscreen PLASMOS_DATA=$folder/data XDG_CONFIG_HOME=$folder valgrind --quiet --error-exitcode=9 \
        --leak-check=full --show-leak-kinds=definite --errors-for-leak-kinds=definite \
        "$release/plasmos-shot" --demo "$folder" >/dev/null
    rm -rf "$folder"
}

# Core and simulator for Windows, under Wine.
windows() {
    "$root/packaging/windows.sh"
}

names=("$@")
[ ${#names[@]} -gt 0 ] || names=(games tests sanitizers fuzz threads memory windows)
for name in "${names[@]}"; do
    case $name in
        games | tests | sanitizers | fuzz | threads | memory | windows) ;;
        *) fail "there is no '$name'; there are games, tests, sanitizers, fuzz, threads, memory and windows" ;;
    esac
done
install_missing build test ci long
configure "$release" release -DPLASMOS_TESTS=ON
build "$release"
for name in "${names[@]}"; do
    say "=== $name"
    start=$SECONDS
    "$name"
    say "--- $name: nothing found ($((SECONDS - start)) s)"
done
