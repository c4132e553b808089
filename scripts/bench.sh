#!/bin/bash
# bench.sh [PROGRAM...]: measures the targets of bench/targets, or of the named programs, against their peers in the
# same run. Ends with one line for each target: name, ratio, limit, "holds" or "short". Exit status 1 when one is
# short, 2 when one could not be measured. bench/README.md says how to add one.
set -uo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit 1
. scripts/steps.sh

for name; do
  [ -f "bench/targets/$name.json" ] && continue
  echo "bench.sh: no program $name; there are: $(ls bench/targets | sed 's/\.json$//' | tr '\n' ' ')" >&2
  exit 2
done

scripts/setup.sh bench || exit 1
mkdir -p build/bench
step "inputs" build/bench/inputs.log python3 bench/gen.py build/bench-data || exit 1
for preset in linux-release mingw-release; do
  mkdir -p "build/$preset"
  step "$preset: configuring" "build/$preset/configure.log" cmake --preset "$preset" || exit 1
  step "$preset: building" "build/$preset/build.log" \
    cmake --build --preset "$preset" -j "$jobs" --target bench/all || exit 1
done

# Relative, from the folder of the results: a Windows program's environment cannot hold every character.
export TARVO_BENCH_DATA=../bench-data WINE_TEST_TIMEOUT=900 WINE_SLOTS=1
in_group python3 scripts/bench-report.py --targets bench/targets --out build/bench \
  --linux "$root/build/linux-release/bin" --mingw "$root/build/mingw-release/bin" --launcher "$root/cmake/wine.sh" "$@"
