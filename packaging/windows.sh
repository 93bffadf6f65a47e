#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The long form for Windows: cross-compiles core and simulator (mingw-w64), runs them under Wine,
# compares the signature with this system's, looks where the trace files lie, and packs the simulator
# (build/windows/plasmos-*.zip). The window is built, too, where PLASMOS_QT_WINDOWS names the folder of a
# Qt 6 for mingw-w64; neither Debian nor npm has one.
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

# A game as the window plays it makes its data folder, and nothing else on the whole disk.
x86_64-w64-mingw32-g++-posix -std=c++20 -O2 -static -I "$root" -o "$folder/one-game.exe" \
    "$root/tests/support/main_one_game.cpp" "$folder/libplasmos_core.a"
disk=$WINEPREFIX/drive_c
rm -rf "$disk/QX"
find "$disk" | sort >"$folder/before.txt"
wine "$folder/one-game.exe"
find "$disk" | sort >"$folder/after.txt"
made=$(comm -13 "$folder/before.txt" "$folder/after.txt" | sed "s|^$disk/||" | tr '\n' ' ')
echo "made on the disk: $made"
[ "$made" = 'QX QX/Plasmo6 QX/Plasmo6/movefil.txt QX/Plasmo6/zynames.txt ' ]

(cd "$folder" && cpack -G ZIP)
unzip -l "$folder"/plasmos-*.zip 2>/dev/null | grep -q 'plasmos-sim.exe'

if [ -z "${PLASMOS_QT_WINDOWS:-}" ]; then
    echo "The window is not built: PLASMOS_QT_WINDOWS names no Qt 6 for mingw-w64, and Debian and npm have none."
    exit 0
fi
cmake -S "$root" -B "$folder-window" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_SYSTEM_NAME=Windows \
    -DCMAKE_CXX_COMPILER=x86_64-w64-mingw32-g++-posix -DCMAKE_PREFIX_PATH="$PLASMOS_QT_WINDOWS" -DQT_HOST_PATH=/usr \
    -DPLASMOS_TESTS=OFF -DPLASMOS_SIMULATOR=OFF >/dev/null
cmake --build "$folder-window" --target plasmos
