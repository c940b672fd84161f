#!/usr/bin/env bash
# Configures and builds the presets named as arguments. Quiet unless something goes wrong.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

for preset in "$@"; do
    echo "Building $preset"
    mkdir -p build
    log="build/$preset.log"
    if ! { cmake --preset "$preset" && cmake --build --preset "$preset" -j"$(nproc)"; } >"$log" 2>&1; then
        cat "$log" >&2
        exit 1
    fi
done
