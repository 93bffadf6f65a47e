#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The long form of the fuzzing: builds the targets with clang's fuzzer and the sanitizers and runs each.
#   packaging/fuzz.sh [SECONDS] [TARGET...]     600 seconds each when nothing is said
# A finding stops the run; the input that made it is left in build/fuzz.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
seconds=${1:-600}
[ $# -gt 0 ] && shift
folder=$root/build/fuzz
cmake -S "$root" -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g" \
    -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_CXX_FLAGS=-fsanitize=fuzzer-no-link -DPLASMOS_SANITIZE=address,undefined \
    -DPLASMOS_FUZZERS=ON -DPLASMOS_WINDOW=OFF >/dev/null

targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    for corpus in "$root"/tests/fuzz/corpus/*; do
        targets+=("$(basename "$corpus")")
    done
fi
cmake --build "$folder" --target "${targets[@]/%/_fuzz}"
for target in "${targets[@]}"; do
    grown=$folder/corpus/$target
    mkdir -p "$grown"
    echo "=== $target, $seconds seconds"
    status=0
    "$folder/tests/fuzz/${target}_fuzz" -max_total_time="$seconds" -timeout=20 -max_len=8192 -print_final_stats=1 \
        -artifact_prefix="$folder/$target-" "$grown" "$root/tests/fuzz/corpus/$target" >"$folder/$target.log" 2>&1 ||
        status=$?
    grep -E 'ERROR|SUMMARY|does not hold|stat::number_of_executed_units|artifact' "$folder/$target.log" || true
    if [ "$status" -ne 0 ] || compgen -G "$folder/$target-*" >/dev/null; then
        echo "$target: there is a finding, see $folder/$target.log" >&2
        exit 1
    fi
done
