#!/bin/bash
# Usage: bench/databases.sh     measures the record table and a write back on SQLite and on PostgreSQL, beside sqlite3 and psql
# A table of a million rows of five columns each; the lines are those of bench/run.sh, which runs this too.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
. "$root/tools/wine-env.sh"
. "$root/tools/postgres.sh"
use_databases
built=$root/build/windows
count=${ROWS:-1000000}

fill="CREATE TABLE \"Parts\" (\"PN\" TEXT PRIMARY KEY, \"Name\" TEXT, \"Maker\" TEXT, \"Price\" DOUBLE PRECISION, \"Qty\" INTEGER);
    INSERT INTO \"Parts\" WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < $count - 1)
        SELECT 'P' || CAST(10000000 + i AS TEXT), 'Part ' || CAST(i AS TEXT), 'Maker ' || CAST(i % 97 AS TEXT), i * 0.25, i % 1000 FROM n;"
sqlite3 "$work/parts.sqlite" "$fill"
psql -q -c "$fill" -c 'VACUUM ANALYZE'

# 10,000 changes of one transaction, as the bare tools read them.
for ((i = 0; i < 10000; ++i)); do
    echo "UPDATE \"Parts\" SET \"Name\" = 'Part $i', \"Qty\" = $((i % 7)) WHERE \"PN\" = 'P$((10000000 + i))';"
done | { echo 'BEGIN;'; cat; echo 'COMMIT;'; } >"$work/changes.sql"

file_tool() { sqlite3 -bail "$work/parts.sqlite"; }
server_tool() { psql -q -v ON_ERROR_STOP=1 -P pager=off; }

# tool_row KEY N TOOL: the time of the whole tool for the SQL on standard input
tool_row() {
    local key=$1 n=$2 tool=$3 sql i begun ended
    sql=$(cat)
    for ((i = 0; i < n; ++i)); do
        begun=${EPOCHREALTIME/[.,]/}
        $tool <<<"$sql" >/dev/null
        ended=${EPOCHREALTIME/[.,]/}
        echo $((ended - begun))
    done | sort -n | awk -v key="$key" '{ t[NR] = $1 / 1000 } END { printf "%s  min %.4f  med %.4f ms  n=%d\n", key, t[1], t[int(NR / 2) + 1], NR }'
}

tool_rows() {
    tool_row "$1.count" 5 "$2" <<<'SELECT COUNT(*) FROM "Parts";'
    tool_row "$1.read" 3 "$2" <<<'SELECT * FROM "Parts" ORDER BY "PN";'
    tool_row "$1.write_back_10000" 3 "$2" <"$work/changes.sql"
}

# The host's rows bear the name of the database.
host_rows() {
    wine64 "$built/testbin/wexhost.exe" --headless --timeout 600 --data "$2" \
        -e "(host_load_plugin \"$built/bench/product/bench.pgx\")" -e "(setq bench-templates \"$built/bin/WexDialogsRes.dll\")" \
        -e "(setq database \"$1\")" rows.lsp lookup.lsp databases.lsp
}

cd "$root/bench/product"
tool_rows sqlite3 file_tool
host_rows sqlite "$work/parts.sqlite"
tool_rows psql server_tool
host_rows postgres "$postgres_odbc"
