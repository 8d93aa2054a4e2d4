#!/bin/bash
# Checks what reviewers shouldn't have to: format, include rules, junk. Prints each finding; fails if there is one.
# That window-free code includes no <windows.h> is proved by the native build.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
findings=$(mktemp)
trap 'rm -f "$findings"' EXIT

# Files that git has or would take.
files() {
    git ls-files --cached --others --exclude-standard -- "$@" | while read -r file; do
        [ ! -e "$file" ] || echo "$file"
    done
}

[ -n "$(files '*.cpp')" ] || { echo "git tells of no files here"; exit 1; }

# Each line that is read becomes a finding, with the words of $1.
tell() { sed "s|\$|: $1|" >>"$findings"; }

# may_not_include FOLDER FORBIDDEN ALLOWED WHY: regular expressions of included paths
may_not_include() {
    files "$1/*.h" "$1/*.cpp" | xargs -r grep -nE "^ *#include *[<\"]$2" | grep -vE "#include *[<\"]($3)" | tell "$4"
}

# resources/ has a header of the resource compiler's kind, in columns.
files '*.h' '*.cpp' ':!resources' | xargs -P2 -n20 clang-format --dry-run -Werror 2>&1 |
    sed -n 's/^\([^:]*\):[0-9]*:.* error: .*/\1/p' | sort -u | tell 'clang-format would change it'

# What isn't below the families of controls is one.
families=$(cd src && ls -d */ | grep -vxE '(platform|pictures|preview|shell|dialog)/' | tr -d /)
any_family="src/($(paste -sd'|' <<<"$families"))/"
may_not_include store '(src|host)/' 'src/platform/(host|base)/' 'the store knows the plug-in by its interface only'
may_not_include host 'store/' 'store/DataAccess.h' 'the host knows the store by its interface only'
may_not_include src 'store/' '-' 'the plug-in knows the store by its interface only'
may_not_include host 'src/' 'src/platform/(host|base|buttons|mfc)/' "of the plug-in's source the host sees the interface only"
# The main frame has the menus and the buttons that the dialogs have, which stand on the class library; neither knows a dialog. The
# rest of the host has no use for them: it shows that another host can be written without.
for folder in lisp units check editor database graphics services documents exports drive record runner; do
    may_not_include host/$folder 'src/' 'src/platform/(host|base)/' 'only the main frame has the drawn menus and buttons'
done
may_not_include src 'host/' '-' 'the plug-in knows the host by its interface only'
may_not_include src/platform 'src/' 'src/platform/' 'the platform is below the subsystems'
may_not_include src/platform/base 'src/platform/(mfc|host)/' '-' 'the base types are lowest'
may_not_include src/platform/mfc 'src/platform/host/' '-' 'the class library knows no host'
may_not_include src/platform/buttons 'src/' 'src/platform/(base|mfc|buttons)/' 'the drawing of menus and buttons knows no host and no grid'
may_not_include src/pictures 'src/' 'src/(platform|pictures)/' 'the drawing of pictures knows no dialog'
may_not_include src/preview 'src/' 'src/(platform|preview|shell)/' 'the drawing preview knows no dialog'
may_not_include src/shell "$any_family" '-' 'the shell is below the control families'
may_not_include src/dialog "$any_family" '-' 'control families meet the dialog by virtuals'
for family in $families; do
    may_not_include "src/$family" "$any_family" "src/$family/" 'a control family knows no other one'
done

# Of the host's folders each may use those before it.
order=''
for folder in lisp units check editor database graphics services documents exports drive frame record runner; do
    order="$order${order:+|}host/$folder/"
    may_not_include host/$folder 'host/' "$order" 'the host has this folder above'
done
files 'host/*/*' | grep -vE "^($order)" | tell 'this folder of the host has no place in their order yet'

files '*.h' ':!resources' | xargs grep -L '^#pragma once' | tell 'no #pragma once'
files '*.h' '*.cpp' '*.lsp' '*.sh' '*.md' '*.rc' '*.dlg' '*.py' '*.cmake' '*CMakeLists.txt' '*.txt' ':!tests/ui/examples' |
    xargs grep -nE "[[:blank:]]\$|"$'\t'"|^(<<<<<<<|>>>>>>>)|\b(TO""DO|FIX""ME)\b" | tell 'blanks at the end, a tab, or something unfinished'
files '*.png' ':!docs/images' ':!examples/pictures' | tell 'a picture that a session left'
for script in $(files '*.sh' wexhost .ci/run); do
    bash -n "$script" 2>>"$findings"
done

[ ! -s "$findings" ] && exit 0
cat "$findings"
exit 1
