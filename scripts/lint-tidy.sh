#!/usr/bin/env bash
# clang-tidy finds nothing in the core by the rules of .clang-tidy. It reads the core as one file: most of the time goes
# into the headers of the library, which it reads once then. So a name without linkage stands once in the core.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
cmake --preset dev -B build/tidy >/dev/null
find "$PWD"/src -name '*.cpp' ! -path '*/win32/*' ! -name win_main.cpp -printf '#include "%p"\n' | sort >build/tidy/core.cpp
clang-tidy --quiet --header-filter='/src/' --checks=-bugprone-suspicious-include build/tidy/core.cpp -- \
    -std=c++20 -Isrc -Ibuild/tidy/generated -Wall -Wextra -Wshadow 2> >(grep -v ' warnings\? generated\.$' >&2 || true)
