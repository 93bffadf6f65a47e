#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Makes build/Plasmos-x86_64.AppImage, one file that is started as it is. Two tools are needed that Debian does not
# have: linuxdeploy with its plugin for Qt, and appimagetool. They are looked for by these names in the PATH.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
missing=()
for tool in linuxdeploy linuxdeploy-plugin-qt appimagetool; do
    command -v "$tool" >/dev/null || missing+=("$tool")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "appimage.sh: these tools are missing: ${missing[*]}" >&2
    echo "Each is one file; put it into the PATH under this name, executable." >&2
    exit 2
fi

build=$root/build/appimage
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
    -DPLASMOS_TESTS=OFF -DPLASMOS_SIMULATOR=OFF >/dev/null
cmake --build "$build"
rm -rf "$build/AppDir"
DESTDIR=$build/AppDir cmake --install "$build" >/dev/null
cd "$build"
QMAKE=$(command -v qmake6) LINUXDEPLOY_OUTPUT_VERSION='' linuxdeploy --appdir AppDir --plugin qt
appimagetool AppDir "$root/build/Plasmos-x86_64.AppImage"
echo "$root/build/Plasmos-x86_64.AppImage"
