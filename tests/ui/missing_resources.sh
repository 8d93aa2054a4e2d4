#!/bin/bash
# Without its resource module the plug-in says so when it is loaded, and then lives on without texts and templates.
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"
cp build/windows/bin/{wexhost.exe,hostapi.dll,WexDialogs.pgx} "$work"

printed=$(cd "$work" && wine64 wexhost.exe --headless --no-warn --timeout 60 -e '(progn
    (print (wex_new_dialog "NO_SUCH"))
    (print (wex_new_dialog "ADD_REC"))
    (print (wex_start_dialog))
    (print (wex_alert "text")))' 2>&1 | tr -d '\r')

# The system's own words for the error stand between the first line and the answers.
first=$(head -n 1 <<<"$printed")
rest=$(sed -n '/^\[alert\] $/,$p' <<<"$printed")
wanted=$'[alert] \n\nnil \nT \n-1 [alert] text\n\nnil '
[ "$first" = "[alert] Error loading WexDialogsRes.dll." ] && [ "$rest" = "$wanted" ] && exit 0
printf 'wanted\n%s\ngot\n%s\n' "$wanted" "$printed"
exit 1
