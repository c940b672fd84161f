#!/usr/bin/env bash
# The packages match SHA256SUMS. The installer needs no administrator and only Windows' own DLLs, and has the flags of a
# hardened program (except a random address: Debian's NSIS leaves no relocations in it).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
cmake --build build/win --target package >/dev/null
cd build/win/package

setup="$(echo tarnwick-*-setup.exe)"
failures=0
complain() { echo "$setup: $1"; failures=$((failures + 1)); }

headers="$(LC_ALL=C x86_64-w64-mingw32-objdump -p "$setup")"
for flag in HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT TERMINAL_SERVICE_AWARE; do
    grep -q "$flag" <<<"$headers" || complain "linked without $flag"
done
strange="$(sed -n 's/^\s*DLL Name: //p' <<<"$headers" |
    grep -viE '^(advapi32|comctl32|gdi32|kernel32|ole32|shell32|user32)\.dll$' || true)"
[[ -z "$strange" ]] || complain "needs $(tr '\n' ' ' <<<"$strange")"
for needed in SetDefaultDllDirectories 'requestedExecutionLevel level="asInvoker"'; do
    grep -qaF "$needed" "$setup" || complain "has no $needed"
done

sha256sum --check --strict --quiet SHA256SUMS || failures=$((failures + 1))
for package in tarnwick-*; do
    grep -q " $package\$" SHA256SUMS || complain "$package has no sum"
done
exit $((failures > 0))
