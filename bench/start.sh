#!/bin/bash
# From the start of the host until its first dialog is painted and idle, with a Wine server that runs already and files that
# the system has read before. One line, as the other benchmarks print them.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
. "$root/tools/wine-env.sh"
start_wine headless
forget_dialog_sizes
trap stop_wine EXIT
runs=15

# Until the session, which plays at the dialog's first idle moment, prints.
once() {
    local begun=$EPOCHREALTIME shown
    wine64 "$root/build/windows/bin/wexhost.exe" --headless --timeout 60 \
        -e "(ui_session \"SCHEM_WIRE2PNL_FORMAT\" '((princ \"shown\") (terpri) (wex_done_dialog 0)))" \
        -e '(wex_new_dialog "SCHEM_WIRE2PNL_FORMAT")' -e '(wex_start_dialog)' |
        { read -r; shown=$EPOCHREALTIME; cat >/dev/null; echo "$begun $shown"; }
}

once >/dev/null
for ((run = 0; run < runs; ++run)); do once; done | awk '{ print ($2 - $1) * 1000 }' | sort -n | awk '
    { times[NR] = $1 }
    END { printf "host_start_to_first_dialog  min %.1f  med %.1f ms  n=%d\n", times[1], times[int((NR + 1) / 2)], NR }'
