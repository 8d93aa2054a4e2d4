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
head='(load "part.lsp") (setq turns 0)
(wex_new_dialog "ADD_REC")
(wex_action_tile "HELP" "(wex_new_dialog \"CONFIRM_DELREC\") (wex_start_dialog)")
(wex_start_list "TYPE") (wex_add_list (list "a" "b" "c")) (wex_end_list)
(wex_set_tile "DESC" text)'
save part.lsp <<<'(setq text "first text")'
save form.lsp <<LISP
$head
(ui_session "ADD_REC" '((ui_type "CAT" "abc") (ui_click "KEEP") (ui_pick "TYPE" 1)
                        (princ "one is ready\n") (ui_wait nil)))
(wex_start_dialog)
LISP
(cd "$work" && exec 8>&- 9>&- && exec /usr/lib/wine/wine64 bin/wexhost.exe --watch --headless form.lsp) >"$work/printed" 2>"$work/errors" &
watcher=$!
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
save part.lsp <<<'(setq text "second text"'
until_printed 'nothing runs anew until that is mended'
grep -qF 'part.lsp:1: the list that opens here is not closed' "$work/errors" || fail "the mistake isn't told"
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
[ "$(grep -c 'runs anew$' <(tr -d '\r' <"$work/errors"))" = 2 ] || fail "the program was to run anew twice by now"

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
