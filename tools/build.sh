#!/bin/bash
# Usage: tools/build.sh PRESET …    configures and builds presets, and shows the compiler's words only where there are some
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Checkouts in several folders share what was compiled.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

quiet=(-- --quiet)
[ ! -t 1 ] || quiet=()
for preset in "$@"; do
    echo "Building $preset …"
    log=$(mktemp)
    cmake --preset "$preset" >"$log" 2>&1 || { cat "$log" >&2; rm -f "$log"; exit 1; }
    rm -f "$log"
    cmake --build --preset "$preset" "${quiet[@]}"
done
