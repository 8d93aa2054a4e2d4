# Sourced by test.sh, which sets $logs: runs test programs and counts what they found.
#
#   run NAME COMMAND…    one line for what passed, the whole output for what failed
#   report_totals        the closing line; fails if a test failed or none ran

run() {
    local name=$1 log="$logs/${1//\//-}.log" status=0 passed failed
    shift
    "$@" >"$log" 2>&1 </dev/null || status=$?
    passed=$(count_in "$log" 's/^\[  PASSED  \] \([0-9]*\) .*/\1/p; s/^\([0-9]*\) passed, [0-9]* failed$/\1/p')
    failed=$(count_in "$log" 's/^\[  FAILED  \] \([0-9]*\) test.*/\1/p; s/^[0-9]* passed, \([0-9]*\) failed$/\1/p')
    if [ -z "$passed$failed" ]; then
        # A program that doesn't count is one test, and one that broke off before it counted is a failed one.
        if [ $status -eq 0 ]; then passed=1; else failed=1; fi
    elif [ $status -ne 0 ] && [ "${failed:-0}" -eq 0 ]; then
        failed=1
    fi
    echo "${passed:-0} ${failed:-0}" >>"$logs/counts"
    if [ "${failed:-0}" -eq 0 ]; then
        echo "ok      $name ($passed)"
    else
        printf 'FAILED  %s\n%s\n' "$name (status $status)" "$(tr -d '\r' <"$log")"
    fi
}

# The last number that a sed script finds in a log; nothing where there is none.
count_in() { tr -d '\r' <"$1" | sed -n "$2" | tail -n 1; }

report_totals() {
    awk '{ passed += $1; failed += $2 }
         END { print passed + 0 " passed, " failed + 0 " failed"; exit failed > 0 || passed == 0 }' "$logs/counts"
}
