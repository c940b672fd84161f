#!/usr/bin/env bash
# A folder of src includes only what is below it: nothing above, no circle of folders, and, outside the shell, no header
# but ours and the C++ standard library's. docs/architecture.md draws the layers.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

{
    find src -type f -printf 'file %P\n'
    grep -rnE '^[[:space:]]*#[[:space:]]*include' src --include='*.h' --include='*.cpp' --include='*.rc' |
        sed -E 's/^src\/([^:]*):([0-9]+):[[:space:]]*#[[:space:]]*include[[:space:]]*/include \1 \2 /'
} | awk '
BEGIN {
    # From the top down; the folders in one row may include each other, but not in a circle.
    rows = split("app|resume selection tracking searchfolders about|cad storage|worklist pickers|input rules|ports|common", row, "|")
    for (i = 1; i <= rows; ++i) {
        count = split(row[i], names, " ")
        for (j = 1; j <= count; ++j) height[names[j]] = rows - i
    }
    # These implement the interfaces on a machine: they may include what is from here down, and only app includes them.
    shell = "^(win32|native)(/|$)"
    height["win32"] = height["native"] = height["input"]
}

function complain(where, what) { print "src/" where ": " what; ++failures }
function folderOf(path) { return path ~ /\// ? substr(path, 1, match(path, /\/[^\/]*$/) - 1) : "" }
function heightOf(folder) { sub(/\/.*/, "", folder); return height[folder] }
function isKnown(folder) { sub(/\/.*/, "", folder); return folder in height }

# The headers of the C++ standard library have no ending; one with an ending belongs to a system.
function checkSystemHeader(file, where, header) {
    if (header !~ /\.h$/) return
    if (file ~ /\.rc$/ || file == "app/win_main.cpp" || file ~ shell) return
    complain(where, "<" header "> is for src/win32 and app/win_main.cpp")
}

# Beside the including file first, else from src; a header that the build makes is there as its template.
function found(file, header,    beside) {
    beside = folderOf(file) "/" header
    if (beside in exists) return beside
    return (header in exists) || (header ".in" in exists) ? header : ""
}

function checkArrow(file, where, header,    from, to, path) {
    path = found(file, header)
    if (path == "") { complain(where, "\"" header "\" is nowhere in src"); return }
    from = folderOf(file)
    to = folderOf(path)
    if (from == to) return
    if (!isKnown(from) || !isKnown(to)) { complain(where, "no layer is known for " from " or " to); return }
    if (heightOf(to) > heightOf(from)) { complain(where, "\"" header "\" lies above " from); return }
    if (to ~ shell && from !~ shell && from != "app" && file !~ /\.rc$/) {
        complain(where, "\"" header "\" belongs to the shell, which app alone knows")
        return
    }
    if (!((from, to) in arrow)) {
        arrow[from, to] = where
        targets[from] = targets[from] " " to
    }
}

$1 == "file" { exists[substr($0, 6)]; next }
{
    file = $2
    where = file ":" $3
    if ($4 ~ /^</) checkSystemHeader(file, where, substr($4, 2, index($4, ">") - 2))
    else if (split($0, quoted, "\"") > 2) checkArrow(file, where, quoted[2])
    else complain(where, "an include that names no file")
}

# Depth first; path is the way here, and a folder that is on it already closes a circle.
function visit(folder, path,    i, count, names, circle) {
    if (index(path, "|" folder "|")) {
        circle = substr(path, index(path, "|" folder "|") + 1) folder
        tellCircle(circle)
        return
    }
    if (folder in done) return
    count = split(targets[folder], names, " ")
    for (i = 1; i <= count; ++i) visit(names[i], path folder "|")
    done[folder]
}

function tellCircle(circle,    i, count, names, shown) {
    count = split(circle, names, "|")
    shown = names[1]
    for (i = 2; i <= count; ++i) shown = shown " -> " names[i]
    print "a circle of folders: " shown
    for (i = 2; i <= count; ++i) complain(arrow[names[i - 1], names[i]], names[i - 1] " includes " names[i])
}

END {
    for (folder in targets) visit(folder, "|")
    exit failures > 0
}'
