# Sourced by test scripts that run the host where nobody looks: they stand in the repository, Wine runs, and $work is a folder of their
# own that goes with them. `kind` is another kind of start_wine. What a script has to end itself is in its at_end.
. "$(dirname "${BASH_SOURCE[0]}")/work.sh"
. tools/wine-env.sh
start_wine "${kind:-headless}"
trap 'at_end; rm -rf "$work"; stop_wine' EXIT
