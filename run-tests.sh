#!/bin/bash
# run-tests.sh [--quick]: builds everything and runs all tests, natively under sanitizers and as Windows
# programs under Wine; --quick does the native half only. Installs what is missing from Debian's packages.
# The last line is "N passed, N failed" (and ", N skipped" when tests could not run here) over both halves.
# Exit status: 0 all passed, 1 something failed, 2 wrong usage, 130 interrupted. Logs stay in build/PRESET/*.log.
set -uo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "$root" || exit 1
. scripts/steps.sh

presets=(linux mingw)
case "$*" in
'') group=tests ;;
--quick) group=quick presets=(linux) ;;
*)
  sed -n '2,/^set/s/^# \{0,1\}//p' "${BASH_SOURCE[0]}" >&2
  exit 2
  ;;
esac

passed=0 failed=0 skipped=0

test_preset() {
  local preset=$1 log=build/$1 counts
  mkdir -p "$log"
  rm -f "$log/tests.xml"
  step "$preset: configuring" "$log/configure.log" cmake --preset "$preset" || return
  step "$preset: building" "$log/build.log" cmake --build --preset "$preset" -j "$jobs" || return
  step --quiet "$preset: testing" "$log/test.log" \
    ctest --preset "$preset" -j "$jobs" --output-junit "$root/$log/tests.xml" --no-tests=error
  local status=$? p=0 f=0 s=0
  counts=$(python3 scripts/test-report.py "$log/tests.xml") && read -r p f s <<<"$counts"
  passed=$((passed + p)) failed=$((failed + f)) skipped=$((skipped + s))
  # ctest also fails before any test runs, when a test program cannot even name its tests.
  if [ "$status" -ne 0 ] && [ "$f" -eq 0 ] || [ $((p + f + s)) -eq 0 ]; then
    tail -n 30 "$log/test.log"
    return 1
  fi
}

scripts/setup.sh "$group" || { echo "0 passed, 1 failed"; exit 1; }
for preset in "${presets[@]}"; do
  test_preset "$preset" || failed=$((failed + 1))
done
wine_down
line="$passed passed, $failed failed"
[ "$skipped" -eq 0 ] || line="$line, $skipped skipped"
echo "$line"
[ "$failed" -eq 0 ]
