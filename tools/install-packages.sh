#!/bin/bash
# Installs what building, running and testing need on Debian 12; nothing to do costs a tenth of a second.
# Usage: install-packages.sh [PACKAGE …]   further packages, beside the list below
set -euo pipefail

packages=(
    cmake ninja-build ccache git ca-certificates                       # building
    g++ libc6-dev g++-mingw-w64-x86-64-posix mingw-w64-tools           # native and Windows compilers
    clang libclang-rt-14-dev clang-format googletest python3           # fuzzing, format, tests
    wine wine64 fonts-wine fonts-liberation xvfb xauth util-linux      # running
    sqlite3 libsqlite3-dev unixodbc odbc-postgresql                    # databases
    nlohmann-json3-dev                                                 # JSON, for editors
    libcups2 ghostscript                                               # printing
    "$@"
)
# It may have come from elsewhere.
command -v npm >/dev/null || packages+=(npm)

missing=()
installed=$(dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' | sed -n 's/^ii //p')
for package in "${packages[@]}"; do
    grep -qxF "$package" <<<"$installed" || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
log=$(mktemp)
trap 'rm -f "$log"' EXIT
install() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}" </dev/null >"$log" 2>&1
}

echo "Installing ${missing[*]} …" >&2
if ! install; then
    # An old package list names versions that are gone.
    "${as_root[@]}" apt-get update -q </dev/null >>"$log" 2>&1 || true
    install || { cat "$log" >&2; echo "Could not install ${missing[*]}." >&2; exit 1; }
fi
