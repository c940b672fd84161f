# Sourced by scripts that run Windows programs: a Wine prefix and a screen of their own, which end with the script.
# Sets nothing outside the build tree and touches no process that it did not start.

wine_root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
wine_prefixes="$wine_root/build/wine-prefixes"
# File names have accents, which the C locale of a bare machine can't represent.
export LC_ALL=C.UTF-8
export WINEARCH=win64 WINEDEBUG="${WINEDEBUG:--all}"
# Neither .NET nor the HTML engine is needed, and asking for them would open a box.
export WINEDLLOVERRIDES="mscoree=;mshtml="
screen_size=1280x900

# One user of a prefix at a time, since the registry and the keyboard focus are shared in it. $1: the prefix; the rest are
# flock's arguments.
take_prefix() {
    export WINEPREFIX="$1"
    mkdir -p "$(dirname "$WINEPREFIX")"
    exec {wine_lock_fd}>"$WINEPREFIX.lock"
    flock "${@:2}" "$wine_lock_fd" && return
    exec {wine_lock_fd}>&-
    return 1
}

# The prefix that TARNWICK_WINEPREFIX names, or the first of ours that nobody uses, so that several can run side by side.
wine_lock() {
    if [[ -n "${TARNWICK_WINEPREFIX:-}" ]]; then
        take_prefix "$TARNWICK_WINEPREFIX"
        require_our_prefix
        return
    fi
    local number
    for ((number = 1; number <= 8; ++number)); do take_prefix "$wine_prefixes/$number" --nonblock && return; done
    take_prefix "$wine_prefixes/1"
}

# A prefix's programs are ended and the prefix is made again without asking, so it must be ours, or not exist yet.
require_our_prefix() {
    [[ -z "$(ls -A "$WINEPREFIX" 2>/dev/null)" || -e "$WINEPREFIX/.tarnwick" ]] && return
    echo "$WINEPREFIX is no Wine prefix of ours and not empty: remove it yourself, or name another directory" >&2
    exit 1
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

# $1: "windowed" shows each window on the screen as its own, "desktop" shows all of them in a desktop of Wine's, which
# draws frames and manages the focus.
make_prefix() {
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    touch "$WINEPREFIX/.tarnwick"
    unlocked wineboot --init >/dev/null 2>&1
    # Debian's Wine claims to be Windows 7.
    unlocked wine reg add 'HKCU\Software\Wine' /v Version /d win10 /f >/dev/null
    # It does not look for Wine's fonts where Debian's package puts them.
    cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    if [[ "$1" == desktop ]]; then
        unlocked wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f >/dev/null
        unlocked wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d "$screen_size" /f >/dev/null
    fi
    unlocked wineserver -k -w || true
    touch "$WINEPREFIX/.ready-windows10"
}

# A copy of the prefix that was made first. Windows' own files are shared, since nobody writes to them.
copy_prefix() {
    local made="$wine_prefixes/made" file
    (
        flock 9
        [[ -e "$made/.ready-windows10" ]] || WINEPREFIX="$made" make_prefix desktop 9>&-
    ) 9>"$made.lock"
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX/drive_c"
    cp -al "$made/drive_c/windows" "$WINEPREFIX/drive_c/"
    find "$made/drive_c" -mindepth 1 -maxdepth 1 ! -name windows -exec cp -a {} "$WINEPREFIX/drive_c/" \;
    find "$made" -mindepth 1 -maxdepth 1 ! -name drive_c -exec cp -a {} "$WINEPREFIX/" \;
}

# Creates the prefix on first use, in the style of make_prefix.
prefix_start() {
    unlocked wineserver -k 2>/dev/null || true # left by a run that was cut short
    [[ -e "$WINEPREFIX/.ready-windows10" ]] && return
    if [[ -n "${TARNWICK_WINEPREFIX:-}" ]]; then make_prefix "$1"; else copy_prefix; fi
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
