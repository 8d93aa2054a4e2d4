#!/bin/bash
# A host that is killed in the middle of a write back leaves a whole database: each round of changes is there in full or not at all,
# and none is lost that had been committed. KILLS says how many hosts are killed on each kind of database (4); 100 take some minutes.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. tools/wine-env.sh
. tools/postgres.sh
use_databases

# Rounds of 300 changes, and the number of each round when it is committed.
cat >"$work/rounds.lsp" <<'END'
(setq number (caar (db_query "SELECT MAX([n]) FROM [rounds]")))
(while T
  (setq number (1+ number))
  (db_begin)
  (foreach i (range 300) (db_exec "UPDATE [parts] SET [rev] = ? WHERE [pn] = ?" (list number (itoa i))))
  (db_exec "INSERT INTO [rounds] VALUES (?)" (list number))
  (db_commit)
  (princ number)
  (terpri))
END
tables='CREATE TABLE parts (pn TEXT PRIMARY KEY, rev INTEGER); CREATE TABLE rounds (n INTEGER); INSERT INTO rounds VALUES (0);
    INSERT INTO parts WITH RECURSIVE s(n) AS (SELECT 0 UNION ALL SELECT n + 1 FROM s WHERE n < 299) SELECT CAST(n AS TEXT), 0 FROM s'
state='SELECT COUNT(*), MIN(rev), MAX(rev), (SELECT MAX(n) FROM rounds), (SELECT COUNT(*) FROM rounds) - 1 FROM parts'

in_file() { sqlite3 -separator ' ' "$work/parts.sqlite" "$1"; }
in_server() { psql -qtA -F ' ' -c "$1"; }

# kill_once CHOICE: waits for one or more committed rounds, then kills within a round; the last number it printed is $committed
kill_once() {
    local number moment
    mkfifo "$work/printed"
    (exec /usr/lib/wine/wine64 build/windows/testbin/wexhost.exe --headless --timeout 120 --data "$1" "$work/rounds.lsp" \
        >"$work/printed" 2>"$work/told" 8>&- 9>&-) &
    local pid=$!
    exec 5<"$work/printed"
    rm "$work/printed"
    local rounds=$((RANDOM % 3 + 1))
    while [ $rounds -gt 0 ] && read -r -t 60 -u 5 number; do committed=${number%$'\r'} rounds=$((rounds - 1)); done
    # A moment between this round's end and the next one's.
    moment=$(printf '0.%03d' $((RANDOM % 60)))
    ! read -r -t "$moment" -u 5 number || committed=${number%$'\r'}
    kill -KILL $pid
    wait $pid 2>/dev/null || true
    while read -r -u 5 number; do committed=${number%$'\r'}; done
    exec 5<&-
    [ $rounds -eq 0 ] || { echo "It never committed:"; cat "$work/told"; return 1; }
}

torn=0
# test_kills NAME RUN_SQL CHOICE
test_kills() {
    local name=$1 run_sql=$2 choice=$3 i count least most last rows
    $run_sql "$tables"
    committed=0
    for ((i = 1; i <= ${KILLS:-4}; ++i)); do
        kill_once "$choice"
        # Every other time the next host is the first that opens what was left.
        [ $((i % 2)) -eq 0 ] || continue
        read -r count least most last rows < <($run_sql "$state")
        if [ "$count $least $most $rows" != "300 $last $last $last" ] || [ "$last" -lt "$committed" ]; then
            echo "$name, kill $i: committed $committed; there are $count parts of rounds $least to $most, and round $last of $rows"
            torn=$((torn + 1))
        fi
    done
    echo "$name: ${KILLS:-4} kills, $committed rounds"
}

test_kills file in_file "$work/parts.sqlite"
[ "$(in_file 'PRAGMA integrity_check')" = ok ] || torn=$((torn + 1))
test_kills server in_server "$postgres_odbc"
[ $torn -eq 0 ]
