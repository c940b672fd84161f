#!/usr/bin/env bash
# Builds the packages, then installs, runs and uninstalls Tarnwick under Wine as a user would, silently, and checks what
# each step leaves. A picture of the installed program is left beside the packages.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/wine-env.sh"
cd "$wine_root"

cmake --preset win >/dev/null
cmake --build --preset win -j"$(nproc)" --target package
packages=("$wine_root"/build/win/package/tarnwick-*)
setup="$(echo build/win/package/tarnwick-*-setup.exe)"
wine_start_on_virtual_screen

uninstall_key='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarnwick'
profile="$(unlocked wine cmd /c 'echo %LOCALAPPDATA%' 2>/dev/null | tr -d '\r')"
place="$(unlocked winepath -u "$profile")/Programs/Tarnwick"
menu="$(unlocked winepath -u "$(unlocked wine cmd /c 'echo %APPDATA%' 2>/dev/null | tr -d '\r')")/Microsoft/Windows/Start Menu/Programs/Tarnwick"

fail() { echo "FAILED: $*" >&2; exit 1; }
expect() { [[ -e "$1" ]] || fail "missing: $1"; }
expect_gone() { [[ ! -e "$1" ]] || fail "still there: $1"; }
wait_for() { # what, command...
    local what="$1"; shift
    for ((try = 0; try < 300; ++try)); do "$@" && return; sleep 0.2; done
    fail "waited in vain for $what"
}

echo "Packages:"
ls -l "${packages[@]}" | awk '{print "  " $5, $9}'

rm -rf "$place"
unlocked wine "$setup" /S
for file in tarnwick.exe tarnwick-trialcad.exe LISEZMOI.txt uninstall.exe; do expect "$place/$file"; done
expect "$menu/Tarnwick.lnk"
unlocked wine reg query "$uninstall_key" /v DisplayVersion >/dev/null 2>&1 || fail "not registered"
echo "Installed in $place"

journal="$wine_root/build/win/package/journal.txt"
wine "$place/tarnwick-trialcad.exe" --hidden --journal "$(unlocked winepath -w "$journal")" {wine_lock_fd}>&- &
cad=$!
wait_for "the trial session" test -e "$journal"
wine "$place/tarnwick.exe" {wine_lock_fd}>&- &
program=$!
wait_for "the program's calls" grep -q GetCurrentWorkingDirectory "$journal"
unlocked wine "$setup" /S && fail "a running program was replaced"
sleep 1 # for the picture only
import -window root build/win/package/installed.png
kill "$program" "$cad"
wait "$program" "$cad" 2>/dev/null || true
echo "Ran; the trial session received: $(tr '\n' ' ' <"$journal")"

echo "user's list" >"$place/tarnwick.lst"
echo "user's configurations" >"$place/tarnwick.cfg"
unlocked wine "$place/uninstall.exe" /S
removed() { [[ ! -e "$place/tarnwick.exe" && ! -e "$place/uninstall.exe" && ! -e "$menu" ]]; }
wait_for "the uninstaller" removed
unregistered() { ! unlocked wine reg query "$uninstall_key" >/dev/null 2>&1; }
wait_for "the registration to go" unregistered
for file in tarnwick-trialcad.exe LISEZMOI.txt; do expect_gone "$place/$file"; done
expect "$place/tarnwick.lst"
expect "$place/tarnwick.cfg"
rm -rf "$place"
echo "Uninstalled; tarnwick.lst and tarnwick.cfg are still there"
