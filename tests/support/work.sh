# Sourced by test scripts: they stand in the repository, and $work is a folder of their own that goes with them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
work=$(mktemp -d)
at_end() { :; }
trap 'at_end; rm -rf "$work"' EXIT
