# Sourced by the scripts that build and run things: steps with a time and a log, and an end without leftovers.
# The sourcing script stands in the repository's root and has set $root.

jobs=$(nproc)
# Clones in different folders share compiled objects.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1

# Ends the Wine servers below this build folder; nothing to do when there never was one.
wine_down() { [ ! -d "$root/build/wine" ] || "$root/cmake/wine.sh" --down; }

step_child=
stop_step() {
  trap '' INT TERM HUP
  if [ -n "$step_child" ]; then
    kill -TERM -- "-$step_child" 2>/dev/null
    wait "$step_child" 2>/dev/null
  fi
  wine_down
  echo "interrupted" >&2
  exit 130
}
trap stop_step INT TERM HUP
trap wine_down EXIT

# in_group COMMAND...: runs it in a process group of its own, which an interrupt ends as a whole.
in_group() {
  set -m
  "$@" </dev/null &
  step_child=$!
  set +m
  wait "$step_child"
  local status=$?
  step_child=
  return "$status"
}

# step [--quiet] TITLE LOG COMMAND...: says what runs and how long it took; shows the end of the log when it
# fails, unless --quiet leaves that to the caller.
step() {
  local shown=30
  [ "$1" != --quiet ] || { shown=0; shift; }
  local title=$1 log=$2 start=$SECONDS status
  shift 2
  printf '== %s ... ' "$title"
  in_group "$@" >"$log" 2>&1
  status=$?
  if [ "$status" -eq 0 ]; then
    echo "$((SECONDS - start)) s"
  else
    echo "failed after $((SECONDS - start)) s; see $log"
    tail -n "$shown" "$log"
  fi
  return "$status"
}
