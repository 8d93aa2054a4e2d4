#!/bin/bash
# Runs every Lisp example of the documents below; it must print what its ";=>" lines tell, and nothing else. Then goes the walk
# of docs/for-authors.md: its program is checked, mistaken, worked and photographed by the commands that stand there.
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

walk=$work/walk
fail() { failed=$((failed + 1)); echo "FAILED: $*"; }
mkdir "$walk"
tests/support/doc_examples.awk "$walk" docs/for-authors.md
mv "$walk/01.lsp" "$walk/form.lsp"
./wexhost --headless --check "$walk/form.lsp" >"$work/printed" || fail "the walk's program isn't clean"
echo "(ui_session \"ADD_REC\" '((ui_type \"CAT\" \"700-hk32\") (ui_same_shot \"form.png\") (ui_click \"OK\")))" >"$walk/session.lsp"
./wexhost --headless --approve "$walk/session.lsp" "$walk/form.lsp" >"$work/printed" || fail "the walk's picture isn't taken"
printed=$(./wexhost --headless --warn=error "$walk/session.lsp" "$walk/form.lsp") || fail "the walk's session"
[[ $printed == 700-HK32* ]] || fail "the walk prints $printed"
# The first line of an extracted example is a comment of its own.
sed -i -e 1d -e s/DESC/DSEC/ "$walk/form.lsp"
sed -i 's/(ui_same_shot "form.png")//' "$walk/session.lsp"
told=$(./wexhost --headless "$walk/session.lsp" "$walk/form.lsp" 2>&1 >"$work/printed" | tr -d '\r')
grep -qxF "$told" docs/for-authors.md || fail "the walk's mistake is told as: $told"
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
