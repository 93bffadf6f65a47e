# shellcheck shell=bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# What ./play, ./test and .ci/run share. They set `root` to the folder of the sources first.

: "${root:?}"

say() { printf '%s\n' "$*"; }
fail() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

has_debian_packages() { command -v dpkg-query >/dev/null 2>&1; }

# The packages of some groups that are not installed, one a line.
missing_packages() {
    local wanted status package
    mapfile -t wanted < <("$root/packaging/packages.sh" "$@")
    if ! has_debian_packages; then
        return
    fi
    for package in "${wanted[@]}"; do
        status=$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null || true)
        case $status in
            'install ok installed') ;;
            *) say "$package" ;;
        esac
    done
}

# How packages are installed here: "" as root, "sudo" with it, and nothing can be done without.
install_prefix() {
    if [ "$(id -u)" -eq 0 ]; then
        say direct
    elif command -v sudo >/dev/null 2>&1 && { [ -t 0 ] || sudo -n true 2>/dev/null; }; then
        say sudo
    else
        say none
    fi
}

install_command() {
    local prefix=''
    [ "$(id -u)" -eq 0 ] || prefix='sudo '
    say "${prefix}apt-get update && ${prefix}apt-get install --no-install-recommends $*"
}

run_apt() {
    if [ "$(id -u)" -eq 0 ]; then
        env DEBIAN_FRONTEND=noninteractive apt-get -y "$@" </dev/null
    else
        sudo env DEBIAN_FRONTEND=noninteractive apt-get -y "$@"
    fi
}

# Installs what is missing of some groups; does nothing when nothing is.
install_missing() {
    local missing
    if ! has_debian_packages; then
        require_tools
        return
    fi
    mapfile -t missing < <(missing_packages "$@")
    if [ ${#missing[@]} -eq 0 ]; then
        return
    fi
    say "Missing packages: ${missing[*]}"
    if [ "$(install_prefix)" = none ]; then
        say "They cannot be installed from here. Run this as an administrator, then start again:"
        say "  $(install_command "${missing[@]}")"
        exit 1
    fi
    if ! apt-cache show "${missing[@]}" >/dev/null 2>&1; then
        run_apt update || fail "the lists of packages cannot be read"
    fi
    if ! run_apt install --no-install-recommends "${missing[@]}"; then
        run_apt update || fail "the lists of packages cannot be read"
        run_apt install --no-install-recommends "${missing[@]}" || fail "these packages cannot be installed: ${missing[*]}"
    fi
}

# Systems without Debian packages: the tools must be there, the libraries are looked for by cmake.
require_tools() {
    local tool
    for tool in cmake ninja c++; do
        command -v "$tool" >/dev/null 2>&1 ||
            fail "'$tool' is missing; README.md names the packages for systems other than Debian and Ubuntu"
    done
}

cache_value() {
    [ -f "$1/CMakeCache.txt" ] || return 0
    sed -n "s/^$2:[A-Z]*=//p" "$1/CMakeCache.txt"
}

use_ccache() {
    if [ -z "${CMAKE_CXX_COMPILER_LAUNCHER:-}" ] && command -v ccache >/dev/null 2>&1; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    fi
    # Without it ccache passes on whatever is compiled with precompiled headers.
    export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros}
}

# configure FOLDER PRESET [-DNAME=VALUE]...: configures a build folder unless it is configured that
# way already.
configure() {
    local folder=$1 preset=$2 setting name current up_to_date=yes
    shift 2
    use_ccache
    current=$(cache_value "$folder" CMAKE_HOME_DIRECTORY)
    if [ -n "$current" ] && [ "$current" != "$root" ]; then
        rm -rf "$folder"    # the folder was moved or copied: its paths are wrong
    fi
    [ -f "$folder/build.ninja" ] || up_to_date=no
    for setting in "$@"; do
        name=${setting#-D}
        [ "$(cache_value "$folder" "${name%%=*}")" = "${setting#*=}" ] || up_to_date=no
    done
    if [ "$up_to_date" = no ]; then
        (cd "$root" && cmake --preset "$preset" -B "$folder" "$@")
    fi
}

build() {
    local folder=$1
    shift
    cmake --build "$folder" -j "$(jobs_at_once)" "$@"
}

jobs_at_once() { nproc 2>/dev/null || say 2; }

# Runs ctest over a build folder with a home, data folder and settings of its own, and leaves a report
# of what ran: run_ctest FOLDER REPORT [ctest option]...
run_ctest() {
    local folder=$1 report=$2 home status=0
    shift 2
    home=$(mktemp -d)
    : >"$report"
    env HOME="$home" XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/.local/share" \
        XDG_CACHE_HOME="$home/.cache" PLASMOS_DATA="$home/data" \
        QT_QPA_PLATFORM="${QT_QPA_PLATFORM:-offscreen}" \
        ctest --test-dir "$folder" --output-on-failure -j "$(jobs_at_once)" --output-junit "$report" \
        --test-output-size-passed 1000000 --test-output-size-failed 1000000 "$@" || status=$?
    rm -rf "$home"
    return "$status"
}

# "passed failed" of a report: one for each test case of the unit tests, and for a window test the
# cases that its own closing line counts. A skipped test is neither.
count_cases() {
    awk '
        /<testcase / {
            totals = bad_here = 0
            state = /status="run"/ ? "passed" : /status="fail"/ ? "failed" : "skipped"
        }
        /<skipped message="Unable to find executable/ { state = "failed" }
        /Totals: [0-9]+ passed, [0-9]+ failed/ {
            sub(/.*Totals: /, "")
            totals = 1; good += $1; bad += $3; bad_here += $3
        }
        /<\/testcase>/ {
            if (state == "passed" && !totals) ++good
            if (state == "failed" && !bad_here) ++bad
        }
        END { print good + 0, bad + 0 }' "$1"
}
