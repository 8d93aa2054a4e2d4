# Sourced by test scripts that run the host where nobody looks: they stand in the repository, Wine runs, and $work is a folder of their
# own that goes with them. `kind` is another kind of start_wine.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. tools/wine-env.sh
start_wine "${kind:-headless}"
work=$(mktemp -d)
trap 'rm -rf "$work"; stop_wine' EXIT
