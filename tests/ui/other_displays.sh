#!/bin/bash
# Sessions whose outcome depends on the look or the scale of the display, without a theme and at 144 dots per inch.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. tools/wine-env.sh

# sessions KIND SCALE
sessions() (
    start_wine "$1"
    wine64 build/windows/testbin/wexhost.exe --headless --timeout 300 -e "(setq scale $2)" tests/support/check.lsp \
        tests/ui/list_control.lsp tests/ui/tabs.lsp tests/ui/image_buttons.lsp tests/ui/rows.lsp tests/ui/report.lsp -e '(report-tests)'
)

sessions headless-classic 1.0
sessions headless-144 1.5
