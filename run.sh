#!/bin/bash
# Usage: ./run.sh [PROGRAM.lsp …]     (examples/showcase.lsp when none is named)
# Installs what is missing, builds, and runs Lisp programs with the dialogs. On a display you work them yourself. With no
# display the programs' own sessions play, and the dialogs' pictures go to out/.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
[ $# -gt 0 ] || set -- "$root/examples/showcase.lsp"

"$root/tools/install-packages.sh"
"$root/tools/build.sh" windows

if [ -n "${DISPLAY:-}" ]; then
    exec "$root/wexhost" "$@"
fi

shots="$root/out"
mkdir -p "$shots"
started=$(mktemp)
trap 'rm -f "$started"' EXIT
status=0
"$root/wexhost" --headless --timeout 300 --shots "$shots" "$@" || status=$?
echo "Pictures:"
find "$shots" -name '*.png' -newer "$started" | sort
exit $status
