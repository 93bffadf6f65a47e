#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# What is installed and packaged, looked at with the desktops' and Debian's own tools. One check a call:
#   check.sh CHECK SOURCES BUILD
# A check whose tool is missing ends with code 77 and a line that says so.
set -euo pipefail

check=$1
sources=$2
build=$3
id=org.plasmos.Plasmos
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export HOME=$scratch/home LC_ALL=C.UTF-8
mkdir -p "$HOME"

need() {
    command -v "$1" >/dev/null || { echo "skipped: $1 is missing (package $2)"; exit 77; }
}

fail() { echo "$*" >&2; exit 1; }

# The long options that a text names, one a line.
options_in() { grep -oE -- '(^|[^-[:alnum:]])--[a-z]+' | grep -oE -- '--[a-z]+' | sort -u; }

desktop() {
    need desktop-file-validate desktop-file-utils
    desktop-file-validate "$sources/packaging/data/$id.desktop"
}

metainfo() {
    need appstreamcli appstream
    appstreamcli validate --no-net "$build/$id.metainfo.xml"
    grep -q "version=\"$("$build/plasmos-sim" --version | cut -d' ' -f2)\"" "$build/$id.metainfo.xml" ||
        fail "the release in the metainfo is not the program's"
}

manual() {
    need mandoc mandoc
    mandoc -T lint -W warning "$sources"/packaging/man/*.6
}

# The manual page and the completion know the options that the program knows.
options() {
    need man man-db
    local known manual completed
    known=$("$build/plasmos-sim" --help | options_in)
    manual=$(MANWIDTH=200 man -P cat "$sources/packaging/man/plasmos-sim.6" 2>/dev/null | col -b | options_in)
    [ "$known" = "$manual" ] || fail "the manual page of plasmos-sim has other options: $(diff <(echo "$known") <(echo "$manual"))"
    completed=$(bash -c '. "$1"; COMP_WORDS=(plasmos-sim --); COMP_CWORD=1; _plasmos_sim; printf "%s\n" "${COMPREPLY[@]}"' \
        completion "$sources/packaging/completion/plasmos-sim" | sort -u)
    [ "$known" = "$completed" ] || fail "the completion has other options: $(diff <(echo "$known") <(echo "$completed"))"
    if [ -x "$build/plasmos" ]; then
        known=$("$build/plasmos" --help | options_in)
        manual=$(MANWIDTH=200 man -P cat "$sources/packaging/man/plasmos.6" 2>/dev/null | col -b | options_in)
        [ "$known" = "$manual" ] || fail "the manual page of plasmos has other options: $(diff <(echo "$known") <(echo "$manual"))"
    fi
}

# The window opens and closes when it is asked to.
starts() {
    local code=0
    PLASMOS_DATA=$scratch/data QT_QPA_PLATFORM=offscreen timeout --signal=TERM 3 "$@" 2>"$scratch/err" || code=$?
    [ "$code" -eq 124 ] || [ "$code" -eq 0 ] || { cat "$scratch/err"; fail "$1 ended with code $code"; }
    [ -d "$scratch/data" ] || fail "$1 has not come so far as to make its data folder"
}

scratch_install() {
    cmake --install "$build" --prefix "$scratch/prefix" >/dev/null
    local file
    for file in share/applications/$id.desktop share/mime/packages/$id.xml share/metainfo/$id.metainfo.xml \
        share/icons/hicolor/scalable/apps/$id.svg share/icons/hicolor/symbolic/apps/$id-symbolic.svg \
        share/icons/hicolor/48x48/apps/$id.png share/bash-completion/completions/plasmos-sim bin/plasmos bin/plasmos-sim; do
        [ -s "$scratch/prefix/$file" ] || fail "$file is not installed"
    done
    compgen -G "$scratch/prefix/share/man/man6/plasmos.6*" >/dev/null || fail "the manual page is not installed"
    "$scratch/prefix/bin/plasmos-sim" --games 3 2>/dev/null | grep -q '^games: 3$' || fail "the simulator does not play"
    starts "$scratch/prefix/bin/plasmos"
}

type_of_records() {
    need update-mime-database shared-mime-info
    need gio libglib2.0-bin
    export XDG_DATA_HOME=$scratch/prefix/share XDG_DATA_DIRS=$scratch/prefix/share
    cmake --install "$build" --prefix "$scratch/prefix" >/dev/null
    update-mime-database "$scratch/prefix/share/mime"
    "$build/plasmos-sim" --games 1 --persons 1 --records "$scratch/records" >/dev/null 2>&1
    cp "$scratch/records/1.plasmos" "$scratch/records/renamed"
    local name
    for name in 1.plasmos renamed; do
        gio info -a standard::content-type "$scratch/records/$name" | grep -q application/x-plasmos-record ||
            fail "$name is not known as a record"
    done
}

debs() {
    need dpkg-shlibdeps dpkg-dev
    need lintian lintian
    (cd "$build" && cpack -G DEB -B "$scratch/debs" >"$scratch/log" 2>&1) || { cat "$scratch/log"; fail "cpack makes no packages"; }
    rm -rf "$scratch/debs/_CPack_Packages"
    lintian --allow-root --fail-on error --suppress-tags initial-upload-closes-no-bugs "$scratch"/debs/*.deb
    mkdir -p "$scratch"/root/var/lib/dpkg/{info,updates}
    touch "$scratch"/root/var/lib/dpkg/status
    files() { (cd "$scratch/root" && find . -path ./var/lib/dpkg -prune -o -print | sort); }
    local before after dpkg=(dpkg --root="$scratch/root" --force-depends --force-not-root --log=/dev/null)
    before=$(files)
    "${dpkg[@]}" -i "$scratch"/debs/*.deb >/dev/null 2>&1
    [ -x "$scratch/root/usr/games/plasmos" ] || fail "the package installs no game"
    starts "$scratch/root/usr/games/plasmos"
    "${dpkg[@]}" -P plasmos plasmos-sim >/dev/null 2>&1
    after=$(files)
    [ "$before" = "$after" ] || fail "removing the packages leaves: $(diff <(echo "$before") <(echo "$after"))"
    [ -d "$scratch/data" ] || fail "removing the packages takes the person's own data"
}

case $check in
    desktop | metainfo | manual | options | scratch_install | type_of_records | debs) "$check" ;;
    *) fail "there is no check '$check'" ;;
esac
