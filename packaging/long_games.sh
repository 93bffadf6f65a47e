#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The long form of the games' checks: the whole state is looked through after every step.
#   packaging/long_games.sh [PROGRAM]       100,000 games, the boards, and the games with persons
#   packaging/long_games.sh --short [PROGRAM]   a tenth of each, for slow builds
# PROGRAM is a plasmos-sim; without one it is the release's, which is built first.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
share=1
if [ "${1:-}" = --short ]; then
    share=10
    shift
fi
sim=${1:-}
if [ -z "$sim" ]; then
    cmake --build "$root/build/release" --target plasmos-sim
    sim=$root/build/release/plasmos-sim
fi

total=0
play() {
    local games=$1
    shift
    games=$((games / share))
    "$sim" --games "$games" --check --progress never "$@" >/dev/null 2>/tmp/plasmos-long.$$ || {
        cat /tmp/plasmos-long.$$ >&2
        echo "stopped at: --games $games --check $*" >&2
        exit 1
    }
    rm -f /tmp/plasmos-long.$$
    total=$((total + games))
}

play 100000
echo "games of computer clans: $total, nothing found"

boards=("--rows 5 --cols 5" "--rows 5 --cols 5 --blocks 7:12:19:" "--rows 3 --cols 4" "--rows 4 --cols 5 --blocks 1:4:7:10:13:16:18:20:"
    "--rows 4 --cols 9 --blocks 24:19:" "--rows 6 --cols 6" "--rows 9 --cols 4 --blocks 5:")
total=0
for board in "${boards[@]}"; do
    for clans in 3 4 5 6; do
        for difficulty in easy normal; do
            # shellcheck disable=SC2086
            play 200 $board --clans "$clans" --difficulty "$difficulty"
        done
    done
done
echo "games on ${#boards[@]} boards, 3 to 6 clans, both difficulties: $total, nothing found"

total=0
for persons in 1 2; do
    for clans in 3 4 5 6; do
        for robot in 1 2 3; do
            play 2000 --persons "$persons" --clans "$clans" --robot "$robot"
        done
    done
    play 2000 --persons "$persons" --victory --difficulty easy
    play 2000 --persons "$persons" --rows 6 --cols 6 --blocks 15:16:21:22:
done
echo "games with robot persons: $total, nothing found"
