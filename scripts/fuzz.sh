#!/bin/bash
# fuzz.sh SECONDS [TARGET]: searches with every fuzz target, or one, for SECONDS each, from fuzz/seeds/TARGET.
# Exit status 1 on a finding, whose file is kept in build/fuzz/findings/TARGET and named. What a search learned is
# kept in build/fuzz/corpus/TARGET, and the next one goes on from there.
set -uo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit 1
. scripts/steps.sh

if [ $# -lt 1 ] || [ $# -gt 2 ] || ! [[ $1 =~ ^[1-9][0-9]*$ ]]; then
  sed -n '2,/^set/s/^# \{0,1\}//p' "${BASH_SOURCE[0]}" >&2
  exit 2
fi
seconds=$1

scripts/setup.sh fuzz || exit 1
mkdir -p build/fuzz
step "configuring" build/fuzz/configure.log cmake --preset fuzz || exit 1
step "building" build/fuzz/build.log cmake --build --preset fuzz -j "$jobs" || exit 1

# A target is what has seeds; a program may be left over from an earlier build.
targets=()
for seeds in fuzz/seeds/*/; do
  target=$(basename "$seeds")
  [ $# -gt 1 ] && [ "$2" != "$target" ] || targets+=("$target")
done
if [ ${#targets[@]} -eq 0 ]; then
  echo "fuzz.sh: no target $2; there are: $(ls fuzz/seeds | tr '\n' ' ')" >&2
  exit 2
fi

status=0
for target in "${targets[@]}"; do
  program=build/fuzz/bin/fuzz_$target
  findings=build/fuzz/findings/$target corpus=build/fuzz/corpus/$target log=build/fuzz/$target.log
  mkdir -p "$findings" "$corpus"
  touch "$findings/.started"
  # Real scripts stay where they are: TARVO_CORPUS names their folder.
  more=()
  [ "$target" != script ] || [ ! -d "${TARVO_CORPUS:-}" ] || more=("$TARVO_CORPUS")
  if ! step "$target: searching for $seconds s" "$log" "$program" -max_total_time="$seconds" -timeout=20 \
    -rss_limit_mb=4096 -print_final_stats=1 -artifact_prefix="$findings/" "$corpus" "fuzz/seeds/$target" "${more[@]}"; then
    status=1
    echo "finding: $(find "$findings" -type f -newer "$findings/.started" ! -name .started | tr '\n' ' ')"
    continue
  fi
  sed -n 's/^stat::number_of_executed_units: */   runs: /p' "$log"
done
[ "$status" -eq 0 ] && echo "no findings"
exit "$status"
