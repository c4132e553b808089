#!/bin/bash
# run-demo.sh [--language NAME] [--out FOLDER]: opens every window of the demonstration host in every language,
#   or in the one named, on an invisible screen, and writes a picture of each and index.html into FOLDER
#   (default build/demo). Prints a line per window, the font that each language's is mapped to, and what was left
#   when the language of open windows was changed; exit status 1 when anything was, or a window did not come up.
# run-demo.sh --show [--language NAME]: the same program on your display, with its language menu.
# Languages: English Korean Japanese Chinese Russian Global. Installs what is missing from Debian's packages.
set -uo pipefail

usage() {
  sed -n '2,/^set/s/^# \{0,1\}//p' "${BASH_SOURCE[0]}"
  exit "$1"
}
die() {
  echo "run-demo.sh: $*" >&2
  exit "${status:-1}"
}

root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
out=$root/build/demo language=() show=
while [ $# -gt 0 ]; do
  case $1 in
  --show) show=1 ;;
  --help | -h) usage 0 ;;
  --language | --out)
    [ -n "${2-}" ] || { usage 2 >&2; }
    if [ "$1" = --out ]; then out=$2; else language=(--language "$2"); fi
    shift
    ;;
  *) usage 2 >&2 ;;
  esac
  shift
done
[ -z "$show" ] || [ -n "${DISPLAY-}" ] || die "--show needs a display; without it pictures are written"
mkdir -p "$out" && out=$(cd "$out" && pwd) || die "cannot make the folder $out"

cd "$root" || exit 1
. scripts/steps.sh
scripts/setup.sh demo || exit 1
logs=build/mingw
mkdir -p "$logs"
step "configuring" "$logs/configure.log" cmake --preset mingw || exit 1
step "building the demonstration" "$logs/build.log" cmake --build --preset mingw -j "$jobs" --target demo/all tarvo || exit 1
program=build/mingw/bin/TarvoDemo.exe
[ -f "$program" ] || die "the build made no $program"

if [ -n "$show" ]; then
  WINE_TEST_GFX=desktop WINE_TEST_TIMEOUT=0 in_group cmake/wine.sh "$program" "${language[@]}"
  exit
fi
# The dialogs of a real program, where its scripts are at hand, become rows of the same page.
rm -f "$out/windows.tsv"
WINE_TEST_TIMEOUT=600 in_group python3 demo/real/real_dialogs.py --out build/mingw/real \
  --windres x86_64-w64-mingw32-windres --compiler x86_64-w64-mingw32-g++-posix \
  --bin build/mingw/bin --launcher "$root/cmake/wine.sh" --pictures "$out"
status=$?
[ "$status" -eq 0 ] || [ "$status" -eq 77 ] || die "the real dialogs do not show their translation"
# Wine shows the machine's folders as drive Z.
WINE_TEST_TIMEOUT=600 in_group cmake/wine.sh "$program" --pictures "Z:${out//\//\\}" "${language[@]}"
status=$?
[ "$status" -eq 0 ] || die "the demonstration ended with status $status"
[ -s "$out/index.html" ] || { status=1; die "no index.html in $out"; }
echo "pictures: $out/index.html"
