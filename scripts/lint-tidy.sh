#!/usr/bin/env bash
# clang-tidy finds nothing in the core, as .clang-tidy says; it reads how the dev preset would compile each file, without
# headers that another compiler has parsed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
cmake --preset dev -B build/tidy -DTARNWICK_EACH_FILE=ON -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
find src -name '*.cpp' -not -path '*/win32/*' -not -name win_main.cpp -not -name terminate.cpp -print0 |
    xargs -0 -n2 -P"${TARNWICK_LINT_JOBS:-$(nproc)}" clang-tidy -p build/tidy --quiet 2> >(grep -v ' warnings\? generated\.$' >&2 || true)
