#!/bin/bash
# What is handed out runs where nothing else is: unpacked in a folder whose name has blanks and letters of other scripts, in an
# empty prefix. Its modules need nothing but the system's and one another, all tell one version, and are hardened.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
expected=$PWD/tests/ui/examples/showcase.txt
. tools/wine-env.sh
start_wine headless
work=$(mktemp -d)
export WINEPREFIX=$work/prefix
trap 'wine_server -k || true; rm -rf "$work"; WINEPREFIX=$wine_root/headless; stop_wine' EXIT
fail() { echo "FAILED: $*"; exit 1; }

tools/package.sh "$work" >/dev/null
unpacked="$work/Ein Ordner für 図面"
mkdir "$unpacked"
for archive in "$work"/*.zip; do unzip -q "$archive" -d "$unpacked"; done
[ "$(ls "$unpacked" | wc -l)" = 2 ] || fail "each archive is to have one folder: $(ls "$unpacked")"
cd "$unpacked"/WexDialogs-*[0-9]

# modules: those of this folder, then those that the system has
for module in *.dll *.exe *.pgx WexDialogs.d/*.dll; do
    headers=$(x86_64-w64-mingw32-objdump -p "$module")
    for import in $(sed -n 's/.*DLL Name: //p' <<<"$headers"); do
        [ -e "$import" ] || compgen -G "/usr/lib/x86_64-linux-gnu/wine/x86_64-windows/${import,,}" >/dev/null || fail "$module needs $import"
    done
    # The add-on is an example of what others make.
    [ "$module" = WexDialogs.d/WireGauge.dll ] && continue
    for trait in DYNAMIC_BASE NX_COMPAT; do grep -q "$trait" <<<"$headers" || fail "$module lacks $trait"; done
    version=$(strings -el "$module" | sed -n '/^ProductVersion$/{n;p}')
    [ "WexDialogs-$version" = "$(basename "$PWD")" ] || fail "$module tells version \"$version\""
    [ -e "../$(basename "$PWD")-symbols/$module.debug" ] || fail "$module has no symbols"
done
for module in WexDialogs.pgx hostapi.dll WEXDATASTOREMGDREV.dll; do
    x86_64-w64-mingw32-nm "../$(basename "$PWD")-symbols/$module.debug" | grep __stack_chk_fail >/dev/null || fail "$module's stack isn't guarded"
done
# What other modules reach of the plug-in by name: its functions, and two templates that stand in it as examples.
for name in pluginEntryPoint pluginGetApiVersion GeneratedLispFileMgr11GetInstance GeneratedLispFileMgr8openFile \
    GeneratedLispFileMgr9closeFile GeneratedLispFileMgrC1 GeneratedLispFileMgrD1 WexGrid12CreateObject WexGrid12GetThisClass WexGrid15GetRuntimeClass; do
    x86_64-w64-mingw32-objdump -p WexDialogs.pgx | grep "$name" >/dev/null || fail "WexDialogs.pgx doesn't export $name"
done
for name in IDD_SCHEM_WIRE2PNL_FORMAT IDD_SU_SCHEM_WIRE2PNL_FORMAT; do
    strings -el WexDialogs.pgx | grep "$name" >/dev/null || fail "WexDialogs.pgx holds no template $name"
done
# Handles of tree items are addresses that cross Lisp as 32 bits.
! x86_64-w64-mingw32-objdump -p wexhost.exe | grep HIGH_ENTROPY_VA >/dev/null || fail "the host's memory may lie beyond 32 bits"
for page in README.html docs/*.html; do
    for link in $(grep -o 'href="[^":#]*\|src="[^":]*' "$page" | sed 's/.*"//'); do
        [ -e "$(dirname "$page")/$link" ] || fail "$page leads to $link, which isn't there"
    done
done

# An add-on is made as the documents tell.
(cd examples/addon && ../../tools/dialogs/make-dialogs.py "$work/made" *.dlg) || fail "an add-on's dialogs can't be made"
grep WIRE_GAUGE "$work/made/keylists.rc" >/dev/null || fail "the add-on's key list wasn't made"

told=$(wine64 wexhost.exe --version | tr -d '\r')
[ "$told" = "wexhost ${PWD##*-}" ] || fail "--version tells \"$told\""

status=0
wine64 wexhost.exe --headless --timeout 120 --shots "$work" 'examples\showcase.lsp' >"$work/printed" || status=$?
diff -u "$expected" <(tr -d '\r' <"$work/printed") || fail "the unpacked product prints something else"
[ $status = 0 ] || fail "the unpacked product ends with status $status"
