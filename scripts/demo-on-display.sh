#!/usr/bin/env bash
# Opens the trial CAD session and Tarnwick side by side on the user's display, until Tarnwick is closed.
set -euo pipefail
TARNWICK_WINEPREFIX="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/wine-display"
source "$(dirname "${BASH_SOURCE[0]}")/wine-env.sh"
cd "$wine_root"

wine_lock
trap wine_end EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
prefix_start windowed
unlocked wine build/win/bin/tarnwick-demo.exe build/demo
