#!/usr/bin/env bash
# The built programs are hardened, self-contained and small: ASLR, DEP, only DLLs that every Windows has, 640 KB at most.
# They tell neither when nor where they were built, so that two builds of one commit are the same.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$root/build/win/bin"

allowed='advapi32|comctl32|gdi32|kernel32|msvcrt|ole32|oleaut32|shell32|user32'
failures=0
complain() { echo "$1: $2"; failures=$((failures + 1)); }

for program in tarnwick.exe tarnwick-trialcad.exe; do
    headers="$(LC_ALL=C TZ=UTC x86_64-w64-mingw32-objdump -p "$program")"
    for flag in HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT TERMINAL_SERVICE_AWARE; do
        grep -q "$flag" <<<"$headers" || complain "$program" "linked without $flag"
    done
    grep -qP '^MajorSubsystemVersion\t10$' <<<"$headers" || complain "$program" "does not ask for Windows 10"
    grep -q '^Time/Date.*Jan  1 00:00:00 1970$' <<<"$headers" || complain "$program" "tells when it was linked"
    ! grep -qaF "$root" "$program" || complain "$program" "tells where it was built"
    strange="$(sed -n 's/^\s*DLL Name: //p' <<<"$headers" | grep -viE "^($allowed)\.dll$" || true)"
    [[ -z "$strange" ]] || complain "$program" "needs $(tr '\n' ' ' <<<"$strange")"
done

# In a PNG the byte after the size is the depth, and the next one the kind of colours: 6 is red, green, blue and alpha. A
# plain bitmap has its depth in bits after its size.
number() { echo $(($(od -An -tu"$3" -j"$2" -N"$3" "$1"))); }
for icon in "$root"/assets/*.ico; do
    for ((entry = 6; entry < 6 + 16 * $(number "$icon" 4 2); entry += 16)); do
        picture="$(number "$icon" $((entry + 12)) 4)"
        case "$(number "$icon" "$picture" 1)" in
            40) depth="$(number "$icon" $((picture + 14)) 2)" ;;
            *) depth=$((8 * ($(number "$icon" $((picture + 25)) 1) == 6 ? 4 : 1))) ;;
        esac
        ((depth == 32)) || complain "$(basename "$icon")" "a picture $(number "$icon" "$entry" 1) pixels wide has no alpha"
    done
done

size="$(stat -c %s tarnwick.exe)"
((size <= 655360)) || complain tarnwick.exe "$size bytes, more than 640 KB"
echo "tarnwick.exe: $size bytes"
exit $((failures > 0))
