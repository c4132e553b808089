#!/bin/bash
# coverage.sh: builds natively with gcc's line counts, runs all tests and prints the line coverage of tarvo/ and
# platform/, file by file, and as the last line the whole in per cent. build/coverage/index.html shows the lines.
# Exit status 1 when a test fails: its lines would be missing.
set -uo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit 1
. scripts/steps.sh

scripts/setup.sh coverage || exit 1
mkdir -p build/coverage
step "configuring" build/coverage/configure.log cmake --preset coverage || exit 1
step "building" build/coverage/build.log cmake --build --preset coverage -j "$jobs" || exit 1
# Counts of an earlier run would be added to.
find build/coverage -name '*.gcda' -delete
step "testing" build/coverage/test.log ctest --preset coverage -j "$jobs" --no-tests=error || exit 1
# Lines that only run when the library is broken are marked in the source: GCOVR_EXCL_LINE.
step "counting" build/coverage/gcovr.log gcovr -r . --filter 'tarvo/' --filter 'platform/' \
  --gcov-ignore-parse-errors --exclude-throw-branches --exclude-unreachable-branches -j "$jobs" \
  --txt build/coverage/table.txt --html-details build/coverage/index.html --json-summary build/coverage/summary.json \
  build/coverage || exit 1
cat build/coverage/table.txt
python3 - <<'PY'
import json
with open("build/coverage/summary.json", encoding="utf-8") as file:
    summary = json.load(file)
print(f"lines covered: {summary['line_covered']} of {summary['line_total']}, {summary['line_percent']} %")
PY
