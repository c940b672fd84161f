#!/usr/bin/env bash
# What the native tests reach of the core: a table by room, branches too.
# --missing [ROOM...]: also each branch that no test takes one way or the other.
# --windows: what the contract and the scenarios reach under Wine; lines only, since GCC counts a branch wherever something
# may throw.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
place=build/coverage

of_windows() {
    local place=build/coverage-win program
    cmake --preset win -B "$place" -DCMAKE_BUILD_TYPE=Debug -DTARNWICK_NO_WERROR=ON -DCMAKE_CXX_FLAGS=--coverage \
        >"$place.log" 2>&1 && cmake --build "$place" -j"$(nproc)" --target contract endtoend >>"$place.log" 2>&1 ||
        { cat "$place.log" >&2; exit 1; }
    find "$place" -name '*.gcda' -delete
    for program in contract endtoend; do
        GCOV_PREFIX=Z: TARNWICK_TIME_LIMIT=1200 scripts/under-wine.sh "$place/bin/tarnwick-$program.exe" --gtest_brief=1 >"$place.log" 2>&1 ||
            { cat "$place.log" >&2; exit 1; }
    done
    printf '%-14s %6s\n' folder lines
    (cd "$place" && find src -name '*.gcda' -exec x86_64-w64-mingw32-gcov-posix -n {} +) 2>/dev/null | awk '
    /^File / { file = $2; gsub(/\047/, "", file); sub(/^.*src\//, "", file) }
    /^Lines executed:/ && file ~ /^(win32\/.*|app\/win_main)\.cpp$/ {
        split($0, part, /[:%]/)
        folder = file
        sub(/\/[^\/]*$/, "", folder)
        lines[folder] += $NF; reached[folder] += $NF * part[2] / 100
        allLines += $NF; allReached += $NF * part[2] / 100
    }
    END {
        for (folder in lines) printf "%-14s %6d %5.1f %%\n", folder, lines[folder], 100 * reached[folder] / lines[folder] | "sort"
        close("sort")
        printf "%-14s %6d %5.1f %%\n", "all", allLines, 100 * allReached / allLines
    }'
}
[[ "${1:-}" != --windows ]] || { of_windows; exit; }

# Clang counts by the source, so templates and the library's own code are not counted as ours.
cmake -B "$place" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++ -DTARNWICK_NO_WERROR=ON \
    -DCMAKE_CXX_FLAGS='-fprofile-instr-generate -fcoverage-mapping' >"$place.log" 2>&1 &&
    cmake --build "$place" -j"$(nproc)" --target unit >>"$place.log" 2>&1 || { cat "$place.log" >&2; exit 1; }
LLVM_PROFILE_FILE="$place/unit.profraw" "$place/tests/unit" --gtest_brief=1 >"$place.log" 2>&1 || { cat "$place.log" >&2; exit 1; }
llvm-profdata merge -o "$place/unit.profdata" "$place/unit.profraw"
counts=(-instr-profile "$place/unit.profdata" "$place/tests/unit")

# Each file has figures in threes: how many, how many missed, per cent.
llvm-cov report "${counts[@]}" "$PWD"/src | awk '
function share(missed, all) { return all ? sprintf("%5.1f", 100 * (all - missed) / all) : "    -" }
function row(name, lines, missedLines, branches, missedBranches) {
    return sprintf("%-14s %6d %s %% %6d %s %%", name, lines, share(missedLines, lines), branches, share(missedBranches, branches))
}
BEGIN { printf "%-14s %6s %7s %6s %7s\n", "room", "lines", "", "branches", "" }
/\.(cpp|h) / {
    room = $1
    sub(/^.*src\//, "", room)
    sub(/\/.*/, "", room)
    lines[room] += $8; missedLines[room] += $9; branches[room] += $11; missedBranches[room] += $12
    allLines += $8; allMissed += $9; allBranches += $11; allMissedBranches += $12
}
END {
    for (room in lines) print row(room, lines[room], missedLines[room], branches[room], missedBranches[room]) | "sort"
    close("sort")
    print row("all", allLines, allMissed, allBranches, allMissedBranches)
}'

[[ "${1:-}" == --missing ]] || exit 0
shift
(($#)) || set -- .
for room in "$@"; do
    llvm-cov show "${counts[@]}" -show-branches=count "$PWD/src/$room" | awk '
    /^\/.*:$/ { file = $0; sub(/^.*\/src\//, "src/", file) }
    /^ *[0-9]+\|/ { split($0, part, "|"); source = part[3] }
    /Branch \(/ && /(True|False): 0[,\]]/ && !/(True: 0, False: 0)/ {
        match($0, /\([0-9]+/)
        print file substr($0, RSTART + 1, RLENGTH - 1) ": " ($0 ~ /True: 0/ ? "never true: " : "never false:") source
    }
    /^ *[0-9]+\| *0\|/ { split($0, part, "|"); gsub(/ /, "", part[1]); print file part[1] ": never reached:" part[3] }'
done
