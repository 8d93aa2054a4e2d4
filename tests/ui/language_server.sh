#!/bin/bash
# An editor with the language server: what Neovim's own client sends, and what it shows.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
tools/install-packages.sh neovim
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

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

# What no editor sends is answered as well, and the server goes on.
python3 - ./wexhost --headless --language-server <<'END'
import sys
sys.path.insert(0, "tests/support")
from language_client import Client
client = Client(sys.argv[1:])
client.send_raw(b"{")
assert client.read()["error"]["code"] == -32700
assert client.ask("textDocument/hover")["error"]["code"] == -32002
client.start()
assert client.ask("no/such")["error"]["code"] == -32601
assert client.ask("textDocument/hover", textDocument={"uri": 5})["error"]["code"] == -32602
assert len(client.open("file:///a.lsp", "(no-such 1)")) == 1
assert client.stop() == 0
END
