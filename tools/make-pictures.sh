#!/bin/bash
# Usage: tools/make-pictures.sh [FOLDER]    draws the pictures of the documents from what is built, into docs/images
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
folder=${1:-$root/docs/images}
. "$root/tools/wine-env.sh"
start_wine headless
work=$(mktemp -d)
trap 'rm -rf "$work"; stop_wine' EXIT
forget_dialog_sizes

# picture NAME PROGRAM SHOT: the picture of that name is one that the session of a program takes
picture() {
    "$root/wexhost" --headless --timeout 120 --shots "$work" "$root/$2" >/dev/null
    cp "$work/$3" "$folder/$1"
}

mkdir -p "$folder"
picture dialog.png examples/showcase.lsp showcase.png
picture panel.png examples/panel.lsp panel.png
picture block.png examples/block_picker.lsp block_contact.png
