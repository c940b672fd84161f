#!/usr/bin/env bash
# Draws assets/*.ico from assets/*.svg: run by hand after a drawing has changed. The result is kept with the sources, since
# another release of these tools would write other bytes.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../assets"

for tool in rsvg-convert icotool; do
    command -v "$tool" >/dev/null || { echo "$tool is needed: apt-get install librsvg2-bin icoutils" >&2; exit 1; }
done
pictures="$(mktemp -d)"
trap 'rm -r "$pictures"' EXIT

for drawing in *.svg; do
    name="${drawing%.svg}"
    arguments=()
    for size in 16 20 24 32 48 256; do
        picture="$pictures/$name-$size.png"
        rsvg-convert -w "$size" -h "$size" -o "$picture" "$drawing"
        # Windows wants only the largest one compressed.
        ((size == 256)) && arguments+=("--raw=$picture") || arguments+=("$picture")
    done
    icotool --create --output="$name.ico" "${arguments[@]}"
done
ls -l ./*.ico
