#!/bin/bash
# Dialogs of all kinds are worked at random, and what was recorded of that is played: the actions hear the same.
# Usage: tests/ui/recording.sh [FIRST [COUNT [EACH [INPUT [STEPS]]]]]    COUNT dialogs from number FIRST on, EACH of
# them in a host, by the input that is POSTED or that of the REAL mouse and keyboard, at most STEPS times in each; without
# the name of an input by either in turn
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"
first=${1:-0} count=${2:-20} each=${3:-5} inputs=(${4:-POSTED REAL}) steps=${5:-12}
forms=tests/support/recording
host() { wine64 build/windows/testbin/wexhost.exe --headless --timeout 250 "$@" 2>"$work/errors" | tr -d '\r'; }
failed=0

# check FIRST COUNT INPUT    by $steps steps
check() {
    local run=(-e "(run-forms $1 $2)")
    # The person may do what ends a dialog before its session does, which is an error of that session.
    local status=0
    host --record "$work/recorded.lsp" $forms/forms.lsp $forms/person.lsp -e "(ui_input \"$3\")" -e "(setq steps $steps)" "${run[@]}" >"$work/worked" || status=$?
    if [ $status -le 1 ]; then
        status=0
        host $forms/forms.lsp "$work/recorded.lsp" "${run[@]}" >"$work/played" || status=$?
    fi
    if [ $status != 0 ] || ! diff -u --label worked --label played "$work/worked" "$work/played"; then
        echo "FAILED: dialogs from $1 on, $3 input, status $status"
        cat "$work/errors"
        failed=1
        mkdir -p build/test-logs
        cp "$work/recorded.lsp" "build/test-logs/recorded-$1.lsp"
    fi
}

for ((n = first; n < first + count; n += each)); do
    check $n $((n + each > first + count ? first + count - n : each)) "${inputs[$(((n - first) / each % ${#inputs[@]}))]}"
done
if [ $# = 0 ]; then
    # Presses beside the open list of a cell, a drag whose end a dialog has taken, the menu of an open cell, F4 in a cell
    # without choices, the right button after a lost release, a tab that is scrolled to meanwhile, and a double press
    # around a dialog that never ran.
    for n in 710372 720032 710392 710517 760102 870112 1010315 1010580; do check $n 1 REAL; done
    # A menu where the focus is in an edit box, typing on both sides of a turn of the wheel, and Enter where Tab has led.
    for n in 770122 770229 820146; do check $n 1 POSTED; done
    # Long work: a press on the field of an open cell with choices.
    steps=40
    for n in 930077; do check $n 1 REAL; done
fi
exit $failed
