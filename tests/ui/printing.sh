#!/bin/bash
# The page of a report on paper: on a printer of the print dialog, in a file, on a printer that refuses it, and without any printer.
# What comes out is compared with what the preview draws.
. "$(dirname "${BASH_SOURCE[0]}")/../support/headless.sh"
. tools/print-env.sh
at_end() { stop_printer; }
chmod 755 "$work"
start_printer "$work/printer"

# As Windows has it, and where programs are looked for.
folder="Z:${work//\//\\}\\"
programs=$PATH

# plays FORM…: works the dialog; the forms end with a step that shows that the dialog goes on.
plays() {
    PATH=$programs wine64 build/windows/testbin/wexhost.exe --headless --timeout 30 --shots "$work" \
        -e "(setq work \"${folder//\\/\\\\}\" went nil)" \
        -e "(ui_session \"report_generator\" '($* (ui_pick 100 2)
              (setq went (cdr (assoc \"selected\" (ui_look 100)))) (ui_click \"OK\")))" \
        -e '(progn (wex_new_dialog "report_generator") (wex_start_dialog))' \
        -e '(if (equal went (quote (2))) (princ "went on") (error "the dialog did not go on"))' | tr -d '\r'
}

# wants LINES COMMAND…: what it prints, with its lines joined by |
wants() {
    local wanted=$1 got
    shift
    got=$("$@" | paste -sd'|')
    [ "$got" = "$wanted" ] || { printf 'wanted %s\ngot    %s\n' "$wanted" "$got"; exit 1; }
}

jobs_done() { [ -z "$(lpstat -W not-completed)" ]; }
wait_for_jobs() {
    local tries=300
    until jobs_done; do
        [ $((tries -= 1)) -gt 0 ] || { lpstat -W all; cat "$work/printer/log/error_log"; exit 1; }
        sleep 0.1
    done
}

# The same page by the preview's own drawing, at the printer's resolution.
WEX_PAGE="Z:$work/page.pgm" wine64 build/windows/tests/report_ui_test.exe --gtest_filter='*DrawnFine*' >/dev/null

# The preview is drawn anew, with the screen's fonts still, when its tab is turned to.
wants '[alert] Print|[alert] Print|went on' plays '(ui_answer "CANCEL")' '(ui_click 3)' \
    '(ui_pick 100 1)' '(ui_pick 100 0)' '(ui_shot "before.png")' '(ui_click 3)' '(ui_pick 100 1)' '(ui_pick 100 0)' '(ui_shot "after.png")'
cmp "$work/before.png" "$work/after.png"
wait_for_jobs
[ "$(find "$work/printer/out" -name 'Krvl_Electrical_Report_Table*.pdf' | wc -l)" = 1 ] || { echo "Not one page was printed."; exit 1; }
tests/support/check-page.py "$work"/printer/out/*.pdf "$work/page.pgm"

wants '[alert] Save As|[alert] Save As|went on' plays \
    '(ui_answer "OK" (strcat work "saved.pdf"))' '(ui_click 4)' '(ui_answer "CANCEL")' '(ui_click 4)'
tests/support/check-page.py "$work/saved.pdf" "$work/page.pgm"
[ -z "$(find "$work" -maxdepth 1 -name 'saved.pdf.*')" ] || { echo "A file was left."; exit 1; }

# The platform takes the page and finds only later that nobody prints it.
cupsreject PDF
wants '[alert] Print|went on' plays '(ui_click 3)'
# Without Ghostscript.
programs=/nowhere
wants "[alert] Save As|[alert] The page could not be saved as PDF. Check the folder, and that Ghostscript is installed:|${folder}none.pdf|went on" \
    plays '(ui_answer "OK" (strcat work "none.pdf"))' '(ui_click 4)'
programs=$PATH
[ -z "$(find "$work" -maxdepth 1 -name 'none.pdf*')" ] || { echo "A file was left."; exit 1; }

stop_printer
CUPS_SERVER=/nowhere
# The platform's own words, and after them none.
wants '[alert] Before you can perform printer-related tasks such as page setup or printing a document, you need to install a printer. Please install one and retry.|went on' \
    plays '(ui_click 3)'
wants '[alert] Save As|[alert] Printing error occurred. Unable to find printer.|went on' plays \
    '(ui_answer "OK" (strcat work "none.pdf"))' '(ui_click 4)'
