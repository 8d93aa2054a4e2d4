#!/bin/bash
# The pictures of the documents show what is drawn today.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
tools/make-pictures.sh "$work"
status=0
for picture in docs/images/*.png; do
    tools/compare-pictures.py "$picture" "$work/$(basename "$picture")" ||
        { echo "Look at what changed; where it is meant, tools/make-pictures.sh draws $picture anew."; status=1; }
done
exit $status
