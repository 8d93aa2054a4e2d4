#!/bin/bash
# Usage: bench/watch.sh     the time from the save of a program that is watched to the dialog of its next run, five times
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
. "$root/tools/wine-env.sh"
start_wine headless
work=$(mktemp -d)
watcher=
trap '[ -z "$watcher" ] || kill $watcher 2>/dev/null || true; rm -rf "$work"; stop_wine' EXIT
# The session runs when the dialog stands and its loop is idle.
program() {
    cat <<LISP
(ui_session "ADD_REC" '((princ "shown $1\n") (ui_wait nil)))
(wex_new_dialog "ADD_REC")
(wex_start_dialog)
LISP
}
shown() { until grep -q "shown $1" "$work/printed"; do :; done; }
program 0 >"$work/form.lsp"
/usr/lib/wine/wine64 "$root/build/windows/bin/wexhost.exe" --watch --headless "$work/form.lsp" >"$work/printed" 2>&1 8>&- 9>&- &
watcher=$!
shown 0
for turn in 1 2 3 4 5; do
    program "$turn" >"$work/new"
    start=$(date +%s%N)
    mv "$work/new" "$work/form.lsp"
    shown "$turn"
    echo "watch.save_to_dialog $((($(date +%s%N) - start) / 1000000)) ms"
done
