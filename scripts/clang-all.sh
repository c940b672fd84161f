#!/usr/bin/env bash
# Compiles every source and header by itself with a second compiler, Clang, without a warning; those for Windows against
# mingw-w64's headers. Run by hand and in the workflow, since it takes minutes. FILE...: those files only.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset win >/dev/null # for what it generates
common=(-fsyntax-only -std=c++20 -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
    -Woverloaded-virtual -Wno-pragma-once-outside-header -Werror -I src -I . -I tests -I tests/endtoend -I bench/windows -I build/win/generated)
gcc_include="$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")/include"
windows=(--target=x86_64-w64-windows-gnu
    -isystem "$gcc_include/c++" -isystem "$gcc_include/c++/x86_64-w64-mingw32" -isystem /usr/x86_64-w64-mingw32/include
    -isystem /usr/src/googletest/googletest/include
    -DUNICODE -D_UNICODE -DWIN32_LEAN_AND_MEAN -DNOMINMAX -DSTRICT -DWINVER=0x0A00 -D_WIN32_WINNT=0x0A00)

scratch="$(mktemp -d)"
trap 'rm -r "$scratch"' EXIT
files=("$@")
((${#files[@]})) || mapfile -t files < <(find src trialcad driver demo tests bench -name '*.cpp' -o -name '*.h' | sort)
for file in "${files[@]}"; do
    case "$file" in
        */native/* | */fake/* | tests/fuzz/* | tests/threads/*) printf '%s\0' "$file" >>"$scratch/native" ;;
        *) printf '%s\0' "$file" >>"$scratch/windows" ;;
    esac
done
check() { # sources, options...
    [[ ! -e "$1" ]] || xargs -0 -n1 -P"$(nproc)" clang++ "${common[@]}" "${@:2}" -x c++ <"$1"
}
failures=0
check "$scratch/native" || failures=1
check "$scratch/windows" "${windows[@]}" || failures=1
exit $failures
