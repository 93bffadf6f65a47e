#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# How long functions and files are: nine of ten functions have at most 20 lines, none has more than 50, and no
# file has 300. It reads the sources as clang-format leaves them, and fails where that does not hold.
#
#   packaging/lengths.sh         the longest, and what is too long
#   packaging/lengths.sh -v      every function of more than 35 lines too
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"

most_of_nine_in_ten=20
longest_function=50
longest_file=299
listed=$longest_function
[ "${1:-}" != -v ] || listed=35

# "lines file:line name" for every function with a body, from its first line to its last bracket.
functions() {
    awk '
        # What is left of brackets is code.
        function code(text) {
            gsub(/\\./, "", text)
            gsub(/"[^"]*"/, "", text)
            gsub(/\047.\047/, "", text)
            sub(/\/\/.*/, "", text)
            sub(/[ \t]+$/, "", text)
            return text
        }
        function count(text, bracket) { return gsub(bracket, "", text) }
        FNR == 1 { head = ""; depth = 0 }
        {
            line = code($0)
            if (depth > 0) {
                depth += count(line, "{") - count(line, "}")
                if (depth <= 0 && name != "") {
                    print FNR - first + 1, FILENAME ":" first, name
                }
                next
            }
            if (line == "" || (head == "" && line ~ /^[ \t]*([#}]|public|private|protected|template)/)) {
                next
            }
            if (head == "") {
                first = FNR
            }
            head = head " " line
            if (line !~ /[;{}]$/) {
                next
            }
            whole = head
            head = ""
            before = whole
            sub(/[({].*/, "", before)
            depth = count(whole, "{") - count(whole, "}")
            name = ""
            if (before ~ /(^|[ \t])(namespace|class|struct|enum|union|extern)[ \t]/ && whole !~ /\)[^;]*{/) {
                depth = 0
            } else if (whole ~ /\)[^=;]*{/ && before !~ /=/) {
                name = before
                sub(/.*[ \t*&]/, "", name)
                if (depth == 0) {
                    print FNR - first + 1, FILENAME ":" first, name
                }
            }
        }
    ' "$@"
}

mapfile -t sources < <(git ls-files '*.h' '*.cpp' | grep -E '^(files|model|questions|rules|ai|flow|record|sim|ui)/')
mapfile -t all < <(git ls-files '*.h' '*.cpp')
mapfile -t found < <(functions "${sources[@]}" | sort -rn)
mapfile -t files < <(wc -l "${all[@]}" | awk '$2 != "total" { print $1, $2 }' | sort -rn)

lines() { printf '%s\n' "${1%% *}"; }

nine_in_ten=$(lines "${found[${#found[@]} / 10]}")
printf '%s functions: nine of ten have at most %s lines, the longest has %s: %s\n' \
    "${#found[@]}" "$nine_in_ten" "$(lines "${found[0]}")" "${found[0]#* }"
printf '%s files: the longest has %s lines: %s\n' "${#files[@]}" "$(lines "${files[0]}")" "${files[0]#* }"
printf '%s\n' "${found[@]}" | awk -v most="$listed" '$1 > most { print "  " $0 }'
printf '%s\n' "${files[@]}" | awk -v most="$longest_file" '$1 > most { print "  " $0 }'

[ "$nine_in_ten" -le "$most_of_nine_in_ten" ] && [ "$(lines "${found[0]}")" -le "$longest_function" ] &&
    [ "$(lines "${files[0]}")" -le "$longest_file" ]
