#!/usr/bin/env bash
# under-wine.sh PROGRAM ARGUMENTS...: runs a Windows program on a virtual screen; its exit code is ours.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/wine-env.sh"

wine_start_on_virtual_screen
# Sooner than CTest's own limit, which would leave the screen and the server behind.
unlocked timeout --kill-after=5 280 wine "$@"
