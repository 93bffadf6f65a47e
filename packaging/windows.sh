#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The long form for Windows: cross-compiles core and simulator (mingw-w64), runs them under Wine,
# compares the signature with this system's, and looks where the trace files lie.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
folder=$root/build/windows
if ! command -v x86_64-w64-mingw32-g++-posix >/dev/null || ! command -v wine >/dev/null; then
    echo "needed: apt-get install g++-mingw-w64-x86-64-posix wine64 wine" >&2
    exit 2
fi

# The libraries are headers only; they are taken alone, so that no other header of this system is met.
headers=$folder/headers
mkdir -p "$headers"
ln -sfn /usr/include/CLI "$headers/CLI"
ln -sfn /usr/include/nlohmann "$headers/nlohmann"

cmake -S "$root" -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_SYSTEM_NAME=Windows \
    -DCMAKE_CXX_COMPILER=x86_64-w64-mingw32-g++-posix -DCMAKE_EXE_LINKER_FLAGS=-static \
    -DPLASMOS_WINDOW=OFF -DPLASMOS_TESTS=OFF -DPLASMOS_HEADERS="$headers" >/dev/null
cmake --build "$folder"

export WINEPREFIX=$folder/wine WINEDEBUG=-all
games=2000
signature() { sed -n 's/.*signature=\([0-9a-f]*\).*/\1/p'; }
here=$("$root/build/release/plasmos-sim" --bench --games $games | signature)
there=$(wine "$folder/plasmos-sim.exe" --bench --games $games | signature)
echo "signature of $games games: here $here, under Wine $there"
[ "$here" = "$there" ]

wine "$folder/plasmos-sim.exe" --games 1 --data 'C:\QX\Plasmo6' >/dev/null 2>&1
find "$WINEPREFIX/drive_c/QX" | sort
[ -f "$WINEPREFIX/drive_c/QX/Plasmo6/movefil.txt" ]
