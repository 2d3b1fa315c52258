#!/usr/bin/env bash
# Takes what the tests generate now over as their golden files, and what scripts print. Read the diff before you commit.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset dev >/dev/null
cmake --build --preset dev
TERRAFOLD_ACCEPT=1 ctest --preset dev >/dev/null || true
git --no-pager diff --stat -- tests/data/golden tests/scripts
git ls-files --others --exclude-standard -- tests/data/golden tests/scripts
