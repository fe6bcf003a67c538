# What ./demo and ./test share: numbered steps with elapsed time, and a clear end.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
export QUORIN_CACHE=${QUORIN_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/quorin-lapacks}
log_directory=$root/build/logs
mkdir -p "$log_directory"

say() { printf '%s\n' "$*"; }

# step TITLE COMMAND...: shows the title, then runs the command with its output on the screen.
step() {
  local title=$1 started=$SECONDS
  shift
  say "== $title"
  "$@" || { say "FAILED: $title"; return 1; }
  say "   done in $((SECONDS - started)) s"
}

# quiet_step TITLE COMMAND...: the same with the output in a log file, of which a failure shows the end.
quiet_step() {
  local title=$1 started=$SECONDS log
  shift
  log=$log_directory/$(tr -cs 'A-Za-z0-9\n' '-' <<<"$title").log
  say "== $title"
  if ! "$@" >"$log" 2>&1; then
    tail -n 40 "$log"
    say "FAILED: $title (whole output: ${log#"$root"/})"
    return 1
  fi
  say "   done in $((SECONDS - started)) s"
}

# packages [full]: installs what is missing on this machine.
packages() { step "Packages of this machine" tools/setup "$@"; }

# prepare NEEDS TARGET...: builds the dependencies of the given targets: those of the product, or of "product tests".
prepare() {
  local needs=$1 target
  shift
  remember_compilations
  for target in "$@"; do step "Dependencies for $target" third_party/build "$target" $needs; done
}

# What was compiled once is not compiled again, in whatever folder the tree lies: the compilers' results stay in the cache, too.
remember_compilations() {
  [[ -z ${CMAKE_CXX_COMPILER_LAUNCHER:-} ]] && command -v ccache >/dev/null || return 0
  export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
  export CCACHE_DIR=$QUORIN_CACHE/ccache CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1 CCACHE_MAXSIZE=4G
}

# Wine takes seconds to start, unless its server and its services stay. They get no descriptor of ours, or whoever reads our
# output would wait for them; and a server that was not running before ends with us.
keep_wine_running() {
  export WINEPREFIX=${QUORIN_WINEPREFIX:-$QUORIN_CACHE/wineprefix}
  wine_server=$(command -v wineserver || ls /usr/lib/wine/wineserver32 /usr/lib/wine/wineserver64 2>/dev/null | head -n 1)
  [[ -n $wine_server ]] || return 0
  mkdir -p "$WINEPREFIX"
  if ! pgrep wineserver >/dev/null; then trap '"$wine_server" -k </dev/null >/dev/null 2>&1 || true' EXIT; fi
  "$wine_server" -p600 </dev/null >/dev/null 2>&1 || true
  tools/wine-run cmd /c exit </dev/null >/dev/null 2>&1 || true
}
