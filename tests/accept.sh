#!/usr/bin/env bash
# Takes what the tests generate now over as their golden files. Read the diff before you commit.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset dev >/dev/null
cmake --build --preset dev
TERRAFOLD_ACCEPT=1 ctest --preset dev >/dev/null || true
git --no-pager diff --stat -- tests/data/golden
git ls-files --others --exclude-standard -- tests/data/golden
