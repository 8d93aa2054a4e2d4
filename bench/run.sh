#!/bin/bash
# Usage: bench/run.sh     measures the product beside the bare platform, and the Lisp, trees and grids beside those of others
# A line is    key  min X  med Y ms  n=N
# or           key  min X  med Y ms  bare min X  med Y ms  ratio min R  med R  n=N    ours and the bare platform's in turns
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$root/tools/install-packages.sh" lua5.4 tk8.6 tk-table postgresql-15 cups cups-client printer-driver-cups-pdf >&2
"$root/tools/build.sh" windows >&2
. "$root/tools/wine-env.sh"
. "$root/tools/print-env.sh"
# Each call of Wine's server wakes another process. On a virtual machine, waking another processor costs several times
# the call, now and then: with all on one, the figures of two runs agree.
taskset --cpu-list --pid 0 $$ >/dev/null
start_wine headless
forget_dialog_sizes
built=$root/build/windows
rows=$(mktemp)
printer=$(mktemp -d)
packed=$(mktemp -d)
trap 'stop_printer; rm -rf "$rows" "$printer" "$packed"; stop_wine' EXIT
chmod 755 "$printer"
start_printer "$printer"

echo "$(nproc) cores, $(sed -n 's/^model name.*: //p' /proc/cpuinfo | head -n 1), load $(cut -d' ' -f1 /proc/loadavg)"
{
    lua5.4 "$root/bench/lisp/peer.lua"
    wish8.6 "$root/bench/product/peer.tcl"
    wish8.6 "$root/bench/product/grids.tcl"
    wine64 "$built/bench/lisp/lisp_bench.exe"
    # 1933 is the dialog of 31 controls that dialogs.lsp opens.
    wine64 "$built/bench/dialog/dialog_bench.exe" "$built/bin/WexDialogsRes.dll" 1933
    wine64 "$built/testbin/source_bench.exe"
    wine64 "$built/bench/grid/grid_bench.exe"
    wine64 "$built/bench/slides/slide_bench.exe"
    wine64 "$built/bench/report/report_bench.exe"
    wine64 "$built/bench/graphics/graphics_bench.exe"
    wine64 "$built/testbin/preview_bench.exe"
    cd "$root/bench/product"
    wine64 "$built/testbin/wexhost.exe" --headless --timeout 900 \
        -e "(host_load_plugin \"$built/bench/product/bench.pgx\")" \
        -e "(setq bench-templates \"$built/bin/WexDialogsRes.dll\")" \
        -e "(setq bench-picture \"$built/bench/product/large.bmp\")" \
        rows.lsp dialogs.lsp all_dialogs.lsp lists.lsp layout.lsp tables.lsp pages.lsp trees.lsp grids.lsp lookup.lsp records.lsp images.lsp
    "$root/bench/databases.sh"
    "$root/bench/start.sh"
    "$root/bench/check.sh"
    "$root/bench/watch.sh"
    "$root/bench/warnings.sh"
    "$root/tools/package.sh" "$packed" | sed 's/.*\///; s/^/package  /'
} | tr -d '\r' | tee "$rows"

# ratio OURS THEIRS: of the medians
ratio() {
    awk -v ours="$1" -v theirs="$2" '
        { for (i = 1; i < NF; i++) if ($i == "med") median[$1] = $(i + 1) }
        END { printf "ratio  %s / %s  %.2f\n", ours, theirs, median[ours] / median[theirs] }' "$rows"
}
ratio lisp.fib27 lua.fib27
ratio lisp.million_native_calls lua.million_native_calls
ratio lisp.million_actions_prepared lua.million_actions_prepared
for row in count read write_back_10000; do
    ratio sqlite.$row sqlite3.$row
    ratio postgres.$row psql.$row
done
