#!/usr/bin/env bash
# under-wine.sh PROGRAM ARGUMENTS...: runs a Windows program on a virtual screen; its exit code is ours.
# Stops it after TARNWICK_TIME_LIMIT seconds, if set.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/wine-env.sh"

wine_start_on_virtual_screen
# By default sooner than CTest's own limit, which would leave the screen and Wine's server behind.
unlocked timeout --kill-after=5 "${TARNWICK_TIME_LIMIT:-280}" wine "$@"
