#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Takes the pictures under docs/ anew, with build/release/plasmos-shot on a virtual screen. Their names tell the
# moment, the colours and the size.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
shot=$root/build/release/plasmos-shot
pictures=$root/docs/pictures

[ -x "$shot" ] || { echo "pictures.sh: build/release/plasmos-shot is missing; ./test builds it" >&2; exit 1; }
command -v xvfb-run >/dev/null || { echo "pictures.sh: xvfb-run is missing (package xvfb)" >&2; exit 1; }

# take NAME [option of plasmos-shot]...
take() {
    local name=$1
    shift
    QT_QPA_PLATFORM=xcb xvfb-run -a -s '-screen 0 2700x1600x24' "$shot" "$pictures/$name.png" "$@" 2>/dev/null
    echo "$name"
}

mkdir -p "$pictures"
take turn-light-1320x860
take meal-dark-1320x860 --at meal --replay 5 --colours dark
take meal-light-940x640 --at meal --replay 5 --clans 6 --size 940x640
take genes-light-1320x860 --at genes --replay 5
take genes-20-points-1320x860 --at genes --replay 5 --points 20
take adapt-light-1320x860 --at adapt --replay 12 --clans 4
take adapt-dark-940x640 --at adapt --replay 12 --clans 4 --colours dark --size 940x640
take attack-light-1320x860 --at attack --replay 13 --clans 4
take attack-contrast-1320x860 --at attack --replay 13 --clans 4 --colours contrast
take birth-light-1320x860 --at birth --replay 5
take turn-six-clans-940x640 --clans 6 --size 940x640
take turn-six-clans-2560x1440 --clans 6 --size 2560x1440
take look-back-light-1320x860 --at look --replay 5
take look-back-light-940x640 --at look --replay 5 --size 940x640
take why-light-1320x860 --at why --replay 5
take resume-light-1320x860 --at resume --replay 5
take resume-light-940x640 --at resume --replay 5 --size 940x640
take end-light-940x640 --at end --replay 13 --clans 6 --size 940x640
take end-light-1320x860 --at end --replay 13 --clans 4

# The handbook's: as wide as its window shows them, and small, for the program has them with it.
book=$root/docs/handbook/pictures
command -v mogrify >/dev/null || { echo "pictures.sh: mogrify is missing (package imagemagick)" >&2; exit 1; }
take_for_book() {
    local name=$1
    shift
    QT_QPA_PLATFORM=xcb xvfb-run -a -s '-screen 0 1600x1200x24' "$shot" "$book/$name.png" --size 900x640 "$@" 2>/dev/null
    echo "$name"
}
mkdir -p "$book"
take_for_book start --at start --replay 5 --clans 4
take_for_book turn
take_for_book meal --at meal --replay 5 --clans 4
take_for_book genes --at genes --replay 5 --clans 4
take_for_book adapt --at adapt --replay 12 --clans 4
take_for_book attack --at attack --replay 13 --clans 4
take_for_book look-back --at look --replay 5
take_for_book end --at end --replay 13 --clans 4
QT_QPA_PLATFORM=xcb xvfb-run -a "$shot" --boards "$book" 2>/dev/null
mogrify -strip +dither -colors 256 -define png:compression-level=9 "$book"/*.png

# A turn that goes by, for the README: three pictures a second.
film=$(mktemp -d)
trap 'rm -rf "$film"' EXIT
QT_QPA_PLATFORM=xcb xvfb-run -a -s '-screen 0 1600x1200x24' "$shot" --film "$film" --size 900x640 --replay 5 --clans 3 \
    2>/dev/null
convert -delay 33 -loop 0 "$film"/frame-*.png -resize 640x +dither -colors 48 -layers Optimize "$root/docs/turn.gif"
echo turn.gif
