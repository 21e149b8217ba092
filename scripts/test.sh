#!/usr/bin/env bash
# Sets up, builds and runs the tests, and ends with one line of totals.
#   scripts/test.sh [--native | --win32] [PATTERN]
# --native runs the core's tests on this machine, --win32 those of the DLL under Wine; without either, both.
# PATTERN is a GoogleTest filter such as 'Load*'.
. "$(dirname "$0")/lib.sh"
native=1 win32=1 filter='*'
for argument in "$@"; do
  case $argument in
    --native) win32=0 ;;
    --win32) native=0 ;;
    -*) die "unknown option $argument" ;;
    *) filter=$argument ;;
  esac
done
scripts/setup.sh

results=$(mktemp)
trap 'rm -f "$results"' EXIT
# run NAME COMMAND...: a GoogleTest program, whose output is shown and counted.
run() {
  local name=$1 code=0
  shift
  printf '== %s\n' "$name"
  "$@" --gtest_filter="$filter" --gtest_brief=1 2>&1 | tr -d '\r' | tee -a "$results" || code=$?
  [ "$code" -eq 0 ] || printf '== %s ended with %s\n' "$name" "$code" | tee -a "$results"
}

if [ $native -eq 1 ]; then
  build_preset native-asan
  run core build/native-asan/bin/core_tests
fi
if [ $win32 -eq 1 ]; then
  build_preset win32
  . scripts/wine.sh
  run core32 wine_run null build/win32/bin/core_tests.exe
  run parts wine_run null build/win32/bin/parts_tests.exe
  run win32 wine_run null build/win32/bin/win_tests.exe
  WINE_PROCESSOR=0 WINE_TIMEOUT=1800 run leaks wine_run null build/win32/bin/leak_tests.exe
  run screen wine_run x11 build/win32/bin/screen_tests.exe
fi

# A program that ended early gives no totals of its own, so that it is named.
awk '
  /^\[==========\] [0-9]+ tests? from/ { total += $2 }
  /^\[  PASSED  \] [0-9]+ tests?\./ { passed += $4 }
  /^\[  SKIPPED \] [0-9]+ tests?,/ { skipped += $4 }
  /^== .* ended with [0-9]+$/ { ended = ended ", " substr($0, 4) }
  END {
    failed = total - passed - skipped
    printf "%d tests: %d passed, %d failed, %d skipped%s\n", total, passed, failed, skipped, ended
    exit failed > 0 || ended != ""
  }' "$results"
