#!/bin/bash
# Where a warning says that the mistake is, how often it is told, what the options make of it, and a host that knows no
# warnings: there the program runs as ever.
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"
failed=0

cat >"$work/form.lsp" <<'PROGRAM'
(defun my-function ()
  (wex_set_tile "IN_FUNCTION" "x"))
(wex_new_dialog "ADD_REC")
(wex_action_tile "OK"
  "(wex_set_tile \"ACTION\" \"x\") (my-function)
   (repeat 3 (wex_set_tile \"DECS\" \"x\"))")
(foreach key '("LOOP1" "LOOP2" "LOOP3") (wex_set_tile key "x") (wex_mode_tile key 1))
(setq answer (wex_set_tile "DESCR"
  "x"))
(ui_session "ADD_REC" '((ui_click "OK") (ui_click "OK") (wex_set_tile "IN_SESSION" "x") (ui_click "Cancel")))
(print (list answer (wex_start_dialog)))
PROGRAM
told='form.lsp:7: wex_set_tile: ADD_REC has no tile "LOOP1"
form.lsp:7: wex_mode_tile: ADD_REC has no tile "LOOP1"
form.lsp:8: wex_set_tile: ADD_REC has no tile "DESCR"; did you mean "DESC"?
form.lsp:4: wex_set_tile: ADD_REC has no tile "ACTION"
form.lsp:2: wex_set_tile: ADD_REC has no tile "IN_FUNCTION"
form.lsp:10: wex_set_tile: ADD_REC has no tile "IN_SESSION"'

# check NAME STATUS TOLD [OPTION...]: runs the program in the folder $bin
bin=$PWD/build/windows/bin
check() {
    local status=0
    wine64 "$bin/wexhost.exe" --timeout 60 "${@:4}" "$work/form.lsp" >"$work/printed" 2>"$work/errors" || status=$?
    diff -u <(printf '\n(nil -1)') <(tr -d '\r' <"$work/printed" | sed 's/ *$//') || fail "$1: the program printed something else"
    diff -u <(printf '%s' "${3:+$3$'\n'}") <(tr -d '\r' <"$work/errors") || fail "$1: something else was told"
    [ $status = "$2" ] || fail "$1: status $status"
}
fail() { echo "FAILED $*"; failed=1; }

check 'each line once' 0 "$told" --headless
check 'while sessions play' 0 "$told" --play
check 'as errors' 1 "$told" --headless --warn=error
check 'not wanted' 0 '' --headless --no-warn
check 'not wanted, as a mode' 0 '' --headless --warn=off

# What the program means to do, and what it expects, is no error.
status=0
printed=$(wine64 "$bin/wexhost.exe" --headless --warn=error --timeout 60 -e '(progn
    (host_warn nil) (wex_set_tile "A" "x") (host_warn T)
    (wex_get_tile "A") (princ (length (ui_warnings))))' 2>/dev/null) || status=$?
[ "$printed $status" = "1 0" ] || fail "expected warnings: $printed, status $status"

# What the data store reports is a warning of the function that asked it.
told=$(wine64 "$bin/wexhost.exe" --headless --data "$work/empty.sqlite" -e '(wex_fp_setupdatasrc (list "p" "Nothing" "x"))' 2>&1 | tr -d '\r')
[[ $told == *'-e:1: wex_fp_setupdatasrc: a call of the database failed: '*'no such table: Nothing'* ]] || fail "a failed call of the database: $told"

# The same host but that its export has another name.
mkdir "$work/bin"
cp "$bin"/{wexhost.exe,WexDialogs.pgx,WexDialogsRes.dll} "$work/bin"
LC_ALL=C sed 's/\x00hostWarn\x00/\x00hostWarm\x00/' "$bin/hostapi.dll" >"$work/bin/hostapi.dll"
! cmp -s "$bin/hostapi.dll" "$work/bin/hostapi.dll" || fail "the export has gone"
bin=$work/bin
check 'a host without warnings' 0 '' --headless --warn=error

exit $failed
