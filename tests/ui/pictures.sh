#!/bin/bash
# The pictures of the documents show what is drawn today.
. "$(dirname "${BASH_SOURCE[0]}")/../support/work.sh"
tools/make-pictures.sh "$work"
pairs=()
for picture in docs/images/*.png; do pairs+=("$PWD/$picture" "$work/$(basename "$picture")"); done
./wexhost --compare-pictures "${pairs[@]}" && exit
echo "Look at what changed; where it is meant, tools/make-pictures.sh draws the pictures anew."
exit 1
