#!/bin/bash
# One program on a file of SQLite and on a PostgreSQL server, and then what goes wrong with each: the host tells it, and goes on.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. tools/wine-env.sh
. tools/postgres.sh
use_databases

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

    sqlite3 "$file" 'CREATE TABLE t (a, b)'
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
}

# PostgreSQL would wait for another program's lock as long as that lasts.
server_is_locked() {
    coproc OTHER { psql -qtA 2>&1; }
    echo "BEGIN; UPDATE \"Parts\" SET \"Name\" = 'theirs' WHERE \"PN\" = '1001'; SELECT 'locked';" >&"${OTHER[1]}"
    read -r -u "${OTHER[0]}"
    starts "$postgres_odbc" '(progn
        (princ (catch-error (db_exec "BEGIN")))
        (db_begin)
        (db_exec "UPDATE [Parts] SET [Name] = ? WHERE [PN] = ?" (list "ours" "1002"))
        (princ (catch-error (db_exec "UPDATE [Parts] SET [Name] = ? WHERE [PN] = ?" (list "ours" "1001"))))
        (db_commit)
        (princ (db_query "SELECT [Name] FROM [Parts] WHERE [PN] = ?" (list "1002"))))'
    wants 'lock timeout' "$work/told"
    wants 'a transaction is begun by db_begin' "$work/told"
    wants '((ours))' "$work/told"
    echo '\q' >&"${OTHER[1]}"
    wait "$OTHER_PID"
}

# A host that waits for its next form. told_until LINE: what it prints until then. answer FORM: what it prints for one.
open_host() { coproc HOST { host -i --data "$postgres_odbc" 2>&1; }; }
told_until() {
    local line
    while read -r -t 60 -u "${HOST[0]}" line && [ "${line%$'\r'}" != "$1" ]; do printf '%s\n' "$line"; done >"$work/told"
}
ask() { echo "(progn (princ $1) (terpri) (princ \"answered\") (terpri))" >&"${HOST[1]}"; }
answer() { ask "$1" && told_until answered; }
close_host() {
    eval "exec ${HOST[1]}>&-"
    wait "$HOST_PID" || true
}

# The records in a list stay while the server is away and when its rows change. A filter or a write back is refused meanwhile,
# and both work in the same dialog when the server is back.
server_goes_away_under_a_list() {
    cat >"$work/list.lsp" <<'END'
(defun say (value) (print value) (terpri))
(defun set-up () (wex_fp_cleardatasrc) (wex_fp_setupdatasrc '("" "Parts" "PN")) (wex_listctrl_setitemcount "DLST" (wex_fp_getcount)))
(defun last-part () (ui_items "DLST" (1- (wex_fp_getcount))))
(defun step (word file) (list (list 'progn (list 'princ word) '(terpri)) (list 'ui_wait (list 'file-exists file))))
(ui_session "LOOKUP_FP"
  (append
    '((db_begin) (db_exec "DELETE FROM [Parts] WHERE [PN] = '2000'"))
    (step "shown" stopped)
    '((say (list "rolled back" (catch-error (db_rollback))))
      (ui_pick "DLST" 0)
      (ui_key "END")
      (say (list "kept" (wex_listctrl_getselectednths "DLST") (last-part)))
      (say (list "begin" (catch-error (db_begin))))
      (set-up)
      (say (list "none" (wex_fp_getcount) (ui_items "DLST"))))
    (step "alone" back)
    '((set-up)
      (say (list "again" (wex_fp_getcount) (last-part))))
    (step "read" changed)
    '((say (list "old" (wex_fp_getcount) (last-part)))
      (set-up)
      (say (list "new" (wex_fp_getcount) (last-part)))
      (ui_click "Cancel"))))
(wex_fp_cleardatasrc)
(wex_fp_setupdatasrc '("" "Parts" "PN"))
(wex_new_dialog "LOOKUP_FP")
(wex_listctrl_setcolumns "DLST" "\tNumber")
(wex_start_dialog)
END
    open_host
    answer "(setq stopped \"$work/stopped\" back \"$work/back\" changed \"$work/changed\")"
    ask "(load \"$work/list.lsp\")"
    told_until shown
    stop_postgres immediate
    touch "$work/stopped"
    told_until alone
    wants '("rolled back" T)' "$work/told"
    wants '("kept" (249) ("2000"))' "$work/told"
    wants '("begin" "' "$work/told"
    wants ': SELECT COUNT(*) FROM [Parts]' "$work/told"
    wants '("none" 0 nil)' "$work/told"
    start_postgres_again
    touch "$work/back"
    told_until read
    wants '("again" 250 ("2000"))' "$work/told"
    psql -qc "DELETE FROM \"Parts\" WHERE \"PN\" > '1199'"
    touch "$work/changed"
    told_until answered
    wants '("old" 250 ("2000"))' "$work/told"
    wants '("new" 199 ("1199"))' "$work/told"
    close_host
}

server_goes_away() {
    open_host
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
    close_host
}

round "$work/round ü.sqlite"
round "$postgres_odbc"
file_fails
server_is_locked
server_goes_away
server_goes_away_under_a_list
echo "$passed passed, $failed failed"
[ $failed -eq 0 ]
