#!/bin/bash
# Runs every Lisp example of the documents below; it must print what its ";=>" lines tell, and nothing else.
. "$(dirname "${BASH_SOURCE[0]}")/../support/work.sh"

documents=(README.md docs/lisp-functions.md docs/sessions.md docs/dialogs.md)
tests/support/doc_examples.awk "$work" "${documents[@]}"

passed=0 failed=0
for example in "$work"/*.lsp; do
    status=0
    ./wexhost --headless --timeout 60 "$example" >"$work/printed" 2>&1 || status=$?
    if difference=$(diff -u --label told --label printed <(sed -n 's/^;=> //p' "$example") \
            <(tr -d '\r' <"$work/printed" | sed -e '$a\')); then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAILED: the example of $(head -n 1 "$example" | cut -c3-) (status $status)"
        echo "$difference"
    fi
done
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
