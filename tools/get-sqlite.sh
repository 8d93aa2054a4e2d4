#!/bin/bash
# Usage: get-sqlite.sh FOLDER    puts sqlite3.c and sqlite3.h there, from the package of the npm registry that carries them
set -euo pipefail
package=better-sqlite3@12.4.1
sha512=df255dc9986495388daed83ee16a87a49a450ddf961d3836a0ced4711f341aa2f4e40395d31109cdceaa36f158a04b44fa1469d67f4ca4debffb8ca19469035d
folder=$1
[ "$(cat "$folder/package" 2>/dev/null)" != "$package" ] || exit 0

"$(dirname "${BASH_SOURCE[0]}")/install-packages.sh"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
echo "Fetching SQLite ($package) …" >&2
(cd "$work" && npm pack --silent --ignore-scripts "$package" >/dev/null)
archive=$(echo "$work"/*.tgz)
echo "$sha512  $archive" | sha512sum --check --quiet
mkdir -p "$folder"
tar -xzf "$archive" -C "$folder" --strip-components=3 package/deps/sqlite3
echo "$package" >"$folder/package"
