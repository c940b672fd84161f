#!/usr/bin/env bash
# Every source is formatted as .clang-format says.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
find src trialcad driver tests demo bench \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 clang-format --dry-run --Werror
