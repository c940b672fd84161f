#!/usr/bin/env bash
# install-packages.sh [run]: installs what building, testing and running Tarnwick needs on Debian 12; with "run", what
# ./run needs. Uses the network only for what is missing.
set -euo pipefail

packages=(
    cmake make g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 libgtest-dev
    wine wine64 xvfb xauth imagemagick
    fonts-wine fonts-liberation fonts-dejavu-core
)
if [[ "${1:-}" != run ]]; then
    packages+=(
        g++ libbenchmark-dev
        clang libclang-rt-14-dev clang-tidy clang-format cppcheck
        nsis zip lowdown
    )
fi

installed() {
    [[ "$(dpkg-query -W -f '${Status}' "$1" 2>/dev/null)" == "install ok installed" ]]
}

missing=()
for package in "${packages[@]}"; do
    installed "$package" || missing+=("$package")
done
((${#missing[@]})) || exit 0

as_root=()
if ((EUID != 0)); then
    command -v sudo >/dev/null || { echo "sudo is needed to install: ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
quietly=(-qq -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300)
# What apt says is worth reading only when it fails.
said="$(mktemp)"
trap 'rm "$said"' EXIT
apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get "${quietly[@]}" "$@" >"$said" 2>&1 && return
    cat "$said" >&2
    return 1
}
apt update
# Nothing already installed may be removed to make room for what is missing.
apt install --yes --no-install-recommends --no-remove "${missing[@]}"
