#!/bin/bash
# Where a dialog stands at its start, by what its profile holds: a size and a place of the past, or values that put it off the screen.
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"
key='HKCU\Software\WexDialogs\Wex_CONFIRM_DELREC'
program='(progn
    (ui_session "CONFIRM_DELREC" (quote ((princ (cdr (assoc "rect" (ui_look)))) (ui_click "OK"))))
    (wex_new_dialog "CONFIRM_DELREC")
    (wex_setminresizing 50 50)
    (wex_start_dialog))'

store() { wine64 reg.exe add "$key" /v "$1" /t REG_DWORD /d "$(($2 & 0xFFFFFFFF))" /f >/dev/null 2>&1; }
stored() { wine64 reg.exe query "$key" /v "$1" 2>/dev/null | tr -d '\r' | sed -n 's/.*REG_DWORD *//p'; }

# starts WIDTH HEIGHT X Y: stores the four values, and prints where the dialog stands then, as (left top width height).
starts() {
    store sizeWidth3 "$1"; store sizeHeight3 "$2"; store nTopLeftX3 "$3"; store nTopLeftY3 "$4"
    wine64 build/windows/bin/wexhost.exe --headless --timeout 60 -e "$program" | tr -d '\r'
}

failed=0
wants() {
    [ "$1" = "$2" ] && return
    printf 'wanted %s, got %s: %s\n' "$1" "$2" "$3"
    failed=1
}

# On a screen of 1280 x 1024.
wants "(600 400 300 200)" "$(starts 300 200 900 600)" "the position values are those of the lower right corner"
wants "$((0x384)) $((0x258))" "$(($(stored nTopLeftX3))) $(($(stored nTopLeftY3)))" "and follow it"
wants "(490 400 300 200)" "$(starts 300 200 9000 600)" "a window off the screen is centred across"
wants "(-100 400 300 200)" "$(starts 300 200 200 600)" "a window that reaches out to the left and is seen stays"

# The place of a window whose position values are 0 is the template's, its size the stored one; and 0 stays.
read -r left top width height <<<"$(starts 0 0 0 0 | tr -d '()')"
wants "($left $top 500 300)" "$(starts 500 300 0 0)" "the size alone is stored"
wants "0 0" "$(($(stored nTopLeftX3))) $(($(stored nTopLeftY3)))" "and no position"

wine64 reg.exe delete "$key" /f >/dev/null 2>&1
exit $failed
