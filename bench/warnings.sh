#!/bin/bash
# Usage: bench/warnings.sh     what warnings cost where there is nothing to warn of: rows with them beside the same without
# The two take turns, three times. A line is    warn.KEY  with X ms  without Y ms  ratio R    of the medians' least
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
. "$root/tools/wine-env.sh"
taskset --cpu-list --pid 0 $$ >/dev/null
start_wine headless
built=$root/build/windows
rows=$(mktemp -d)
trap 'rm -rf "$rows"; stop_wine' EXIT
cd "$root/bench/product"
for turn in 1 2 3; do
    for mode in warn no-warn; do
        wine64 "$built/testbin/wexhost.exe" --headless "--$mode" --timeout 600 \
            -e "(host_load_plugin \"$built/bench/product/bench.pgx\")" \
            -e "(setq bench-templates \"$built/bin/WexDialogsRes.dll\")" \
            rows.lsp lists.lsp trees.lsp grids.lsp | tr -d '\r' >>"$rows/$mode"
    done
done
awk '{ for (i = 1; i < NF; i++) if ($i == "med") {
           if (!(($1, FILENAME) in least) || $(i + 1) < least[$1, FILENAME]) least[$1, FILENAME] = $(i + 1)
           keys[$1]; break } }
     END { for (key in keys) { with = least[key, ARGV[1]]; without = least[key, ARGV[2]]
           if (without > 0) printf "warn.%s  with %s ms  without %s ms  ratio %.2f\n", key, with, without, with / without } }' \
    "$rows/warn" "$rows/no-warn" | sort
