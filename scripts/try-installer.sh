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
trial_key='HKCU\Software\Classes\SldWorks.Application'
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
registry() { unlocked wine reg "$@" >/dev/null 2>&1; }
registered() { # value, text
    unlocked wine reg query "$uninstall_key" /v "$1" 2>/dev/null | grep -q "$2" || fail "not registered: $1 $2"
}
expect_code() { # code, command...
    local code="$1" seen=0; shift
    unlocked "$@" || seen=$?
    ((seen == code)) || fail "code $seen, not $code: $*"
}

echo "Packages:"
ls -l "${packages[@]}" | awk '{print "  " $5, $9}'
rm -rf "$place"

# Windows 8.1 and older are told what is needed, and nothing is installed.
version_key="HKCU\\Software\\Wine\\AppDefaults\\$(basename "$setup")"
registry add "$version_key" /v Version /d win81 /f
expect_code 3 wine "$setup" /S
registry delete "$version_key" /f
expect_gone "$place"
echo "Refused on an old Windows"

# An older release, with its user's files beside it.
older=build/win/package/older
rm -rf "$older"
cp -r build/win/package/Tarnwick "$older"
printf 'older' | tee -a "$older/tarnwick.exe" "$older/tarnwick-trialcad.exe" "$older/LISEZMOI.txt" >/dev/null
makensis -V0 -INPUTCHARSET UTF8 -DVERSION=1.04 -DFILES="$wine_root/$older" -DICON="$wine_root/assets/tarnwick.ico" \
    -DOUTPUT="$wine_root/$older/setup.exe" installer/tarnwick.nsi
unlocked wine "$older/setup.exe" /S
registered DisplayVersion 1.04
echo "user's list" >"$place/tarnwick.lst"
echo "user's configurations" >"$place/tarnwick.cfg"

# A program whose file can't be written, but not because it runs: a directory can't be opened as a file.
mv "$place/tarnwick.exe" "$older/kept.exe"
mkdir "$place/tarnwick.exe"
expect_code 4 wine "$setup" /S
rmdir "$place/tarnwick.exe"
mv "$older/kept.exe" "$place/tarnwick.exe"

unlocked wine "$setup" /S
for file in tarnwick.exe tarnwick-trialcad.exe LISEZMOI.txt guide.html; do
    cmp "build/win/package/Tarnwick/$file" "$place/$file" || fail "not replaced: $file"
done
for file in uninstall.exe tarnwick.lst tarnwick.cfg; do expect "$place/$file"; done
expect "$menu/Tarnwick.lnk"
registered DisplayVersion "$(sed -nE 's/^project\(tarnwick VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)"
registered EstimatedSize 0x
rm -r "$older"
echo "Installed in $place, over an older release"

journal="$wine_root/build/win/package/journal.txt"
rm -f "$journal" "$place/tarnwick.lst"
wine "$place/tarnwick-trialcad.exe" --hidden --journal "$(unlocked winepath -w "$journal")" {wine_lock_fd}>&- &
cad=$!
wait_for "the trial session" test -e "$journal"
wine "$place/tarnwick.exe" {wine_lock_fd}>&- &
program=$!
wait_for "the program's calls" grep -q GetCurrentWorkingDirectory "$journal"
expect_code 2 wine "$setup" /S
sleep 1 # for the picture only
import -window root build/win/package/installed.png
kill "$program" "$cad"
wait "$program" "$cad" 2>/dev/null || true
echo "Ran; the trial session received: $(tr '\n' ' ' <"$journal")"

# The uninstaller removes the trial session's class from the registry, and nobody else's.
uninstall() { # class
    registry add "$trial_key\\CLSID" /ve /d "$1" /f
    unlocked wine "$place/uninstall.exe" /S
    wait_for "the uninstaller" removed
    wait_for "the registration to go" unregistered
}
removed() { [[ ! -e "$place/tarnwick.exe" && ! -e "$place/uninstall.exe" && ! -e "$menu" ]]; }
unregistered() { ! registry query "$uninstall_key"; }

echo "user's list" >"$place/tarnwick.lst"
uninstall '{6E1B5B0A-3C0F-4C58-9C57-2A7D8F1E40B3}'
registry query "$trial_key" && fail "the trial session's class is still there"
for file in tarnwick-trialcad.exe LISEZMOI.txt guide.html; do expect_gone "$place/$file"; done
for file in tarnwick.lst tarnwick.cfg; do expect "$place/$file"; done
unlocked wine "$setup" /S
uninstall '{00000000-0000-0000-0000-000000000001}'
registry query "$trial_key" || fail "another program's class was removed"
registry delete "$trial_key" /f
rm -rf "$place"
echo "Uninstalled; tarnwick.lst and tarnwick.cfg are still there"
