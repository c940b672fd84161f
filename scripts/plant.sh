#!/usr/bin/env bash
# plant.sh [WORD...]: plants each fault of tests/planted/faults.tsv in a copy of the sources, one at a time, and lists those
# that no native test finds; with words, only the faults whose line has one of them. A line is a file, a text of it (its
# first place counts) ==> what replaces it, and what that breaks, separated by tabs. Run by hand, since all of them take
# half an hour; TARNWICK_PLANT_JOBS (1) are tried at a time.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
faults=tests/planted/faults.tsv
jobs="${TARNWICK_PLANT_JOBS:-1}"

build() { # place
    cmake --build "$1/build" --target unit -j"$(($(nproc) / jobs > 0 ? $(nproc) / jobs : 1))" >"$1/log" 2>&1
}

prepare() { # place: a copy of the sources as they are, built and green
    mkdir -p "$1/sources"
    git ls-files -z --cached --others --exclude-standard | copy_changed "$1/sources"
    cmake -S "$1/sources" -B "$1/build" -DCMAKE_BUILD_TYPE=Debug -DTARNWICK_EACH_FILE=ON -DTARNWICK_NO_WERROR=ON \
        -DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST >"$1/log" 2>&1 || { cat "$1/log" >&2; exit 1; }
    build "$1" && "$1/build/tests/unit" --gtest_brief=1 >"$1/log" 2>&1 || { tail -20 "$1/log" >&2; exit 1; }
}

# Writes only what has changed, so that only that is compiled.
copy_changed() { # place; file names on standard input
    local file
    while IFS= read -r -d '' file; do
        [[ -e "$file" ]] || continue
        cmp -s "$file" "$1/$file" && continue
        mkdir -p "$1/$(dirname "$file")"
        cp "$file" "$1/$file"
    done
}

verdict() { # place
    local seen
    build "$1" || { echo "does not compile"; return; }
    timeout 120 "$1/build/tests/unit" --gtest_brief=1 >"$1/log" 2>&1 && { echo UNSEEN; return; }
    seen="$(grep -oP '^\[  FAILED  \] \K\w+\.\w+' "$1/log" | sort -u | wc -l)"
    echo "seen by $((seen ? seen : 1))"
}

plant() { # place; faults on standard input
    local file change what content old new
    while IFS=$'\t' read -r file change what; do
        content="$(cat "$file"; echo .)"
        old="${change%% ==> *}"
        new="${change#* ==> }"
        if [[ "$content" != *"$old"* ]]; then
            printf 'NOT THERE\t%s\t%s\n' "$file" "$what"
            continue
        fi
        printf '%s' "${content%%"$old"*}$new${content#*"$old"}" | head -c -1 >"$1/sources/$file"
        printf '%s\t%s\t%s\n' "$(verdict "$1")" "$file" "$what"
        cp "$file" "$1/sources/$file"
    done
}

chosen="$(grep -F "$(printf '%s\n' "${@:-$'\t'}")" "$faults")"
results=build/planted/results.tsv
mkdir -p build/planted
for ((job = 0; job < jobs; ++job)); do
    place="$PWD/build/planted/$job"
    { prepare "$place"; awk -v job="$job" -v jobs="$jobs" 'NR % jobs == job' <<<"$chosen" | plant "$place"; } &
done | tee "$results"
wait
echo "$(wc -l <"$results") faults, $(grep -cE '^(UNSEEN|NOT THERE|does not)' "$results" || true) that no test sees or that don't fit any more"
! grep -qE '^(UNSEEN|NOT THERE|does not)' "$results"
