#!/usr/bin/env bash
# Plays the demonstration on a virtual screen; leaves build/demo/*.png and build/demo/tarnwick.lst.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/wine-env.sh"
cd "$wine_root"

# The player asks for a picture by a file "NAME WIDTHxHEIGHT+LEFT+TOP", and waits until the file has gone.
photograph() {
    local name area previous=
    read -r name area <build/demo/picture.request
    for ((try = 0; try < 20; ++try)); do
        import -window root -crop "$area" +repage "build/demo/$name.png"
        current="$(identify -format '%#' "build/demo/$name.png")"
        [[ "$current" == "$previous" ]] && break # nothing is being painted any more
        previous="$current"
        sleep 0.2
    done
    rm build/demo/picture.request
}

rm -rf build/demo
mkdir -p build/demo
wine_start_on_virtual_screen
unlocked wine build/win/bin/tarnwick-demo.exe build/demo --scripted &
player=$!
while kill -0 "$player" 2>/dev/null; do
    [[ -e build/demo/picture.request ]] && photograph
    sleep 0.05
done
wait "$player"
echo "Left in build/demo: $(cd build/demo && echo *.png tarnwick.lst tarnwick-rapport.csv)"
