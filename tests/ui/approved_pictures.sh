#!/bin/bash
# A session compares how its dialog looks with an approved picture that lies beside the program.
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"
mkdir "$work/forms"
failed=0

cat >"$work/forms/form.lsp" <<'LISP'
(if (not (boundp 'label)) (setq label "Quantity"))
(if (not (boundp 'height)) (setq height 300))
(ui_session "CONFIRM_DELREC"
  '((ui_size 400 height)
    (ui_same_shot "form.png")
    (ui_click "OK")))
(wex_new_dialog "CONFIRM_DELREC")
(wex_set_tile "LABEL0" label)
(wex_start_dialog)
LISP

# look NAME STATUS WORDS OPTION...: the host's exit status, and a pattern for what it prints in all
look() {
    local status=0 printed
    printed=$(wine64 build/windows/bin/wexhost.exe --headless --timeout 60 "${@:4}" "$work/forms/form.lsp" 2>&1 | tr -d '\r\n') || status=$?
    # shellcheck disable=SC2053
    [[ $status = "$2" && $printed == $3 ]] && return
    echo "FAILED $1: status $status, $printed"
    failed=1
}
files() { (cd "$work/forms" && echo *.png); }
left() {
    [ "$(files)" = "$2" ] && return
    echo "FAILED $1: files $(files)"
    failed=1
}

look 'Nothing is approved yet' 1 '*step 2:*there is no approved picture *form.png*form.new.png*--approve*'
left 'How it looks is left to be seen' 'form.new.png'
look 'What is there is approved' 0 '*approved*form.png' --approve
left 'Approving clears up' 'form.png'
look 'It looks the same' 0 ''
look 'One letter is another' 1 '*doesn?t look as approved: * points differ*form.png is approved, *form.new.png is new*form.difference.png*' -e '(setq label "Quantily")'
left 'Both pictures are left' 'form.difference.png form.new.png form.png'
look 'Another size' 1 '*the sizes differ*' -e '(setq height 310)'
look 'It looks as before' 0 ''
left 'Nothing is left' 'form.png'
cp "$work/forms/form.png" "$work/first.png"
look 'Approving what looks the same' 0 '' --approve
look 'Approving another one' 0 '*approved*' --approve -e '(setq label "Other")'
look 'The other one is approved' 0 '' -e '(setq label "Other")'

host() { wine64 build/windows/bin/wexhost.exe --headless --compare-pictures "$@" >"$work/printed" 2>&1; }
host "$work/first.png" "$work/first.png" || failed=1
host "$work/first.png" "$work/first.png" "$work/first.png" "$work/forms/form.png" && failed=1
grep -q 'first.png, .*form.png: .* points differ' "$work/printed" || failed=1

printf 'no picture' >"$work/forms/form.png"
look 'What is no picture' 1 "*can't read the picture*form.png*"
exit $failed
