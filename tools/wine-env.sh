# Sourced by the scripts that run Windows programs: a Wine prefix of the project's own, under build/wine.
#
#   start_wine headless    an X display of the project's own; dialogs open on a desktop drawn there
#   start_wine display     the display in DISPLAY; dialogs are windows of the person's desktop
#   wine64 PROGRAM ARG…    runs a Windows program and gives its exit status; stops it after $wine_limit seconds, if set
#
# headless may be followed by -classic (no theme) and by -144 or -192 (dots per inch), as in headless-classic-144.
# Each kind has a prefix. Scripts that run at the same time share the prefix of a kind, its server and its display;
# each holds a shared lock, and the last one to end stops all that was started. Descriptors 8 and 9 are the locks.

export WINEDEBUG=-all WINEARCH=win64 WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
wine_root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/wine"

wine64() { ${wine_limit:+timeout -k 5 "$wine_limit"} /usr/lib/wine/wine64 "$@" 8>&- 9>&-; }
wine_server() { setsid /usr/lib/wine/wineserver64 "$@" 8>&- 9>&-; }

start_wine() {
    local kind=$1
    export WINEPREFIX="$wine_root/$kind"
    mkdir -p "$wine_root"
    exec 8>"$wine_root/$kind.starting" 9>"$wine_root/$kind.users"
    trap stop_wine EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
    flock 8
    if flock -n 9; then
        # Alone: what still runs was left by a script that was killed.
        stop_wine_processes
        [ -e "$WINEPREFIX/.ready" ] || make_wine_prefix "$kind"
        [ "$kind" = display ] || start_xvfb
        start_wine_server "$kind"
    fi
    flock -s 9
    [ "$kind" = display ] || DISPLAY=$(cat "$WINEPREFIX.display")
    export DISPLAY
    flock -u 8
}

stop_wine() {
    flock 8
    if flock -n 9; then stop_wine_processes; fi
    # A script that starts now must not take this one for a user of what it has just stopped.
    flock -u 9
    flock -u 8
}

stop_wine_processes() {
    if [ -d "$WINEPREFIX" ]; then wine_server -k || true; fi
    if [ -s "$WINEPREFIX.xvfb" ]; then
        local pid
        pid=$(cat "$WINEPREFIX.xvfb")
        if [ "$(cat "/proc/$pid/comm" 2>/dev/null)" = Xvfb ]; then kill "$pid" || true; fi
    fi
    rm -f "$WINEPREFIX".{xvfb,display}
}

# Dialogs then open in the size of their template, not in that of an earlier run.
forget_dialog_sizes() { wine64 reg.exe delete 'HKCU\Software\WexDialogs' /f >/dev/null 2>&1 || true; }

# An X display on a number that the X server picks itself.
start_xvfb() {
    local fifo="$WINEPREFIX.fifo"
    rm -f "$fifo"
    mkfifo "$fifo"
    setsid Xvfb -displayfd 7 -screen 0 1280x1024x24 -nolisten tcp 7>"$fifo" 8>&- 9>&- >/dev/null 2>&1 &
    echo $! >"$WINEPREFIX.xvfb"
    local number
    read -r number <"$fifo" || { echo "Xvfb did not start." >&2; exit 1; }
    rm -f "$fifo"
    echo ":$number" >"$WINEPREFIX.display"
    export DISPLAY=":$number"
}

# The stamp is written last, so that a prefix left half-made is made anew.
make_wine_prefix() {
    echo "Preparing Wine (once, about 10 seconds) …" >&2
    rm -rf "$WINEPREFIX"
    local -x DISPLAY
    start_xvfb
    wine64 wineboot.exe -i </dev/null >/dev/null 2>&1
    wine_server -w
    # "MS Shell Dlg" then has the base units that dialogs are laid out for, and the caption buttons their glyphs.
    local font
    for font in tahoma.ttf tahomabd.ttf marlett.ttf; do
        cp "$(dpkg -L fonts-wine | grep "/$font\$")" "$WINEPREFIX/drive_c/windows/Fonts/"
    done
    wine_settings "$1" >>"$WINEPREFIX/user.reg"
    stop_wine_processes
    touch "$WINEPREFIX/.ready"
}

# The registry settings of a kind, as the prefix's own file has them.
wine_settings() {
    case $1 in headless*)
        # With no window manager, a window that Wine hands to the X server takes two seconds to close.
        printf '\n[Software\\\\Wine\\\\Explorer]\n"Desktop"="Default"\n'
        printf '\n[Software\\\\Wine\\\\Explorer\\\\Desktops]\n"Default"="1280x1024"\n' ;;
    esac
    case $1 in *-classic*)
        printf '\n[Software\\\\Microsoft\\\\Windows\\\\CurrentVersion\\\\ThemeManager]\n"ThemeActive"="0"\n' ;;
    esac
    case $1 in *-144 | *-192) printf '\n[Control Panel\\\\Desktop]\n"LogPixels"=dword:%08x\n' "${1##*-}" ;; esac
}

# A server that stays, and a program with a window that does: a program then starts in some 50 ms.
start_wine_server() {
    wine_server -p
    # The first program starts services that keep its standard output open.
    wine64 cmd.exe /c exit </dev/null >/dev/null 2>&1
    if [ "$1" != display ]; then
        setsid /usr/lib/wine/wine64 explorer.exe /desktop=Default,1280x1024 </dev/null >/dev/null 2>&1 8>&- 9>&- &
    fi
}
