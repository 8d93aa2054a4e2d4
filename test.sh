#!/bin/bash
# Usage: ./test.sh     installs what is missing, builds everything, runs all tests; the last line counts them
# FUZZ_SECONDS says how long each fuzz target runs (20). Logs and pictures are left in build/test-logs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
root=$PWD
logs=$root/build/test-logs
bin=$root/build/windows/bin

# Readers of exported slides, a database, and a print server that the test that prints starts, and nobody else.
tools/install-packages.sh imagemagick libwmf-bin postgresql-15 cups cups-client printer-driver-cups-pdf poppler-utils \
    zip unzip python3-markdown
. tools/wine-env.sh
. tools/test-report.sh
rm -rf "$logs"
mkdir -p "$logs/shots"
tools/build.sh native windows fuzz

native_tests() {
    local program
    for program in $(cat build/native/tests/programs.txt); do
        run "$(basename "$program")" "$program"
    done
    run "tree" tools/check-tree.sh
    for program in $(cat build/fuzz/tests/programs.txt); do
        fuzz "$(basename "$program")" "$program"
    done
}

# What a target finds in one run is kept for the next; the input that made it fail goes to the logs. Some targets
# have options of their own.
fuzz() {
    local found=$root/build/fuzz/corpus/$1 options=()
    [ ! -f "tests/fuzz/$1.options" ] || mapfile -t options <"tests/fuzz/$1.options"
    mkdir -p "$found"
    run "fuzz $1" "$2" -max_total_time="${FUZZ_SECONDS:-20}" -timeout=10 -rss_limit_mb=2048 -verbosity=0 "${options[@]}" \
        -artifact_prefix="$logs/fuzz-$1-" "$found" "tests/fuzz/corpus/$1"
}

# Runs the host with nobody there. A program that is warned of what it doesn't say it does on purpose fails.
host() { wine64 "$bin/wexhost.exe" --headless --warn=error --timeout 300 --shots "$logs/shots" "$@"; }

# An example is right when it prints what stands under its name in tests/ui/examples.
example() {
    local printed="$logs/example-$1.printed"
    host "examples/$1.lsp" >"$printed" || return
    diff -u "tests/ui/examples/$1.txt" <(tr -d '\r' <"$printed")
}

windows_tests() {
    local file name
    start_wine headless
    wine_limit=330
    for file in $(cat build/windows/tests/programs.txt); do
        run "$(basename "$file" .exe)" wine64 "$file"
    done
    for file in examples/*.lsp; do
        name=$(basename "$file" .lsp)
        run "example $name" example "$name"
    done
    for file in tests/ui/*.sh; do
        run "$(basename "$file" .sh)" "$file"
    done
    # Sessions run beside an add-on of odd dialogs that only they need.
    bin=$root/build/windows/testbin
    for file in tests/ui/*.lsp; do
        run "$(basename "$file" .lsp)" host tests/support/check.lsp "$file" -e '(report-tests)'
    done
}

native_tests &
native_job=$!
windows_tests
wait $native_job
report_totals
