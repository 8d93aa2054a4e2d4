# Sourced by the scripts that need a PostgreSQL server of their own, in a new temporary folder, on a local socket alone.
#
#   use_databases          starts Wine without a display, the server, and makes the folder $work; all of it goes when the script ends
#   start_postgres         exports PGHOST, PGDATABASE and PGUSER for psql, and sets postgres_odbc, the choice of a database for the host
#   stop_postgres [MODE]   fast (by default), or immediate as when its machine went away; start_postgres_again undoes it
#   remove_postgres        stops it and removes all of it; for the script's trap
#
# The server refuses to be root's: it then belongs to nobody. Needs the package postgresql-15.

postgres_bin=$(echo /usr/lib/postgresql/*/bin | tr ' ' '\n' | tail -n 1)

as_server() {
    local other=()
    [ "$(id -u)" -ne 0 ] || other=(setpriv --reuid nobody --regid nogroup --clear-groups env HOME=/ )
    (cd / && "${other[@]}" "$@")
}

# After tools/wine-env.sh.
use_databases() {
    start_wine headless
    work=$(mktemp -d)
    # In the place of the one of start_wine.
    trap 'remove_postgres; rm -rf "$work"; stop_wine' EXIT
    start_postgres
}

start_postgres() {
    postgres_folder=$(mktemp -d /tmp/postgres-XXXXXX)
    [ "$(id -u)" -ne 0 ] || chown nobody:nogroup "$postgres_folder"
    as_server "$postgres_bin/initdb" --pgdata="$postgres_folder/data" --username=wex --auth=trust --encoding=UTF8 \
        --locale=C.UTF-8 --no-sync >"/dev/null"
    export PGHOST=$postgres_folder PGDATABASE=wex PGUSER=wex
    postgres_odbc="odbc:Driver={PostgreSQL Unicode};Servername=$PGHOST;Database=wex;Uid=wex"
    start_postgres_again
    createdb wex
}

# Its descriptors are its own, so that nobody waits for it.
start_postgres_again() {
    as_server "$postgres_bin/pg_ctl" --pgdata="$postgres_folder/data" --wait --silent --log="$postgres_folder/log" \
        --options="-c listen_addresses='' -c unix_socket_directories='$postgres_folder'" start </dev/null >/dev/null 2>&1 8>&- 9>&-
}

stop_postgres() {
    as_server "$postgres_bin/pg_ctl" --pgdata="$postgres_folder/data" --wait --silent --mode="${1:-fast}" stop >/dev/null 2>&1
}

remove_postgres() {
    [ -n "${postgres_folder:-}" ] || return 0
    stop_postgres immediate || true
    rm -rf "$postgres_folder"
}
