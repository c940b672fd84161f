#!/usr/bin/env bash
# cppcheck finds nothing in any source, except what cppcheck-suppressions.txt excuses.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
find src trialcad driver demo tests/fakes tests/endtoend tests/contract -name '*.cpp' -print0 |
    xargs -0 cppcheck --language=c++ --std=c++20 --library=googletest -I . -I src -I tests -I tests/endtoend -j"${TARNWICK_LINT_JOBS:-$(nproc)}" --quiet \
        --enable=warning,style,performance,portability --error-exitcode=1 \
        --suppressions-list=scripts/cppcheck-suppressions.txt \
        --template='{file}:{line}: {id}: {message}'
