#!/bin/bash
# wine.sh PROGRAM.exe [ARGUMENT...]   runs a Windows program; CMake's emulator for the cross build
# wine.sh --prepare                   makes the Wine prefix now rather than with the first program
# wine.sh --down                      ends the Wine servers of this build folder, and of no other
#
# The exit status is the program's (modulo 256), 124 after a timeout, 98 when the heap check found damage,
# 99 when there is no Wine to run it. The program's output appears when it has ended.
#
#   WINE_TEST_LANG=ko_KR    user and system locale of the program; default: English with code page 1252
#   WINE_TEST_TIMEOUT=60    seconds after which the program is ended
#   WINE_TEST_GFX=MODE      null (default): real windows on an invisible screen; x11: windows on $DISPLAY,
#                           placed by Wine; desktop: the same as an ordinary program of your desktop
#   WINE_HEAPCHECK=1        guards every heap block (slow)
#   WINE_SLOTS=N            programs at a time; default: one for each processor
#   WINE_TEST_DIR=FOLDER    where prefix and slots live; default: build/wine, shared by all presets
#
# Two programs in one prefix would steal each other's keyboard focus and locale, so each running program
# has a slot to itself: a copy of the prefix with a server of its own. Program and server share one
# processor, which makes each call to the server several times faster than across two.
set -u

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=${WINE_TEST_DIR:-$here/../build/wine}
mkdir -p "$root" || exit 99
root=$(cd "$root" && pwd)

wine=/usr/lib/wine/wine64
server=/usr/lib/wine/wineserver64
graphics=${WINE_TEST_GFX:-null}
heap_check=${WINE_HEAPCHECK:-0}
locale=${WINE_TEST_LANG:-C}
locale=${locale%%.*}.UTF-8

# X finds its key beside the real home; everything else of the user stays out of sight.
[ "$graphics" = null ] && unset DISPLAY || export XAUTHORITY=${XAUTHORITY:-$HOME/.Xauthority}
export HOME=$root/home
export WINELOADER=$wine WINESERVER=$server WINEARCH=win64 WINEDLLOVERRIDES='mscoree,mshtml='
export WINEDEBUG=${WINEDEBUG-fixme-all,err-winediag,err-systray}
export FONTCONFIG_FILE=$root/fonts.conf LOCPATH=$root/locale

stop_server() { # PREFIX; "-w" alone would wait for idle services, so only after a "-k" that met a server
  WINEPREFIX=$1 timeout 15 "$server" -k >/dev/null 2>&1 && WINEPREFIX=$1 timeout 15 "$server" -w >/dev/null 2>&1
}

# A locale that is not installed breaks every file name outside ASCII, so each one is made here on first use.
make_locale() { # NAME
  [ -e "$LOCPATH/$1" ] && return
  (
    flock 8
    [ -e "$LOCPATH/$1" ] && exit
    new=$LOCPATH/new.$1
    mkdir -p "$LOCPATH" && rm -rf "$new" || exit
    if [ "$1" = C.UTF-8 ]; then
      ln -s /usr/lib/locale/C.utf8 "$new"
    else
      localedef -i "${1%%.*}" -f UTF-8 "$new" || { echo "wine.sh: no locale $1" >&2; exit 1; }
    fi
    mv -T "$new" "$LOCPATH/$1"
  ) 8>"$root/locale.lock"
}

# The template is made anew when the script that makes it, or Wine itself, is newer.
make_template() {
  local made=$root/template/made
  [ "$made" -nt "$here/wine-prefix.sh" ] && [ "$made" -nt /usr/share/wine/wine.inf ] && return
  "${fixed_addresses[@]}" "$here/wine-prefix.sh" "$root"
}

processors() { # the numbers of the processors that this process may use, one a line
  local range
  for range in $(sed -n 's/^Cpus_allowed_list:\s*//p' /proc/self/status | tr , ' '); do
    seq "${range%-*}" "${range#*-}"
  done
}

# Wine's loader stands at a fixed address below 2 GiB, and Linux begins its heap anywhere in the GiB behind it:
# once in a few thousand starts on the page at 0x7ffe0000 that every Windows program needs, and the program
# ends at once ("failed to map the shared user data"). Without random addresses the heap begins where the
# loader ends; programs that the program starts inherit that.
fixed_addresses=()
setarch -R true 2>/dev/null && fixed_addresses=(setarch -R)

# Holds the lock of a free slot as file descriptor 9 and sets slot, WINEPREFIX and pin.
take_slot() {
  local cpus number
  mapfile -t cpus < <(processors)
  while :; do
    for ((number = 0; number < ${WINE_SLOTS:-${#cpus[@]}}; number++)); do
      slot=slot$number-$graphics-$heap_check
      exec 9>"$root/$slot.lock"
      flock -n 9 && break 2
    done
    sleep 0.02
  done
  export WINEPREFIX=$root/$slot
  pin=("${fixed_addresses[@]}" taskset -c "${cpus[number % ${#cpus[@]}]}")
}

# A slot is a copy of the template by hard links, except for the registry, which the server rewrites in place.
make_slot() {
  [ "$WINEPREFIX/made" -nt "$root/template/made" ] && return
  stop_server "$WINEPREFIX"
  rm -rf "$WINEPREFIX"
  cp -al "$root/template" "$WINEPREFIX" && rm "$WINEPREFIX/made" &&
    cp --remove-destination "$root"/template/*.reg "$WINEPREFIX/" || return
  if [ "$graphics" != null ]; then
    sed -i 's/^"Graphics"="null"/"Graphics"="x11"/' "$WINEPREFIX/user.reg"
  fi
  if [ "$graphics" = desktop ]; then
    sed -i 's/^"Managed"="N"/"Managed"="Y"/' "$WINEPREFIX/user.reg"
  fi
  if [ "$heap_check" != 0 ]; then
    # Guard bytes around each block, and no debugger, which would hang on the damaged heap.
    printf '%s\n' '' '[System\\CurrentControlSet\\Control\\Session Manager]' '"GlobalFlag"=dword:000000f0' \
      '' '[Software\\Microsoft\\Windows NT\\CurrentVersion\\AeDebug]' '"Debugger"=""' >>"$WINEPREFIX/system.reg"
  fi
  : >"$WINEPREFIX/made"
}

# The output goes through a file: services that the first program starts would keep a pipe open, and
# with it ctest waiting. For the same reason nothing inherits the slot's lock.
run() {
  local status
  [ "$heap_check" = 0 ] || WINEDEBUG=$WINEDEBUG,warn+heap
  out=$(mktemp) || return 99
  "${pin[@]}" timeout 15 "$server" -p </dev/null >/dev/null 2>&1 9>&-
  LC_ALL=$locale "${pin[@]}" timeout -k 5 "${WINE_TEST_TIMEOUT:-60}" "$wine" "$@" </dev/null >"$out" 2>&1 9>&- &
  child=$!
  wait "$child"
  status=$?
  cat "$out"
  if [ "$status" -eq 124 ] || [ "$status" -eq 137 ]; then
    echo "wine.sh: ended after ${WINE_TEST_TIMEOUT:-60} s"
    stop_server "$WINEPREFIX"
  elif [ "$heap_check" != 0 ] && grep -qE '(err|warn):heap:' "$out"; then
    echo "wine.sh: the heap check found damage"
    status=98
  fi
  rm -f "$out"
  return "$status"
}

interrupted() {
  trap '' INT TERM HUP
  [ -n "${child-}" ] && kill "$child" 2>/dev/null
  [ -n "${WINEPREFIX-}" ] && stop_server "$WINEPREFIX"
  rm -f "${out-}"
  exit 130
}

if [ ! -x "$wine" ]; then
  [ "${1-}" != --down ] || exit 0
  echo "wine.sh: $wine is missing; scripts/setup.sh installs it" >&2
  exit 99
fi
case ${1-} in
--down)
  for prefix in "$root"/slot*/ "$root"/template*/; do
    [ -d "$prefix" ] && stop_server "${prefix%/}"
  done
  exit 0
  ;;
--prepare)
  make_locale C.UTF-8 && make_template || exit 99
  exit 0
  ;;
'' | --*)
  sed -n '2,/^set/s/^# \{0,1\}//p' "${BASH_SOURCE[0]}"
  exit 99
  ;;
esac
make_locale C.UTF-8 && make_locale "$locale" && make_template || exit 99
take_slot
make_slot || exit 99
trap interrupted INT TERM HUP
run "$@"
