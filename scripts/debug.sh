#!/usr/bin/env bash
# debug.sh PROGRAM [GDB ARGUMENT...]: gdb on one of the two programs, under Wine on a virtual screen, stopped before its first
# instruction: scripts/debug.sh tarnwick -ex 'break wWinMain' -ex continue. Shown on your display with TARNWICK_DISPLAY=1.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/wine-env.sh"
cd "$wine_root"
command -v gdb >/dev/null || { echo "gdb is needed: apt-get install gdb" >&2; exit 1; }

program="$1"
shift
if [[ -n "${TARNWICK_DISPLAY:-}" ]]; then
    wine_lock
    trap wine_end EXIT
    prefix_start desktop
else
    wine_start_on_virtual_screen
fi
port=$((20000 + RANDOM % 10000))
unlocked winedbg --gdb --no-start --port $port "build/win/bin/$program.exe" >/dev/null 2>&1 &
waiting() { grep -q "$(printf ':%04X 00000000:0000 0A' $port)" /proc/net/tcp; }
for ((try = 0; try < 150; ++try)); do waiting && break; sleep 0.2; done
# The program itself has no symbols; they are in a file beside it.
gdb -ex "target remote localhost:$port" -ex "symbol-file build/win/symbols/$program.exe.debug" "$@"
