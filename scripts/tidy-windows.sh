#!/usr/bin/env bash
# clang-tidy over the sources that include <windows.h>, against mingw-w64's headers. Run by hand, since it takes minutes.
# Reads how the win preset compiles each file. FILE...: those files only.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

gcc_include="$(dirname "$(x86_64-w64-mingw32-g++ -print-libgcc-file-name)")/include"
cmake --preset win -B build/tidy-win -DTARNWICK_EACH_FILE=ON -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
if [[ $# -gt 0 ]]; then printf '%s\0' "$@"; else find src/win32 src/app trialcad -name '*.cpp' -print0; fi |
    xargs -0 -n2 -P"$(nproc)" clang-tidy -p build/tidy-win --quiet \
        --extra-arg=--target=x86_64-w64-windows-gnu \
        --extra-arg=-isystem"$gcc_include/c++" \
        --extra-arg=-isystem"$gcc_include/c++/x86_64-w64-mingw32" \
        --extra-arg=-isystem/usr/x86_64-w64-mingw32/include \
        2> >(grep -v ' warnings\? generated\.$' >&2 || true)
