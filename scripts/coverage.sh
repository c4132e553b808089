#!/bin/bash
# coverage.sh: builds natively with gcc's line counts, runs all tests and prints the line coverage of tarvo/ and
# platform/, file by file, by folder, and as the last line the whole in per cent. build/coverage/index.html shows
# the lines. Exit status 1 below 95 %, and when a test fails: its lines would be missing.
# coverage.sh --windows: the same for the files that exist for Windows only, *_windows.cpp and *_windows.h, by the
# programs that test windows and the platform under Wine; build/mingw-coverage/index.html; 1 below 85 %.
set -uo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit 1
. scripts/steps.sh

preset=coverage groups=(coverage) least=95 counter=gcov files='(tarvo|platform)/'
programs=() # all
case ${1-} in
--windows)
  preset=mingw-coverage groups=(coverage tests) least=85 counter=x86_64-w64-mingw32-gcov-posix
  files='(tarvo|platform)/.*_windows\.(cpp|h)$'
  programs=(platform_test afx_test settings_test lang_test intl_window_test)
  ;;
'') ;;
*)
  sed -n '2,/^set/s/^# \{0,1\}//p' "${BASH_SOURCE[0]}"
  exit 2
  ;;
esac

# One program after the other: the counts of two that run at once would be mixed up. How windows come up depends on
# the machine's language.
run_programs() {
  local program locale
  for program in "${programs[@]}"; do
    for locale in C ko_KR ru_RU; do
      WINE_TEST_LANG=$locale WINE_TEST_TIMEOUT=300 cmake/wine.sh "build/$preset/bin/$program.exe" || return
      [ "$program" = intl_window_test ] || break
    done
  done
}

scripts/setup.sh "${groups[@]}" || exit 1
out=build/$preset
mkdir -p "$out"
step "configuring" "$out/configure.log" cmake --preset "$preset" || exit 1
step "building" "$out/build.log" cmake --build --preset "$preset" -j "$jobs" ${programs[0]:+--target "${programs[@]}"} || exit 1
# Counts of an earlier run would be added to, and notes of a source that is gone cannot be read.
find "$out" -name '*.gcda' -delete
cmake --build --preset "$preset" -- -t cleandead >/dev/null
find "$out" -name '*.gcno' | while read -r notes; do [ -f "${notes%.gcno}.o" ] || [ -f "${notes%.gcno}.obj" ] || rm "$notes"; done
if [ ${#programs[@]} -gt 0 ]; then
  step "testing" "$out/test.log" run_programs || exit 1
else
  # The rules and the package run none of the counted code.
  step "testing" "$out/test.log" ctest --preset "$preset" -j "$jobs" --no-tests=error -E '^(rules|install):' || exit 1
fi
step "counting" "$out/gcovr.log" gcovr -r . --gcov-executable "$counter" --filter "$files" -j "$jobs" \
  --txt "$out/table.txt" --html-details "$out/index.html" --json-summary "$out/summary.json" "$out" || exit 1
cat "$out/table.txt"
python3 - "$out/summary.json" "$least" <<'PY'
import collections
import json
import os
import sys

with open(sys.argv[1], encoding="utf-8") as file:
    summary = json.load(file)
folders = collections.defaultdict(lambda: [0, 0])
for entry in summary["files"]:
    folder = folders[os.path.dirname(entry["filename"])]
    folder[0] += entry["line_covered"]
    folder[1] += entry["line_total"]
for name, (covered, total) in sorted(folders.items()):
    print(f"{name}: {covered} of {total}, {100 * covered / max(total, 1):.1f} %")
print(f"lines covered: {summary['line_covered']} of {summary['line_total']}, {summary['line_percent']} %")
sys.exit(0 if summary["line_percent"] >= float(sys.argv[2]) else 1)
PY
