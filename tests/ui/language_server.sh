#!/bin/bash
# An editor with the language server: what Neovim's own client sends, and what it shows.
. "$(dirname "${BASH_SOURCE[0]}")/../support/work.sh"
tools/install-packages.sh neovim

HOME=$work WEXHOST="$PWD/wexhost --headless --language-server" RESULT="$work/told" \
    timeout 200 nvim --headless --clean -n -S tests/support/editor.lua >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
diff -u - "$work/told" <<'END' || { cat "$work/log"; exit 1; }
4: "DECS" => ADD_REC has no tile "DECS"; did you mean "DESC"?
5: wex_done_dialg => there is no function wex_done_dialg; did you mean wex_done_dialog?
5: wex_done_dialg => there is no function wex_done_dialg; did you mean wex_done_dialog?
keys: CANCEL (button of ADD_REC), CAT (edit box of ADD_REC), QTY (edit box of ADD_REC)
dialogs: ADD_AN_ATTRIBUTE (), ADD_REC ()
functions: wex_start_controlmove ((wex_start_controlmove count)), wex_start_dialog ((wex_start_dialog)), wex_start_image ((wex_start_image tile)), wex_start_list ((wex_start_list tile [operation [index]]))
hover: ### (wex_set_tile *tile* *value*)
END
