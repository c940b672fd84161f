#!/usr/bin/env bash
# Every source passes a second compiler, Clang, without a warning: those of Windows against mingw-w64's headers. By hand
# and in the workflow, for it takes a minute or two. FILE...: those files only.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset win >/dev/null # for what it generates
common=(-fsyntax-only -std=c++20 -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
    -Woverloaded-virtual -Werror -I src -I . -I tests -I tests/endtoend -I bench/windows -I build/win/generated)
gcc_include="$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")/include"
windows=(--target=x86_64-w64-windows-gnu
    -isystem "$gcc_include/c++" -isystem "$gcc_include/c++/x86_64-w64-mingw32" -isystem /usr/x86_64-w64-mingw32/include
    -isystem /usr/src/googletest/googletest/include
    -DUNICODE -D_UNICODE -DWIN32_LEAN_AND_MEAN -DNOMINMAX -DSTRICT -DWINVER=0x0A00 -D_WIN32_WINNT=0x0A00)

# What most files include, parsed once.
scratch="$(mktemp -d)"
trap 'rm -r "$scratch"' EXIT
printf '#include <%s>\n' windows.h commctrl.h objbase.h oleauto.h algorithm functional map memory optional span string \
    vector gtest/gtest.h >"$scratch/all.h"
clang++ "${common[@]:1}" "${windows[@]}" -x c++-header "$scratch/all.h" -o "$scratch/all.pch"

files=("$@")
((${#files[@]})) || mapfile -t files < <(find src trialcad driver demo tests bench -name '*.cpp' | sort)
for file in "${files[@]}"; do
    case "$file" in
        */native/* | */fake/* | tests/fuzz/* | tests/threads/*) printf '%s\0' "$file" >>"$scratch/native" ;;
        *) printf '%s\0' "$file" >>"$scratch/windows" ;;
    esac
done
check() { # sources, options...
    [[ ! -e "$1" ]] || xargs -0 -n1 -P"$(nproc)" clang++ "${common[@]}" "${@:2}" <"$1"
}
failures=0
check "$scratch/native" || failures=1
check "$scratch/windows" "${windows[@]}" -include-pch "$scratch/all.pch" || failures=1
exit $failures
