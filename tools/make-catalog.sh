#!/bin/bash
# Makes docs/dialog-catalog.md anew: each of the product's dialogs with its picture and its tiles, as the host tells them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/wine-env.sh
start_wine headless
work=$(mktemp -d)
trap 'rm -rf "$work"; stop_wine' EXIT
pictures=docs/images/dialogs
mkdir -p $pictures
host() { wine64 build/windows/bin/wexhost.exe "$@" | tr -d '\r'; }

# Those of add-ons end with the name of their module.
host --dialogs | grep -v '\.dll$' | awk '{ print $1 }' | sort >"$work/names"
# Which tiles stand on which page is the program's to say.
pages() {
    case $1 in
        HELP_PROJ_SETTINGS) pages='(wex_tab_add "TABS" "Settings" "LABEL0" "TOPICS" "ABOUT" "TEXT")
            (wex_tab_add "TABS" "Files" "LABEL1" "FILES" "B_OPEN") (wex_tab_add "TABS" "Notes" "LABEL2" "NOTES")' ;;
        SETUP_COMPONENT_XREF) pages='(wex_tab_add "TABS" "Style" "MODE" "TEXT" "GRAPHICAL" "TABLE" "SETUP" "SAME_SHEET")
            (wex_tab_add "TABS" "Format" "FORMATS" "LABEL0" "SAME_FMT" "LABEL1" "OTHER_FMT" "LABEL2" "BETWEEN" "LABEL3" "SAMPLE")
            (wex_tab_add "TABS" "Components" "LABEL4" "TYPES" "ALL" "NONE")' ;;
        *) return 0 ;;
    esac
    printf '(wex_setaction_oninit "%s")' "${pages//\"/\\\"}"
}
while read -r name; do
    printf "(ui_session \"%s\" '((ui_shot \"%s.png\") (ui_key \"ESC\")))\n" "$name" "$name"
    printf '(wex_new_dialog "%s") %s (wex_start_dialog)\n' "$name" "$(pages "$name")"
done <"$work/names" >"$work/shots.lsp"
rm -f $pictures/*.png
forget_dialog_sizes
host --headless --timeout 200 --shots "$pictures" "$work/shots.lsp"

{
    echo '# The dialogs'
    echo
    echo 'Made by `tools/make-catalog.sh`. A line for each tile, in the order of the Tab key: key, control id, kind, text.'
    # A line that doesn't begin with a blank begins a dialog.
    host --dialogs $(cat "$work/names") | awk '
        /^[^ ]/ {
            if (name) print "```"
            name = $1
            sub(/:$/, "", name)
            printf "\n## %s\n\n![%s](images/dialogs/%s.png)\n\n```\n", name, name, name
        }
        { print }
        END { print "```" }'
} >docs/dialog-catalog.md
du -sh $pictures
