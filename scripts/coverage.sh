#!/bin/bash
# coverage.sh: builds natively with gcc's line counts, runs all tests and prints the line coverage of tarvo/ and
# platform/, file by file, and as the last line the whole in per cent. build/coverage/index.html shows the lines.
# Exit status 1 below 95 %, and when a test fails: its lines would be missing.
set -uo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit 1
. scripts/steps.sh

scripts/setup.sh coverage || exit 1
mkdir -p build/coverage
step "configuring" build/coverage/configure.log cmake --preset coverage || exit 1
step "building" build/coverage/build.log cmake --build --preset coverage -j "$jobs" || exit 1
# Counts of an earlier run would be added to, and notes of a source that is gone cannot be read.
find build/coverage -name '*.gcda' -delete
cmake --build --preset coverage -- -t cleandead >/dev/null
find build/coverage -name '*.gcno' | while read -r notes; do [ -f "${notes%.gcno}.o" ] || rm "$notes"; done
# The rules and the package run none of the counted code.
step "testing" build/coverage/test.log \
  ctest --preset coverage -j "$jobs" --no-tests=error -E '^(rules|install):' || exit 1
step "counting" build/coverage/gcovr.log gcovr -r . --filter 'tarvo/' --filter 'platform/' -j "$jobs" \
  --txt build/coverage/table.txt --html-details build/coverage/index.html --json-summary build/coverage/summary.json \
  build/coverage || exit 1
cat build/coverage/table.txt
python3 - <<'PY'
import json
import sys

with open("build/coverage/summary.json", encoding="utf-8") as file:
    summary = json.load(file)
print(f"lines covered: {summary['line_covered']} of {summary['line_total']}, {summary['line_percent']} %")
sys.exit(0 if summary["line_percent"] >= 95 else 1)
PY
