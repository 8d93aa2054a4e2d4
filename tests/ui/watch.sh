#!/bin/bash
# A program that is saved while its dialog stands: the dialog opens again with what the person had made of it. Sessions are
# the person; what they see is printed.
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"
watcher=
at_end() { [ -z "$watcher" ] || kill $watcher 2>/dev/null || true; }
fail() {
    echo "FAILED: $*"
    cat "$work/printed" "$work/errors"
    exit 1
}
# until_printed TEXT [TIMES]: waits for it on either stream
until_printed() {
    local tries=0
    until [ "$(cat "$work/printed" "$work/errors" | grep -cF "$1")" -ge "${2:-1}" ]; do
        tries=$((tries + 1))
        [ $tries -lt 600 ] || fail "\"$1\" was never printed"
        read -rt 0.1 <> <(:) || true
    done
}
# save FILE: as editors do, by renaming
save() { cat >"$work/saved" && mv "$work/saved" "$work/$1"; }

mkdir "$work/bin"
cp -r build/windows/bin/. "$work/bin"
cp build/windows/testbin/WexDialogs.d/Odd.dll "$work/bin/WexDialogs.d"
head='(load "part.lsp") (setq turns 0)
(wex_new_dialog "ADD_REC")
(wex_action_tile "HELP" "(wex_new_dialog \"CONFIRM_DELREC\") (wex_start_dialog)")
(wex_start_list "TYPE") (wex_add_list (list "a" "b" "c")) (wex_end_list)
(wex_set_tile "DESC" text)'
save part.lsp <<<'(setq text "first text")'
# A program that is yet to be written is waited for.
(cd "$work" && exec 8>&- 9>&- && exec /usr/lib/wine/wine64 bin/wexhost.exe --watch --headless form.lsp) >"$work/printed" 2>"$work/errors" &
watcher=$!
until_printed 'it runs again when it is saved'
save form.lsp <<LISP
$head
(ui_session "ADD_REC" '((ui_type "CAT" "abc") (ui_click "KEEP") (ui_pick "TYPE" 1)
                        (princ "one is ready\n") (ui_wait nil)))
(wex_start_dialog)
LISP
until_printed 'one is ready'

save form.lsp <<LISP
$head
(ui_session "ADD_REC" '((ui_wait (= (ui_text "CAT") "ABC"))
                        (print (list "again" (ui_text "DESC") (cdr (assoc "checked" (ui_look "KEEP"))) (cdr (assoc "selected" (ui_look "TYPE")))))
                        (princ "\ntwo is ready\n") (ui_wait nil)))
(wex_start_dialog)
LISP
until_printed 'two is ready'
grep -qF '("again" "first text" T (1))' "$work/printed" || fail "the dialog came back otherwise"

# The button is held for some turns of the loop, as by a person.
# A mistake leaves the old dialog standing; the file that it loads brings another value for what nobody had touched.
save part.lsp <<<$'(setq words 2)\n(setq text "second text"'
until_printed 'nothing runs anew until that is mended'
grep -qF 'part.lsp:2: the list that opens here is not closed' "$work/errors" || fail "the mistake isn't told"
save form.lsp <<LISP
$head
(ui_session "ADD_REC" '((ui_wait (= (ui_text "CAT") "ABC")) (print (ui_text "DESC")) (ui_hold "HELP")
                        (ui_wait (> (setq turns (1+ turns)) 20)) (ui_release "HELP")))
(ui_session "CONFIRM_DELREC" '((princ "\nthree is ready\n") (ui_wait nil)))
(wex_start_dialog)
LISP
printf '(setq text ' >"$work/part.lsp"
printf '"second text")' >>"$work/part.lsp"
until_printed 'three is ready'
grep -qF '"second text"' "$work/printed" || fail "the new value doesn't show"
[ "$(grep -c 'runs anew$' <(tr -d '\r' <"$work/errors"))" = 3 ] || fail "the program was to run anew three times by now"

# comes_back DIALOG PROGRAM WORK SIGN: what the work leaves is there again after the next save, once the sign holds
comes_back() {
    save form.lsp <<<"$2
(ui_session \"$1\" '($3 (print (state)) (princ \"\\n$1 was worked\\n\") (ui_wait nil)))
(wex_start_dialog)"
    until_printed "$1 was worked"
    save form.lsp <<<"$2
(ui_session \"$1\" '((ui_wait $4) (print (state)) (princ \"\\n$1 is back\\n\") (ui_wait nil)))
(wex_start_dialog)"
    until_printed "$1 is back"
    local states
    states=$(tr -d '\r' <"$work/printed" | grep -B1 -E "^$1 (was worked|is back)" | grep '^(')
    [ "$(sort -u <<<"$states" | wc -l)" = 1 ] || fail "$1 comes back otherwise: $states"
}

comes_back ODD_KINDS '(defun of (tile what) (cdr (assoc what (ui_look tile))))
(defun state () (list (of "TAB" "selected") (of "TREE" "expanded") (of "TREE" "path") (of "TREE" "first") (ui_items "LISTVIEW") (of "LISTVIEW" "selected")))
(wex_new_dialog "ODD_KINDS")
(wex_setaction_oninit "(wex_tab_add \"TAB\" \"one\" \"EDIT\") (wex_tab_add \"TAB\" \"two\" \"COMBO\")
  (foreach name (list \"closed\" \"opened\")
    (setq branch (wex_tree_insertparent \"TREE\" name))
    (repeat 20 (wex_tree_insertchild \"TREE\" branch (itoa (setq leaves (if leaves (1+ leaves) 0)))))
    (if (= name \"closed\") (wex_tree_expanditem \"TREE\" branch 1)))
  (wex_listctrl_allowsorting \"LISTVIEW\" T)")
(wex_listctrl_setcolumns "LISTVIEW" "\tName")
(wex_start_list "LISTVIEW") (wex_add_list (list "b" "c" "a")) (wex_end_list)' \
    '(ui_pick "TAB" 1) (ui_expand "TREE" "closed") (ui_expand "TREE" "opened") (ui_pick "TREE" "39") (ui_wheel "TREE" 1)
     (ui_header "LISTVIEW" 0) (ui_header "LISTVIEW" 0) (ui_pick "LISTVIEW" "b")' '(equal (of "TAB" "selected") (list 1))'

comes_back EDIT_NONWD_ATTRS '(defun state ()
  (list (cdr (assoc "current" (ui_look "LST"))) (cdr (assoc "ranges" (ui_look "LST"))) (cdr (assoc "first" (ui_look "LST"))) (cdr (assoc "text" (ui_cell "LST" 90 2))) (cdr (assoc "rect" (ui_look)))))
(wex_new_dialog "EDIT_NONWD_ATTRS")
(wex_action_tile "LST" "(princ \"the grid tells\n\")")
(wex_setaction_oninit "(wex_grid_setrowcolumns \"LST\" 200 5) (wex_grid_setcell \"LST\" 90 2 100 \"old\")")' \
    '(ui_drag "LEFT" -40 0) (ui_pick "LST" 90 2) (ui_type "LST" "new") (ui_key "ENTER") (ui_pick "LST" 91 1) (ui_pick "LST" 88 0 "CTRL") (ui_pick "LST" 0 3 "CTRL") (ui_pick "LST" 92 2 93 3 "CTRL")' \
    '(= (cdr (assoc "text" (ui_cell "LST" 90 2))) "new")'
[ -z "$(sed -n '/EDIT_NONWD_ATTRS was worked/,$p' "$work/printed" | grep 'the grid tells')" ] || fail "an action runs as a grid comes back"

# A dialog in front of another opens again, when an add-on is saved.
cp "$work/bin/WexDialogs.d/WireGauge.dll" "$work/addon"
save form.lsp <<LISP
$head
(ui_session "ADD_REC" '((ui_wait nil)))
(ui_session "CONFIRM_DELREC" '((princ "\nfour is ready\n") (ui_wait nil)))
(wex_start_dialog)
LISP
until_printed 'four is ready'
mv "$work/addon" "$work/bin/WexDialogs.d/WireGauge.dll"
touch "$work/bin/WexDialogs.d/WireGauge.dll"
until_printed 'WireGauge.dll was saved'
until_printed 'four is ready' 2

kill -INT $watcher
wait $watcher && status=0 || status=$?
watcher=
[ $status = 0 ] || fail "Ctrl+C ends it with status $status"
