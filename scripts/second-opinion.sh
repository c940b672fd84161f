#!/usr/bin/env bash
# The unit tests for Windows, the contract and the scenarios under a second Wine: that of Debian's newest release, unpacked
# in build/second-opinion, without root and without a change to the machine. It downloads 115 MB, so ./test leaves it out.
# Where two Wines differ, Microsoft's documentation decides, and docs/windows.md has a row for it.
# TARNWICK_DEBIAN=sid takes another release. GTEST ARGUMENT...: passed to each of the programs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
release="${TARNWICK_DEBIAN:-stable}"
place="$PWD/build/second-opinion/$release"
packages=(libc6 libgcc-s1 libstdc++6 libwine wine64 fonts-wine libz-mingw-w64 patchelf)

# apt gets a state of its own: of the machine's it reads only where the mirror is and whose keys to trust.
own_apt() {
    apt-get -qq -o Dir::State="$place/apt" -o Dir::State::status="$place/apt/status" -o Dir::Cache="$place/apt" \
        -o Dir::Etc::sourcelist="$place/apt/sources.list" -o Dir::Etc::sourceparts=/dev/null -o Dir::Etc::preferencesparts=/dev/null \
        -o APT::Sandbox::User=root -o Debug::NoLocking=true "$@"
}

download() {
    local mirror
    mirror="$(apt-get indextargets --format '$(ORIGIN) $(LABEL) $(REPO_URI)' | sed -n 's/^Debian Debian //p' | head -1)"
    [[ -n "$mirror" ]] || { echo "this machine has no list of Debian's packages: apt-get update" >&2; exit 1; }
    mkdir -p "$place/apt/lists/partial" "$place/apt/archives/partial"
    touch "$place/apt/status"
    echo "deb [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $mirror $release main" >"$place/apt/sources.list"
    own_apt update
    (cd "$place/apt" && own_apt download "${packages[@]}")
}

# The loader and the libraries of that release, for Wine only: a path in the environment would reach its children.
bind_to_its_libraries() { # program
    local libraries="$place/root/usr/lib/x86_64-linux-gnu"
    "$libraries/ld-linux-x86-64.so.2" --library-path "$libraries" "$place/root/usr/bin/patchelf" \
        --set-interpreter "$libraries/ld-linux-x86-64.so.2" --force-rpath --set-rpath "$libraries" "$1"
}

# What installing the package would do.
mark_as_builtin() { # library, of which Wine takes its own only when it says so behind the first header
    local library="$place/root/usr/lib/x86_64-linux-gnu/wine/x86_64-windows/$(basename "$1")"
    { head -c 64 "$1"; printf 'Wine builtin DLL%b' '\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0'; tail -c +97 "$1"; } >"$library"
}

lay_out() {
    echo "Laying out the Wine of Debian $release"
    rm -rf "$place"
    download
    mkdir -p "$place/root" "$place/bin"
    local package program
    for package in "$place"/apt/*.deb; do dpkg-deb -x "$package" "$place/root"; done
    local wine="$place/root/usr/lib/wine"
    ln -sf wineserver64 "$wine/wineserver"
    for program in wine64 wineserver64; do bind_to_its_libraries "$wine/$program"; done
    mark_as_builtin "$place/root/usr/x86_64-w64-mingw32/lib/zlib1.dll"
    printf '#!/bin/sh\nexport WINESERVER=%q\nexec %q "$@"\n' "$wine/wineserver" "$wine/wine64" >"$place/bin/wine"
    printf '#!/bin/sh\nexec %q "$@"\n' "$wine/wineserver64" >"$place/bin/wineserver"
    for program in wineboot winepath; do
        printf '#!/bin/sh\nexec %q %s.exe "$@"\n' "$place/bin/wine" "$program" >"$place/bin/$program"
    done
    chmod +x "$place"/bin/*
    touch "$place/.ready"
}

scripts/build.sh win tarnwick tarnwick-trialcad unit contract endtoend
[[ -e "$place/.ready" ]] || lay_out
export PATH="$place/bin:$PATH" TARNWICK_WINEPREFIX="$place/prefix" TARNWICK_TIME_LIMIT=1200
echo "Under $(wine --version), beside the machine's own $(PATH="${PATH#*:}" wine --version 2>/dev/null)"
failures=0
for program in unit contract endtoend; do
    echo "== $program"
    scripts/under-wine.sh "build/win/bin/tarnwick-$program.exe" --gtest_brief=1 "$@" || failures=$((failures + 1))
done
exit $((failures > 0))
