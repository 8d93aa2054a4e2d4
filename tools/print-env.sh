# Sourced by the scripts that print: a print server of their own, with a printer that writes PDF files.
#
#   start_printer FOLDER    its server works in that folder, and its PDF files go to FOLDER/out
#   stop_printer
#
# It needs no service of the system and disturbs none: programs find it by CUPS_SERVER. Only root may run the printer's
# back end, which has its settings under /etc/cups.

printer_settings=/etc/cups/cups-pdf-wexdialogs.conf

print_as_root() { if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi; }

start_printer() {
    local folder=$1
    mkdir -p "$folder"/{root,spool,cache,state,log,out}
    export CUPS_SERVER=$folder/cups.sock
    printer_pid_file=$folder/pid
    cat >"$folder/root/cupsd.conf" <<CONF
Listen $CUPS_SERVER
Browsing No
WebInterface No
DefaultAuthType None
ErrorPolicy abort-job
<Location />
  Order deny,allow
</Location>
<Location /admin>
  Order deny,allow
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
CONF
    cat >"$folder/root/cups-files.conf" <<CONF
ServerRoot $folder/root
RequestRoot $folder/spool
CacheDir $folder/cache
StateDir $folder/state
ErrorLog $folder/log/error_log
AccessLog $folder/log/access_log
PageLog $folder/log/page_log
SystemGroup root
CONF
    # Readable for whoever runs the tests.
    printf 'Out %s/out\nUserUMask 0022\n' "$folder" | print_as_root tee "$printer_settings" >/dev/null
    print_as_root setsid sh -c 'echo $$ >"$1"; exec cupsd -f -c "$2/root/cupsd.conf" -s "$2/root/cups-files.conf"' \
        sh "$printer_pid_file" "$folder" </dev/null >"$folder/log/cupsd" 2>&1 8>&- 9>&- &
    local tries=100
    until lpstat -r >/dev/null 2>&1 && [ -S "$CUPS_SERVER" ]; do
        [ $((tries -= 1)) -gt 0 ] || { cat "$folder/log/cupsd"; echo "The print server did not start."; return 1; }
        sleep 0.1
    done
    print_as_root env CUPS_SERVER="$CUPS_SERVER" lpadmin -p PDF -E -v cups-pdf:/wexdialogs -m lsb/usr/cups-pdf/CUPS-PDF_opt.ppd 2>/dev/null
    print_as_root env CUPS_SERVER="$CUPS_SERVER" lpadmin -d PDF
}

stop_printer() {
    local server
    server=$(cat "${printer_pid_file:-}" 2>/dev/null) || true
    # It still writes its state while it ends.
    while [ -n "$server" ] && print_as_root kill "$server" 2>/dev/null; do sleep 0.1; done
    print_as_root rm -f "$printer_settings"
}
