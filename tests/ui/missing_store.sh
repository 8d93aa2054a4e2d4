#!/bin/bash
# Without the data store's module a setup says so each time, makes no table, and all else goes on.
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"
cp build/windows/bin/{wexhost.exe,hostapi.dll,WexDialogs.pgx,WexDialogsRes.dll} "$work"

printed=$(cd "$work" && wine64 wexhost.exe --headless --no-warn --timeout 60 -e '(progn
    (repeat 2 (wex_fp_setupdatasrc (list "project" "Parts" "PN")))
    (print (list (wex_fp_getcount) (wex_fp_getitem 0) (wex_fp_getadded)))
    (ui_session "LOOKUP_FP" (list (quote (print (ui_items "DLST"))) (quote (ui_click "Cancel"))))
    (wex_new_dialog "LOOKUP_FP")
    (print (wex_start_dialog)))' 2>&1 | tr -d '\r' | sed 's/ *$//')
wanted='Unable to load module [WEXDATASTOREMGDREV.dll].
Unable to load module [WEXDATASTOREMGDREV.dll].

(0 nil nil)
nil
-1'
diff -u <(echo "$wanted") <(echo "$printed")
