#!/bin/bash
# How the host as a program behaves: what it prints where, and its exit status.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
passed=0 failed=0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# expect NAME STATUS OUTPUT ERROR ARG…: the exit status, the whole standard output, a part of standard error
expect() {
    local name=$1 status=$2 output=$3 error=$4 actual=0 printed told
    shift 4
    ./wexhost "$@" >"$work/out" 2>"$work/err" </dev/null || actual=$?
    printed=$(tr -d '\r' <"$work/out") told=$(tr -d '\r' <"$work/err")
    if [ $actual -eq "$status" ] && [ "$printed" = "$output" ] && [[ $told == *"$error"* ]]; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf 'FAILED %s\n  wanted %s: %s | %s\n  got    %s: %s | %s\n' \
            "$name" "$status" "$output" "$error" "$actual" "$printed" "$told"
    fi
}

dialog='(progn (wex_new_dialog "CONFIRM_DELREC") (princ (wex_start_dialog)))'
echo '(princ "héllo") (setq x 5) (car x)' >"$work/faulty file.lsp"
echo '(princ (strcat "in " (load "part")))' >"$work/whole.lsp"
mkdir "$work/support"
echo '"part"' >"$work/support/part.lsp"

expect "steps run in order" 0 "12" "" --headless -e '(princ 1)' -e '(princ 2)'
expect "a Lisp error tells file and line, and what came" 1 "héllo" "faulty file.lsp:1" --headless "$work/faulty file.lsp"
expect "a file that isn't there" 1 "" "nowhere.lsp" --headless "$work/nowhere.lsp"
expect "support folders are searched" 0 "in part" "" --headless --support "$work/support" "$work/whole.lsp"
expect "an option that is none" 2 "" "--nonsense" --headless --nonsense
expect "an alert is a line" 0 "[alert] Mind this" "" --headless -e '(wex_alert "Mind this")'
expect "nobody to press OK" 3 "-1" "Delete Record" --headless -e "$dialog"
expect "a session that leaves its dialog open" 3 "-1" "Delete Record" \
    --headless -e "(ui_session \"CONFIRM_DELREC\" '((ui_title)))" -e "$dialog"
expect "Lisp that doesn't end" 4 "" "" --headless --timeout 0.5 -e '(while T)'
expect "a wait in a session that doesn't end" 4 "" "CONFIRM_DELREC" \
    --headless --timeout 0.5 -e "(ui_session \"CONFIRM_DELREC\" '((ui_wait nil)))" -e "$dialog"

echo "$passed passed, $failed failed"
[ $failed -eq 0 ]
