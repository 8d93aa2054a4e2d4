#!/bin/bash
# From the start of the host until its first dialog is painted and idle, with a Wine server that runs already and files that
# the system has read before, beside a bare program that shows a window and the same dialog. One line, as the other benchmarks
# print them.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
. "$root/tools/wine-env.sh"
start_wine headless
forget_dialog_sizes
times=$(mktemp)
trap 'rm -f "$times"; stop_wine' EXIT
built=$root/build/windows
runs=15

# timed PROGRAM ARG…: milliseconds until it prints a line
timed() {
    local begun=$EPOCHREALTIME shown
    wine64 "$@" | { read -r; shown=$EPOCHREALTIME; cat >/dev/null; awk "BEGIN { print ($shown - $begun) * 1000 }"; }
}
# The session plays at the dialog's first idle moment.
ours() {
    timed "$built/bin/wexhost.exe" --headless --timeout 60 \
        -e "(ui_session \"SCHEM_WIRE2PNL_FORMAT\" '((princ \"shown\") (terpri) (wex_done_dialog 0)))" \
        -e '(wex_new_dialog "SCHEM_WIRE2PNL_FORMAT")' -e '(wex_start_dialog)'
}
# 1933 is that dialog.
bare() { timed "$built/bench/start/bare_start.exe" "$built/bin/WexDialogsRes.dll" 1933; }

ours >/dev/null
bare >/dev/null
for ((run = 0; run < runs; ++run)); do echo "$(ours) $(bare)"; done >"$times"
# least and middle of a column
least() { cut -d' ' -f"$1" "$times" | sort -n | head -n 1; }
middle() { cut -d' ' -f"$1" "$times" | sort -n | sed -n "$((runs / 2 + 1))p"; }
awk -v a="$(least 1)" -v b="$(middle 1)" -v c="$(least 2)" -v d="$(middle 2)" -v n=$runs 'BEGIN {
    printf "host_start_to_first_dialog  min %.1f  med %.1f ms  bare min %.1f  med %.1f ms  ratio min %.2f  med %.2f  n=%d\n",
        a, b, c, d, a / c, b / d, n }'
