#!/bin/bash
# Three hosts work the same dialog at the same time, and its actions load each time. No host leaves its temporary folder
# behind, even if it was killed.
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"
host() { wine64 build/windows/bin/wexhost.exe --headless --timeout 200 "$@"; }
left_folders() { find "$WINEPREFIX/drive_c/users" -name 'wexhost-*' -type d; }

cat >"$work/many.lsp" <<'LISP'
(setq started 0)
(repeat 60
  ; Another host's window that comes to the front takes the mouse away from a button that is being pressed.
  (ui_session "CONFIRM_DELREC" '((ui_click "OK")))
  (wex_new_dialog "CONFIRM_DELREC")
  (wex_setaction_oninit "(setq started (1+ started))")
  (wex_start_dialog))
(princ started)
(terpri)
LISP
for n in 1 2 3; do host "$work/many.lsp" >"$work/$n" 2>&1 & jobs[n]=$!; done
for job in "${jobs[@]}"; do wait "$job" || { cat "$work"/[123]; exit 1; }; done
[ "$(cat "$work"/[123] | tr -d '\r')" = $'60\n60\n60' ] || { cat "$work"/[123]; exit 1; }

# Time runs out, which ends a host at once; the next one clears up behind it.
host --timeout 1 -e '(while T)' >"$work/killed" 2>&1 && exit 1
[ -n "$(left_folders)" ] || { echo "a killed host was to leave its folder here"; exit 1; }
host -e '(princ)'
[ -z "$(left_folders)" ] || { left_folders; exit 1; }
