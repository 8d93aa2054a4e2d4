#!/bin/bash
# Sessions whose outcome depends on the look or the scale of the display: without a theme, at 144 and at 192 dots per inch.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. tools/wine-env.sh

# Drawn buttons beside the platform's and the items of menus, with the pixels of that display.
buttons() (
    start_wine "$1"
    wine64 build/windows/tests/buttons_ui_test.exe --gtest_brief=1 --gtest_filter='ButtonBeside*:MenuItemLook*'
)

# sessions KIND SCALE SESSION…
sessions() (
    start_wine "$1"
    forget_dialog_sizes
    wine64 build/windows/testbin/wexhost.exe --headless --timeout 300 -e "(setq scale $2)" tests/support/check.lsp "${@:3}" \
        -e '(report-tests)'
)

buttons headless-classic
buttons headless-144
all=(tests/ui/{list_control,tabs,image_buttons,images,rows,report,context_menus}.lsp)
sessions headless-classic 1.0 "${all[@]}"
sessions headless-144 1.5 "${all[@]}"
# What lies in pixels has the least room here.
sessions headless-192 2.0 tests/ui/{images,report,context_menus}.lsp
sessions headless-classic-192 2.0 tests/ui/report.lsp
