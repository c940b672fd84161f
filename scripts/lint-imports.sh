#!/usr/bin/env bash
# The programs import only the functions in imported-functions.txt. A new one decides which versions of Windows they start
# on, so look up which version brought it before you accept it. --accept rewrites the list.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
known="$root/scripts/imported-functions.txt"
export LC_ALL=C

imported() {
    x86_64-w64-mingw32-objdump -p "$root"/build/win/bin/tarnwick{,-trialcad}.exe | awk '
        /^\tDLL Name: / { dll = tolower($3) }
        /^\t[0-9a-f]+\t +[0-9]+  / { print dll "!" $3 }' | sort -u
}

if [[ "${1:-}" == --accept ]]; then
    imported >"$known"
    exit
fi
changes="$(comm -3 --output-delimiter=' ' <(imported) "$known" | sed 's/^ /gone: /; t; s/^/new: /')"
[[ -z "$changes" ]] && exit
echo "$changes"
echo "See scripts/lint-imports.sh."
exit 1
