#!/usr/bin/env bash
# Checks what the compiler doesn't: the format of the sources, the platform-free core, the public header, the reference
# made from it, and clang-tidy over the library. With --quick, without clang-tidy.
. "$(dirname "$0")/lib.sh"
quick=0
[ "${1:-}" != --quick ] || quick=1
scripts/setup.sh
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
status=0
fail() { say "$*"; status=1; }

sources() { git ls-files --cached --others --exclude-standard -- '*.cpp' '*.h'; }

# ---- Format ----
if ! sources | xargs clang-format --dry-run --Werror >"$work/format" 2>&1; then
  head -n 40 "$work/format"
  fail "clang-format would change these files"
fi

# ---- The core knows no platform ----
core_files=$(sed -n 's/^  \([a-z]*\/[a-z0-9_]*\)\.cpp$/\1/p' cmake/core.cmake)
core_headers() {
  for file in $core_files; do
    g++ -std=c++20 -MM -I. "$file.cpp"
  done | tr -d '\\' | tr ' ' '\n' | grep '\.h$' | sort -u
}
core_sources=$(for file in $core_files; do echo "$file.cpp"; done; core_headers)
grep -nE '#include <(windows|windowsx|winuser|commctrl|shellapi|richedit|io|direct|unistd|sys/.*)\.h>' $core_sources \
  && fail "the core includes a platform header"

# ---- The public header stands alone ----
echo '#include "brelt.h"' >"$work/alone.c"
cp "$work/alone.c" "$work/alone.cpp"
strict=(-Wall -Wextra -pedantic -Werror -fsyntax-only -I include)
i686-w64-mingw32-gcc-posix -std=c99 "${strict[@]}" "$work/alone.c" || fail "include/brelt.h doesn't compile alone as C"
i686-w64-mingw32-g++-posix -std=c++11 "${strict[@]}" "$work/alone.cpp" || fail "include/brelt.h doesn't compile alone as C++"

# ---- The reference says what the header says ----
scripts/reference.sh --check || fail "the reference isn't what the header says"

# ---- Shell scripts at least parse ----
for script in scripts/*.sh; do bash -n "$script" || fail "$script doesn't parse"; done

# ---- clang-tidy ----
if [ $quick -eq 0 ]; then
  build_preset native brelt_core
  cross=/usr/lib/gcc/i686-w64-mingw32/12-posix/include/c++
  target=(--target=i686-w64-mingw32 -isystem "$cross" -isystem "$cross/i686-w64-mingw32")
  flags=(-std=c++20 -I. -fno-exceptions -fno-rtti -DBRELT_BUILD -DNOMINMAX -DWIN32_LEAN_AND_MEAN)
  windows_files=$(sed -n 's/^  \([a-z]*\/[a-z0-9_]*\.cpp\)$/\1/p' cmake/dll.cmake)
  tidy_log=$work/tidy
  {
    for file in $core_files; do echo "$file.cpp -- ${flags[*]}"; done
    for file in $windows_files; do echo "$file -- ${target[*]} ${flags[*]}"; done
  } | xargs -P "$(nproc)" -I{} sh -c 'clang-tidy --quiet {} 2>/dev/null' >"$tidy_log" || true
  if grep -qE '(warning|error):' "$tidy_log"; then
    grep -E '(warning|error):' "$tidy_log" | sort -u | head -n 60
    fail "clang-tidy has complaints"
  fi
fi
[ $status -ne 0 ] || say "clean"
exit $status
