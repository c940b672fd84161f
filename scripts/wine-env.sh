# Sourced by scripts that run Windows programs: a Wine prefix and a screen of our own, ended by the same script.
# Sets nothing outside the build tree and touches no process that it did not start.

wine_root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
export WINEPREFIX="${TARNWICK_WINEPREFIX:-$wine_root/build/wine}"
# File names hold accents, which the C locale of a bare machine could not carry.
export LC_ALL=C.UTF-8
export WINEARCH=win64 WINEDEBUG="${WINEDEBUG:--all}"
# Neither .NET nor the HTML engine is needed, and asking for them would open a box.
export WINEDLLOVERRIDES="mscoree=;mshtml="
screen_size=1280x900

# Programs of a prefix are ended and the prefix is made anew without a question, so it must be ours, or nothing yet.
if [[ -n "$(ls -A "$WINEPREFIX" 2>/dev/null)" && ! -e "$WINEPREFIX/.tarnwick" && ! -e "$WINEPREFIX/.ready-windows10" ]]; then
    echo "$WINEPREFIX is no Wine prefix of ours and not empty: remove it yourself, or name another directory" >&2
    exit 1
fi

# One user of the prefix at a time: the registry and the keyboard focus are shared in it.
wine_lock() {
    mkdir -p "$(dirname "$WINEPREFIX")"
    exec {wine_lock_fd}>"$WINEPREFIX.lock"
    flock "$wine_lock_fd"
}

# Runs a command that must not keep the lock when it outlives this script.
unlocked() {
    "$@" {wine_lock_fd}>&-
}

# A virtual screen with a free number, in $DISPLAY.
screen_start() {
    local ready
    ready="$(mktemp -u)"
    mkfifo "$ready"
    Xvfb -displayfd 7 -screen 0 "${screen_size}x24" -nolisten tcp \
        7<>"$ready" {wine_lock_fd}>&- >/dev/null 2>&1 &
    screen_pid=$!
    local number
    if ! read -r -t 60 number <>"$ready"; then
        echo "Xvfb did not start" >&2
        exit 1
    fi
    rm -f "$ready"
    export DISPLAY=":$number"
}

# Creates the prefix on first use. $1: "windowed" shows each window on the screen as its own,
# "desktop" shows all of them in a desktop of Wine's, which draws frames and manages the focus.
prefix_start() {
    unlocked wineserver -k 2>/dev/null || true # left by a run that was cut short
    [[ -e "$WINEPREFIX/.ready-windows10" ]] && return
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    touch "$WINEPREFIX/.tarnwick"
    unlocked wineboot --init >/dev/null 2>&1
    # Debian's Wine passes for Windows 7.
    unlocked wine reg add 'HKCU\Software\Wine' /v Version /d win10 /f >/dev/null
    # It does not look where Debian's package puts Wine's fonts.
    cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    if [[ "$1" == desktop ]]; then
        unlocked wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f >/dev/null
        unlocked wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d "$screen_size" /f >/dev/null
    fi
    unlocked wineserver -k -w || true
    touch "$WINEPREFIX/.ready-windows10"
}

wine_end() {
    unlocked wineserver -k 2>/dev/null || true
    if [[ -n "${screen_pid:-}" ]]; then
        kill "$screen_pid" 2>/dev/null || true
        wait "$screen_pid" 2>/dev/null || true
    fi
}

# Everything above: after this, "unlocked wine PROGRAM" runs on a screen of its own until the script ends.
wine_start_on_virtual_screen() {
    wine_lock
    trap wine_end EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
    screen_start
    prefix_start desktop
}
