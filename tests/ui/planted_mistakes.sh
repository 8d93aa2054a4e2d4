#!/bin/bash
# Of 80 mistakes as authors make them at least 76 are told where they are, and the programs without them have no warnings.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
python3 tests/support/planted_mistakes.py tests/ui/planted_mistakes.txt ./wexhost --headless --language-server
