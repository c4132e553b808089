#!/bin/bash
# lint.sh [--changed REVISION]: formatter, clang-tidy over both builds and cppcheck, over everything or over the
# files that differ from REVISION. Exit status 1 when anything is found. Every finding is printed.
set -uo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit 1
. scripts/steps.sh

revision=
case "$*" in
'') ;;
'--changed '?*) revision=$2 ;;
*)
  sed -n '2,/^set/s/^# \{0,1\}//p' "${BASH_SOURCE[0]}" >&2
  exit 2
  ;;
esac

scripts/setup.sh lint || exit 1
if [ -n "$revision" ]; then
  git rev-parse -q --verify "$revision^{commit}" >/dev/null || { echo "lint.sh: no revision $revision" >&2; exit 2; }
  changed=$(git diff --name-only --diff-filter=d "$revision"; git ls-files --others --exclude-standard)
else
  changed=$(git ls-files --cached --others --exclude-standard)
fi
mapfile -t code < <(grep -E '\.(cpp|h)$' <<<"$changed" | sort -u | while read -r f; do [ -f "$f" ] && echo "$f"; done)
if [ ${#code[@]} -eq 0 ]; then
  echo "nothing to look at"
  exit 0
fi
mkdir -p build/lint
status=0

step "formatting of ${#code[@]} files" build/lint/format.log clang-format --dry-run -Werror "${code[@]}" || status=1

# A file that both builds compile is looked at natively; the window files with the cross compiler's headers.
for preset in linux mingw; do
  step "$preset: configuring" build/lint/configure.log cmake --preset "$preset" || exit 1
done
python3 scripts/lint-files.py "$root" "${code[@]}" || exit 1
headers=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")/include/c++
cross=(--extra-arg-before=--target=x86_64-w64-mingw32 --extra-arg=-isystem"$headers"
  --extra-arg=-isystem"$headers/x86_64-w64-mingw32" --extra-arg=-isystem"$headers/backward")
# The compile commands are gcc's; clang need not know every option.
tidy=(clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option --extra-arg=-Wno-error)

run_tidy() { # LIST BUILD OPTION...
  local list=$1 build=$2
  shift 2
  [ -s "$list" ] || return 0
  xargs -d '\n' -n 1 -P "$jobs" "${tidy[@]}" -p "$build" "$@" <"$list" 2>/dev/null
}
# Tests are looked at without the analyser, which takes half a minute for each and finds the test library, and
# natively for what is wrong, not for what is slow.
step "clang-tidy, native" build/lint/tidy-linux.log run_tidy build/lint/linux.txt build/linux || status=1
step "clang-tidy, native tests" build/lint/tidy-linux-tests.log \
  run_tidy build/lint/linux-tests.txt build/linux --checks=-clang-analyzer-\*,-performance-\* || status=1
step "clang-tidy, Windows" build/lint/tidy-mingw.log \
  run_tidy build/lint/mingw.txt build/mingw "${cross[@]}" --checks=-clang-analyzer-\* || status=1

# Each of the two platforms is a run of its own: what one leaves out is no finding in the other.
run_cppcheck() {
  local platform=$1
  shift
  mkdir -p "build/lint/cppcheck-$platform"
  cppcheck --quiet --error-exitcode=1 --library=googletest --std=c++20 --language=c++ --inline-suppr -j "$jobs" \
    --enable=warning,performance,portability --suppressions-list=cmake/cppcheck.txt \
    --cppcheck-build-dir="build/lint/cppcheck-$platform" -I . -I standin -I standin/afx "$@"
}
if [ -s build/lint/linux.txt ]; then
  step "cppcheck, native" build/lint/cppcheck-linux.log \
    run_cppcheck unix64 --platform=unix64 -D__linux__ -U_WIN32 --file-list=build/lint/linux.txt || status=1
fi
if [ -s build/lint/mingw.txt ]; then
  step "cppcheck, Windows" build/lint/cppcheck-mingw.log \
    run_cppcheck win64 --platform=win64 -D_WIN32 -DUNICODE -U__linux__ --file-list=build/lint/mingw.txt || status=1
fi
[ "$status" -eq 0 ] && echo "no findings"
exit "$status"
