#!/usr/bin/env bash
# The built programs are hardened, self-contained and small: ASLR, DEP, only DLLs that every Windows has, 500 KB at most.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../build/win/bin"

allowed='advapi32|comctl32|gdi32|kernel32|msvcrt|ole32|oleaut32|shell32|user32'
failures=0
complain() { echo "$1: $2"; failures=$((failures + 1)); }

for program in tarnwick.exe tarnwick-trialcad.exe; do
    headers="$(x86_64-w64-mingw32-objdump -p "$program")"
    for flag in HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT; do
        grep -q "$flag" <<<"$headers" || complain "$program" "linked without $flag"
    done
    strange="$(sed -n 's/^\s*DLL Name: //p' <<<"$headers" | grep -viE "^($allowed)\.dll$" || true)"
    [[ -z "$strange" ]] || complain "$program" "needs $(tr '\n' ' ' <<<"$strange")"
done
size="$(stat -c %s tarnwick.exe)"
((size <= 512000)) || complain tarnwick.exe "$size bytes, more than 500 KB"
echo "tarnwick.exe: $size bytes"
exit $((failures > 0))
