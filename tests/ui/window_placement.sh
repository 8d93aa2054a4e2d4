#!/bin/bash
# A dialog that can be resized comes back where the profile says, or in the middle of the work area where that would be
# off the screen. The profile tells where it was: a stored position follows the window's lower right corner.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. tools/wine-env.sh
start_wine headless

dialog=SET_PASSPWR
key="HKCU\\Software\\WexDialogs\\Wex_$dialog"
trap 'wine64 reg.exe delete "$key" /f >/dev/null 2>&1 || true; stop_wine' EXIT
failed=0

# comes_back WHAT WIDTH HEIGHT STORED_X STORED_Y RIGHT BOTTOM
comes_back() {
    local entry value now
    for entry in "sizeWidth3 $2" "sizeHeight3 $3" "nTopLeftX3 $4" "nTopLeftY3 $5"; do
        read -r entry value <<<"$entry"
        wine64 reg.exe add "$key" /v "$entry" /t REG_DWORD /d "$value" /f >/dev/null
    done
    ./wexhost --headless --timeout 60 -e "(progn
        (ui_session \"$dialog\" '((ui_click \"Cancel\")))
        (wex_new_dialog \"$dialog\")
        (wex_setminresizing 60 60)
        (wex_start_dialog))" >/dev/null
    now=$(for entry in sizeWidth3 sizeHeight3 nTopLeftX3 nTopLeftY3; do
        echo $(($(wine64 reg.exe query "$key" /v "$entry" | tr -d '\r' | grep -o '0x.*')))
    done | xargs)
    [ "$now" = "$2 $3 $6 $7" ] && return
    echo "$1: wanted width, height, right, bottom $2 $3 $6 $7, got $now"
    failed=1
}

comes_back "on the screen" 400 300 900 700 900 700
# 1280 x 1024 is the screen of these tests.
comes_back "right of the screen" 400 300 5000 700 840 700
comes_back "left of the screen" 400 300 -100 700 840 700
comes_back "below the screen" 400 300 900 5000 900 662
comes_back "above the screen" 400 300 900 -40 900 662
exit $failed
