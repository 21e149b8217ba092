#!/usr/bin/env bash
# Fuzzes the readers of RC text under sanitizers, each for an equal share of the time, two at once.
#   scripts/fuzz.sh [SECONDS]     60 without an argument
# Starts from fuzz/seeds and what earlier runs kept in build/fuzz/corpus. A finding is printed with the file that
# shows it again, and the script fails.
. "$(dirname "$0")/lib.sh"
seconds=${1:-60}
[[ $seconds =~ ^[1-9][0-9]*$ ]] || die "not a number of seconds: $seconds"
scripts/setup.sh
build_preset fuzz

drivers=(scan locate symbols dialog menu)
jobs=2
share=$(((seconds * jobs + ${#drivers[@]} - 1) / ${#drivers[@]}))
found=$root/build/fuzz/findings
mkdir -p "$found"
export share found

fuzz_one() {
  local driver=$1 code=0 log=build/fuzz/$1.log
  mkdir -p "build/fuzz/corpus/$driver"
  "build/fuzz/bin/${driver}_fuzz" -max_total_time="$share" -max_len=20000 -timeout=20 -rss_limit_mb=1024 \
    -dict=fuzz/rc.dict -artifact_prefix="$found/$driver-" \
    "build/fuzz/corpus/$driver" "fuzz/seeds/$driver" >"$log" 2>&1 || code=$?
  if [ "$code" -ne 0 ]; then
    tail -n 40 "$log"
    printf '%s: a finding, see %s-*\n' "$driver" "$found/$driver"
    return 1
  fi
  printf '%-8s %s\n' "$driver" "$(grep -a '^Done' "$log" || tail -n 1 "$log")"
}
export -f fuzz_one

printf '%s\n' "${drivers[@]}" | xargs -P "$jobs" -I{} bash -c 'fuzz_one {}' || die "there are findings"
