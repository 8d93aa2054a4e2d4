#!/bin/bash
# The check finds nothing wrong with the programs of this tree: examples, the examples of the documents, sessions of the tests.
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"

tests/support/doc_examples.awk "$work" README.md docs/lisp-functions.md docs/sessions.md docs/dialogs.md docs/for-authors.md
checked=0 failed=0
check() { # HOST FILE…
    checked=$((checked + 1))
    wine64 "build/windows/$1/wexhost.exe" --headless --check "${@:2}" >"$work/told" || { failed=$((failed + 1)); grep warning: "$work/told" || true; }
}
for program in examples/*.lsp "$work"/*.lsp; do check bin "$program"; done
# Sessions run beside the add-on of odd dialogs, with what they share.
for program in tests/ui/*.lsp; do check testbin tests/support/check.lsp "$program"; done
echo "$checked programs, $failed with warnings"
[ "$failed" -eq 0 ] && [ "$checked" -gt 100 ]
