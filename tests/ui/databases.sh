#!/bin/bash
# One program on a file of SQLite and on a PostgreSQL server, and then what goes wrong with each: the host tells it, and goes on.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. tools/wine-env.sh
. tools/postgres.sh
start_wine headless
work=$(mktemp -d)
# In the place of the one of start_wine.
trap 'remove_postgres; rm -rf "$work"; stop_wine' EXIT
start_postgres

passed=0 failed=0
right() { passed=$((passed + 1)); }
wrong() { failed=$((failed + 1)); printf 'FAILED: %s\n' "$*"; }

host() { wine64 build/windows/testbin/wexhost.exe --headless --timeout 120 "$@"; }

# wants TEXT FILE: that the text stands in it
wants() {
    if grep -qF -- "$1" "$2"; then right; else wrong "no \"$1\" in:"; cat "$2"; fi
}

# Each test of the program counts.
round() {
    local choice=$1 printed=$work/printed told=$work/told counts
    host --data "$choice" tests/support/check.lsp tests/support/databases.lsp \
        -e '(want 250 (caar (db_query "SELECT COUNT(*) FROM [Parts]")))' -e '(report-tests)' >"$printed" 2>"$told" || true
    counts=$(tr -d '\r' <"$printed" | grep -E '^[0-9]+ passed, [0-9]+ failed$' || echo "0 passed, 1 failed")
    passed=$((passed + ${counts%% *}))
    counts=${counts#*, }
    failed=$((failed + ${counts%% *}))
    [ "${counts%% *}" -eq 0 ] || cat "$printed" "$told"
    wants ': SELECT COUNT(*) FROM [Gone]' "$told"
    wants ': SELECT * FROM [Parts] ORDER BY [Gone]' "$told"
    wants ': SELECT COUNT(*) FROM [a]b]' "$told"
    wants "can't open /no/such/folder/x.sqlite: " "$told"
    wants 'databases.lsp left a transaction open: it is rolled back' "$told"
}

# starts CHOICE PROGRAM: runs it with that database; what it prints and is told stands in $work/told
starts() { host --data "$1" -e "$2" >"$work/told" 2>&1 || true; }

file_fails() {
    local file=$work/file.sqlite count='(progn (wex_fp_setupdatasrc (quote ("" "t" "a"))) (princ (wex_fp_getcount)) (terpri))'
    starts "$work/no/such.sqlite" '(princ "goes on")'
    wants "can't open $work/no/such.sqlite: unable to open database file" "$work/told"
    wants 'goes on' "$work/told"

    sqlite3 "$file" 'CREATE TABLE t (a, b); INSERT INTO t SELECT value, hex(randomblob(500)) FROM generate_series(1, 500)'
    cp "$file" "$work/damaged.sqlite"
    dd if=/dev/zero of="$work/damaged.sqlite" bs=1024 seek=8 count=200 conv=notrunc status=none
    starts "$work/damaged.sqlite" "$count"
    wants 'data store: database disk image is malformed: SELECT' "$work/told"

    printf 'This is no database, but a text.%.0s' {1..50} >"$work/text.sqlite"
    starts "$work/text.sqlite" '(princ "goes on")'
    wants "text.sqlite: file is not a database" "$work/told"
    wants 'goes on' "$work/told"

    # Another program holds it.
    coproc OTHER { sqlite3 "$file" 2>&1; }
    echo "BEGIN EXCLUSIVE; SELECT 'locked';" >&"${OTHER[1]}"
    read -r -u "${OTHER[0]}"
    starts "$file" "$count"
    wants 'data store: database is locked: SELECT COUNT(*) FROM [t]' "$work/told"
    echo ".quit" >&"${OTHER[1]}"
    wait "$OTHER_PID"

    # Full: it takes what there is room for, and the rest is told.
    starts "$file" '(progn
        (db_query "PRAGMA max_page_count = 1")
        (princ (catch-error (foreach i (range 2000) (db_exec "INSERT INTO t VALUES (0, hex(randomblob(500)))"))))
        (princ (list "whole" (caar (db_query "PRAGMA integrity_check")))))'
    wants 'database or disk is full' "$work/told"
    wants '(whole ok)' "$work/told"
}

# A host that waits for its next form. answer FORM: what it prints for one.
server_goes_away() {
    coproc HOST { host -i --data "$postgres_odbc" 2>&1; }
    local line
    answer() {
        echo "(progn (princ $1) (terpri) (princ \"answered\") (terpri))" >&"${HOST[1]}"
        while read -r -t 60 -u "${HOST[0]}" line && [ "${line%$'\r'}" != answered ]; do printf '%s\n' "$line"; done >"$work/told"
    }
    answer '(db_query "SELECT 11")'
    wants '((11))' "$work/told"
    answer '(db_begin)'
    answer '(db_exec "CREATE TABLE halfway (a INTEGER)")'
    stop_postgres immediate
    answer '(catch-error (db_exec "INSERT INTO halfway VALUES (1)"))'
    wants '(db_exec): ' "$work/told"
    answer '(catch-error (db_commit))'
    wants 'the connection was lost, and the transaction with it' "$work/told"
    answer '(progn (wex_fp_setupdatasrc (quote ("" "Parts" "PN"))) (wex_fp_getcount))'
    wants ': SELECT COUNT(*) FROM [Parts]' "$work/told"
    answer '(wex_fp_cleardatasrc)'
    start_postgres_again
    answer '(progn (wex_fp_setupdatasrc (quote ("" "Parts" "PN"))) (list (wex_fp_getcount) (car (wex_fp_getitem 0))))'
    wants '(250 1001)' "$work/told"
    answer '(catch-error (db_query "SELECT * FROM halfway"))'
    wants 'does not exist' "$work/told"
    eval "exec ${HOST[1]}>&-"
    wait "$HOST_PID" || true
}

round "$work/round ü.sqlite"
round "$postgres_odbc"
file_fails
server_goes_away
echo "$passed passed, $failed failed"
[ $failed -eq 0 ]
