#!/usr/bin/env bash
# Builds and runs the benchmarks: for each comparison a table of medians and whether the goal is kept.
. "$(dirname "$0")/lib.sh"
scripts/setup.sh
build_preset native

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
printf '%s, %s processors, %s\n' "$(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1)" "$(nproc)" \
  "$(uname -sr)"
# One processor for all of it: moving between two costs more than some of the differences.
pin=()
command -v taskset >/dev/null && pin=(taskset -c "$(($(nproc) - 1))")
for program in parse_bench resprops_bench; do
  (cd "$work" && "${pin[@]}" "$root/build/native/bin/$program")
done

# ---- The Windows side ----

# Loading forms, property calls, and the designer's side once more on the files that programs get, with the program
# and the server it talks to on one processor.
bench_windows() {
  local program
  build_preset win32 "$@" brelt
  . scripts/wine.sh
  for program in "$@"; do
    WINE_PROCESSOR=$(($(nproc) - 1)) wine_run null "build/win32/bin/$program.exe" | tr -d '\r'
  done
}
bench_windows load_bench property_bench resprops_bench
