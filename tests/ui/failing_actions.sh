#!/bin/bash
# An error in an action ends nothing but that action: what is told about it, and the exit status, are all that the
# person has to find it. Each case runs a program of its own and compares all that it prints.
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"
failed=0

# check NAME STATUS PROGRAM PRINTED [OPTION...]
check() {
    local status=0
    printf '%s\n' "$3" >"$work/program.lsp"
    wine64 build/windows/bin/wexhost.exe --headless --no-warn --timeout 60 "${@:5}" "$work/program.lsp" >"$work/printed" 2>&1 || status=$?
    diff -u <(echo "$4") <(tr -d '\r' <"$work/printed") && [ $status = "$2" ] && return
    echo "FAILED $1: status $status"
    failed=1
}

check 'An error in an action, in a function that it calls, and at the start of the dialog' 1 '
(defun helper (x)
  (car x))
(wex_new_dialog "Confirm_DelRec")
(wex_setaction_oninit "(strcat 1)")
(wex_action_tile "OK" "(princ 1)
(foreach x (list 1 2) (strlen x)) (princ 2)")
(wex_action_tile "Cancel"
  "(helper 5)")
(ui_session "CONFIRM_DELREC" (quote ((ui_click "OK") (ui_click "Cancel"))))
(princ (wex_start_dialog))
(terpri)' \
'dialog "confirm_delrec", on-init action bound at program.lsp:5: (strcat 1)
  program.lsp:5: (strcat): argument 1: expected a string, got 1
1
dialog "confirm_delrec", tile "OK", action bound at program.lsp:6: (princ 1) (foreach x (list 1 2) (strlen x)) (princ 2)
  program.lsp:6: (strlen): argument 1: expected a string, got 1
dialog "confirm_delrec", tile "Cancel", action bound at program.lsp:8: (helper 5)
  program.lsp:3: (car): argument 1: expected a list, got 5
-1'

check 'Actions that do not load, of a dialog that ran before' 1 '
(setq quit (quote (ui_session "CONFIRM_DELREC" (quote ((ui_click "OK") (ui_click "Cancel"))))))
(wex_new_dialog "CONFIRM_DELREC")
(wex_action_tile "OK" "(princ \"first run\\n\")")
(eval quit)
(wex_start_dialog)
(wex_new_dialog "CONFIRM_DELREC")
(wex_action_tile "HELP" "(princ 1")
(wex_action_tile "OK" "(princ 2)")
(wex_action_tile "no name" "(princ 3)")
(wex_setaction_onsize "(princ \"4)")
(ui_session "CONFIRM_DELREC" (quote ((ui_click "OK") (ui_close))))
(princ (wex_start_dialog))
(terpri)
(wex_new_dialog "CONFIRM_DELREC")
(wex_action_tile "OK" "(princ \"sound again\\n\")")
(eval quit)
(wex_start_dialog)' \
'first run
program.lsp:13: dialog "confirm_delrec" has lost all its actions
  tile "HELP", action bound at program.lsp:8: (princ 1
    the list that opens here is not closed
  tile "no name", action bound at program.lsp:10: (princ 3)
    no name in Lisp can hold that key
  on-size action bound at program.lsp:11: (princ "4)
    the string that opens here is not closed
-1
sound again'

check 'Time runs out in an action' 4 '
(wex_new_dialog "CONFIRM_DELREC")
(wex_action_tile "OK" "(while T)")
(ui_session "CONFIRM_DELREC" (quote ((ui_click "OK"))))
(wex_start_dialog)' \
'time ran out
  dialog "Delete Record" is open
  the last step was session "CONFIRM_DELREC", step 1: (UI_CLICK "OK")
  the action that runs is that of dialog "confirm_delrec", tile "OK", action bound at program.lsp:3: (while T)
  the last call was at program.lsp:4' --timeout 3

exit $failed
