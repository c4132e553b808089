#!/bin/bash
# setup.sh [GROUP...]: installs from Debian's packages what the named work needs and this machine lacks.
#
# Groups: build  configure and build natively      (always included)
#         quick  the native tests                   tests  the native and the Windows tests (the default)
#         demo   the demonstration under Wine       bench  benchmarks and their peers
#         fuzz   clang and libFuzzer                lint   formatter and static analysis
#         coverage  line coverage
# When all is there it prints nothing, changes nothing and ends with 0. Installs as root, or through sudo.
set -euo pipefail

wine=(g++-mingw-w64-x86-64-posix wine wine64 fonts-wine fonts-wqy-microhei fonts-dejavu-core locales)
libraries=(libcli11-dev nlohmann-json3-dev)
readers=(chromium python3-jsonschema) # of the reports that tarvo writes
declare -A groups=(
  [build]="cmake ninja-build g++ ccache python3 ${libraries[*]}"
  [quick]="googletest ${readers[*]}"
  [tests]="googletest ${readers[*]} ${wine[*]}"
  [demo]="${wine[*]}"
  [bench]="libbenchmark-dev libglib2.0-dev libicu-dev icu-devtools gettext qt6-base-dev qt6-l10n-tools
    libboost-locale-dev pkg-config googletest llvm diffutils wine64-tools ${wine[*]}"
  [fuzz]="clang libclang-rt-dev llvm"
  [lint]="clang-format clang-tidy cppcheck git googletest ${wine[*]}"
  [coverage]="gcovr googletest"
)

die() {
  echo "setup.sh: $*" >&2
  exit 1
}

wanted=(${groups[build]})
for group in "${@:-tests}"; do
  [ -n "${groups[$group]-}" ] || die "unknown group $group (one of: ${!groups[*]})"
  wanted+=(${groups[$group]})
done

if ! command -v dpkg-query >/dev/null; then
  echo "setup.sh: this is no Debian system; install what corresponds to: ${wanted[*]}" >&2
  exit 0
fi

# dpkg-query prints what it knows and complains about the rest; only "installed" counts.
installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null || true)
missing=()
for package in $(printf '%s\n' "${wanted[@]}" | sort -u); do
  grep -qxF "$package installed" <<<"$installed" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "setup.sh: installing ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || die "needs root, or sudo, to install these packages"
  as_root=(sudo)
fi
apt() { "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 "$@"; }

# A fresh machine has no package lists and an old one has stale ones: both show as a failed first try.
log=$(mktemp)
trap 'rm -f "$log"' EXIT
try() { apt -q install -y --no-install-recommends "${missing[@]}" </dev/null >"$log" 2>&1; }
if ! try; then
  apt -q update </dev/null >"$log" 2>&1 || { tail -n 20 "$log" >&2; die "apt-get update failed"; }
  try || { tail -n 20 "$log" >&2; die "apt-get install failed"; }
fi
echo "setup.sh: done"
