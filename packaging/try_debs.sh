#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The long form of the packages: a bare Debian 12 is made, the packages are installed there with apt, the game is
# started from its desktop entry on an X server in memory, a record is opened by its type, and all is removed again.
#   packaging/try_debs.sh [FOLDER FOR PICTURES]     as root; needs mmdebstrap and Debian's mirror
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
build=$root/build/release
pictures=${1:-$root/build/debs}
command -v mmdebstrap >/dev/null || { echo "try_debs.sh: mmdebstrap is missing (package mmdebstrap)" >&2; exit 2; }
[ -x "$build/plasmos" ] || { echo "try_debs.sh: build/release/plasmos is missing; ./test builds it" >&2; exit 2; }

work=$(mktemp -d)
bare=$work/debian
cleanup() {
    umount "$bare/proc" 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

mkdir -p "$pictures"
(cd "$build" && cpack -G DEB -B "$work/debs" >/dev/null 2>&1)
mmdebstrap --quiet --variant=apt bookworm "$bare"
cp /etc/resolv.conf "$bare/etc/resolv.conf"
mount -t proc proc "$bare/proc"
cp "$work"/debs/*.deb "$bare/root/"
"$build/plasmos-sim" --games 1 --persons 1 --records "$bare/root/records" >/dev/null 2>&1
head -40 "$bare/root/records/1.plasmos" >"$bare/root/mine.plasmos"

inside() { chroot "$bare" env -i PATH=/usr/local/bin:/usr/bin:/bin:/usr/sbin:/sbin:/usr/games HOME=/root LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive "$@"; }

list() { (cd "$bare" && find usr etc opt -not -type d -newer "$work/mark" | grep -v -E '^(usr/share/mime|etc/ld.so.cache)' | sort); }

# What a desktop has anyway.
inside apt-get -qq update
inside apt-get -y -qq install --no-install-recommends xvfb xauth xdotool imagemagick libglib2.0-bin desktop-file-utils \
    shared-mime-info fonts-dejavu-core hicolor-icon-theme >"$work/log" 2>&1 || { tail "$work/log"; exit 1; }
inside sh -c 'dpkg -l | sort >/root/before'
touch "$work/mark"
inside sh -c 'apt-get -y -qq install --no-install-recommends /root/*.deb' >"$work/log" 2>&1 || { tail "$work/log"; exit 1; }
inside sh -c 'command -v plasmos; command -v plasmos-sim'

cat >"$bare/root/look" <<'LOOK'
set -eu
"$@" &
for _ in $(seq 60); do
    window=$(xdotool search --name '^Plasmos' 2>/dev/null | tail -n 1) && [ -n "$window" ] && break
    sleep 0.5
done
sleep 2
import -window root "/root/picture.png"
xdotool search --name '^Plasmos' getwindowname
# shellcheck disable=SC2046
kill $(pidof plasmos)
sleep 1
LOOK
show() {
    local name=$1
    shift
    inside xvfb-run -a -s '-screen 0 1400x900x24' sh /root/look "$@"
    cp "$bare/root/picture.png" "$pictures/$name.png"
}
echo "from the desktop entry:"
show desktop gio launch /usr/share/applications/org.plasmos.Plasmos.desktop
echo "by the type of a record:"
inside gio mime application/x-plasmos-record | sed -n 1p
show record gio open /root/mine.plasmos
[ -d "$bare/root/.local/share/QX/Plasmo6" ]

inside sh -c 'apt-get -y -qq purge plasmos plasmos-sim && apt-get -y -qq autoremove --purge' >/dev/null 2>&1
inside sh -c 'dpkg -l | sort >/root/after; diff /root/before /root/after'
left=$(list | grep -i plasmos || true)
[ -z "$left" ] || { echo "left behind: $left" >&2; exit 1; }
[ -d "$bare/root/.local/share/QX/Plasmo6" ] && echo "removed; the person's own data are still there"
