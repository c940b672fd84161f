#!/usr/bin/env bash
# clang-tidy finds nothing in the core by the rules of .clang-tidy. It reads each folder as one file, as the compiler does,
# and no headers that another compiler has precompiled.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
cmake --preset dev -B build/tidy -DTARNWICK_EACH_FILE=OFF -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
find build/tidy/src -name 'unity_*.cxx' -print0 |
    xargs -0 -n1 -P"${TARNWICK_LINT_JOBS:-$(nproc)}" clang-tidy -p build/tidy --quiet --header-filter='/src/' \
        --checks=-bugprone-suspicious-include --extra-arg=-Wno-unknown-warning-option \
        2> >(grep -v ' warnings\? generated\.$' >&2 || true)
