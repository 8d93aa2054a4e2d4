#!/bin/bash
# Every dialog that the host lists opens under its name, and Esc closes it.
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"
bin=build/windows/bin

wine64 $bin/wexhost.exe --dialogs | tr -d '\r' >"$work/listed"
awk '{ print $1 }' "$work/listed" >"$work/names"
while read -r name; do
    printf "(ui_session \"%s\" '((princ (ui_title)) (terpri) (ui_key \"ESC\")))\n" "$name"
    printf '(wex_new_dialog "%s") (princ "%s  ") (wex_start_dialog)\n' "$name" "$name"
done <"$work/names" >"$work/open.lsp"
wine64 $bin/wexhost.exe --headless --timeout 200 "$work/open.lsp" | tr -d '\r' >"$work/opened"

[ "$(wc -l <"$work/names")" -ge 100 ] || { echo "few dialogs are listed:"; cat "$work/listed"; exit 1; }
# Names and titles, without the columns that the list has.
diff -u <(sed -E 's/ {2,}[^ ]+\.dll$//; s/ {2,}/  /' "$work/listed") "$work/opened"
