#!/usr/bin/env bash
# Every test that the documents name exists and is named in full: a row of docs/windows.md whose test is gone claims what
# nobody checks any more.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export LC_ALL=C.UTF-8

tests="$(find tests -name '*.cpp' -exec cat {} + | tr '\n' ' ' |
    grep -oP '\bTEST(_F|_P)?\(\s*\K\w+,\s*\w+(?=\s*\))' | sed -E 's/,\s*/./' | sort)"
# In backquotes: Suite.Test, or a name cut short by dots or a star; the CAD application's objects look the same.
named="$(grep -noP '`\K(\w+\.([A-Z]\w*…?|…)|[A-Z]\w*\.\*|…\.?[A-Z]\w*…?)(?=`)' docs/*.md |
    grep -vE ':(SldWorks|Scripting)\.' || true)"

failures=0
while IFS=: read -r file line name; do
    [[ -z "$name" ]] || grep -qxF "$name" <<<"$tests" || { echo "$file:$line: no test is called $name"; failures=1; }
done <<<"$named"
exit $failures
