#!/usr/bin/env bash
# build.sh PRESET [TARGET...]: configures and builds. Prints how long it took, and more only when something goes wrong.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

preset="$1"
shift
log="build/$preset.log"
mkdir -p build
if ! { cmake --preset "$preset" &&
    cmake --build --preset "$preset" -j"$(nproc)" ${1+--target "$@"}; } >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi
echo "Built $preset in $SECONDS s"
