#!/usr/bin/env bash
# Each file includes the headers of the standard library that it uses: directly, or through the first of our headers that
# it includes, its own or that of the interface it implements. What comes through other headers goes when those change.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

find src trialcad driver demo -name '*.cpp' -o -name '*.h' | sort | xargs awk '
BEGIN {
    needs["algorithm"] = "(ranges::(all_of|any_of|copy|count|count_if|equal|fill|find|find_if|lower_bound|max|max_element|min|none_of|remove_if|replace|reverse|sort|stable_sort|transform|upper_bound)|sort|stable_sort|min|max|minmax|clamp|find_if|any_of|all_of|none_of|count_if|lower_bound|upper_bound|reverse|transform)[^_a-z]"
    needs["array"] = "(array|to_array)[<{ ]"
    needs["atomic"] = "atomic[<_]"
    needs["cstdint"] = "(u?int(8|16|32|64)_t|uintptr_t)"
    needs["deque"] = "deque<"
    needs["exception"] = "(exception_ptr|current_exception|rethrow_exception)"
    needs["functional"] = "function<"
    needs["limits"] = "numeric_limits<"
    needs["map"] = "(multi)?map<"
    needs["memory"] = "(unique_ptr|make_unique|shared_ptr|make_shared|weak_ptr)"
    needs["mutex"] = "(mutex|lock_guard|unique_lock|scoped_lock)"
    needs["new"] = "(bad_alloc|nothrow)"
    needs["optional"] = "(optional<|nullopt)"
    needs["set"] = "(multi)?set<"
    needs["span"] = "span<"
    needs["string"] = "(w?string[^_a-z]|to_w?string)"
    needs["string_view"] = "w?string_view"
    needs["utility"] = "(move|exchange|forward|as_const|swap|in_range|cmp_[a-z]+)[(]"
    needs["variant"] = "(variant<|visit[(]|holds_alternative)"
    needs["vector"] = "vector[<{]"
    # Another header provides it, since that is its purpose.
    instead["string_view"] = "string"
}
FNR == 1 { own[FILENAME] = "" }
/^#include </ { split($2, name, /[<>]/); has[FILENAME, name[2]] }
/^#include "/ && own[FILENAME] == "" { split($0, quoted, "\""); own[FILENAME] = quoted[2] }
/std::/ {
    sub(/\/\/.*/, "")
    gsub(/"([^"\\]|\\.)*"/, "")
    for (header in needs) {
        if (!((FILENAME, header) in uses) && match($0, "std::" needs[header])) uses[FILENAME, header] = FNR
    }
}
# The first of our headers that a file includes: its own, or that of the interface it implements.
function headerOf(file,    path) {
    path = own[file]
    if (path == "") return ""
    if (("src/" path) in own) return "src/" path
    if (path in own) return path
    sub(/\/[^\/]*$/, "", file)
    return (file "/" path) in own ? file "/" path : ""
}
function isIncluded(file, header,    level) {
    for (level = 1; file != "" && level <= 3; ++level) {
        if ((file, header) in has) return 1
        file = headerOf(file)
    }
    return 0
}
END {
    for (use in uses) {
        split(use, part, SUBSEP)
        file = part[1]; header = part[2]
        if (isIncluded(file, header) || (header in instead && isIncluded(file, instead[header]))) continue
        print file ":" uses[use] ": <" header "> is missing" | "sort"
        ++failures
    }
    close("sort")
    exit failures > 0
}'
