# Sourced by the scripts of this folder.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
export LC_ALL=C.UTF-8

say() { printf '%s: %s\n' "$(basename "$0" .sh)" "$*" >&2; }
die() { say "$*"; exit 1; }

# Runs a command without its output, which is shown only when the command fails.
quietly() {
  local log
  log=$(mktemp)
  if ! "$@" >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    rm -f "$log"
    die "failed: $*"
  fi
  rm -f "$log"
}

# build_preset PRESET [TARGET...]
build_preset() {
  local preset=$1
  shift
  [ -f "build/$preset/build.ninja" ] || quietly cmake --preset "$preset"
  local target=()
  [ $# -eq 0 ] || target=(--target "$@")
  quietly cmake --build "build/$preset" "${target[@]}"
}
