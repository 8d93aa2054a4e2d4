#!/bin/bash
# Usage: tools/package.sh [FOLDER]     makes what is handed out, in that folder (out/):
#   WexDialogs-VERSION.zip             plug-in, resources, data store, host, examples, documents, licences: unpack and run
#   WexDialogs-VERSION-symbols.zip     the modules' symbols for debuggers
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
mkdir -p "${1:-$root/out}"
target="$(cd "${1:-$root/out}" && pwd)"
cd "$root"

tools/install-packages.sh zip python3-markdown
tools/build.sh windows >&2

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/windows/CMakeCache.txt)
name=WexDialogs-$version
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
folder=$work/$name
symbols=$work/$name-symbols

# What is in bin/ and isn't tracked elsewhere is the product.
mkdir -p "$folder" "$symbols"
cp -r build/windows/bin/. "$folder"
while IFS= read -r module; do
    x86_64-w64-mingw32-objcopy --only-keep-debug "$folder/$module" "$symbols/$(basename "$module").debug"
    x86_64-w64-mingw32-strip "$folder/$module"
    x86_64-w64-mingw32-objcopy --add-gnu-debuglink="$symbols/$(basename "$module").debug" "$folder/$module"
done < <(cd "$folder" && find . -name '*.dll' -o -name '*.exe' -o -name '*.pgx')

# What dialogs are made of and with: an add-on can be built beside them.
makers="resources/dialogs tools/dialogs cmake/dialogs.cmake cmake/mingw-w64.cmake"
git ls-files examples docs/images $makers | while IFS= read -r file; do cp --parents "$file" "$folder"; done
tools/make-pages.py "$folder" README.md docs/*.md
# The language server reads it.
cp docs/lisp-functions.md "$folder/docs"

# What stands in the modules and isn't ours.
mkdir "$folder/licences"
cp /usr/share/doc/mingw-w64-common/copyright "$folder/licences/mingw-w64.txt"
cp /usr/share/doc/gcc-mingw-w64-base/copyright "$folder/licences/gcc-runtime.txt"
cp /usr/share/doc/nlohmann-json3-dev/copyright "$folder/licences/nlohmann-json.txt"
sed '1d; /^\*\*\*/,$d; s/^\*\* \{0,1\}//' build/windows/sqlite/sqlite3.h >"$folder/licences/sqlite.txt"
cat >"$folder/licences/README.txt" <<'TEXT'
Parts of others that the modules carry:
  sqlite.txt        SQLite, in WEXDATASTOREMGDREV.dll: in the public domain
  nlohmann-json.txt JSON for Modern C++, in hostapi.dll, under the MIT licence
  mingw-w64.txt     the run-time library of mingw-w64, in all modules
  gcc-runtime.txt   the run-time libraries of GCC, in all modules, under the GCC Runtime Library Exception
TEXT

pack() {
    rm -f "$target/$1.zip"
    (cd "$work" && zip --quiet --recurse-paths -9 -X "$target/$1.zip" "$1")
    echo "$target/$1.zip  $(($(stat -c %s "$target/$1.zip") / 1024)) KB"
}
pack "$name"
pack "$name-symbols"
