#!/bin/bash
# A check of a program of 10,000 lines, without the host's start; and what an editor waits for: the findings of a changed
# program of 1,000 lines, completion and hover in it. Each line as the other benchmarks print them.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$root"
. tools/wine-env.sh
start_wine headless
trap stop_wine EXIT
python3 bench/check.py /usr/lib/wine/wine64 build/windows/bin/wexhost.exe --headless --language-server
