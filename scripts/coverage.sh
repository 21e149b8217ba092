#!/usr/bin/env bash
# Prints how much of the RC engine the core's tests reach, by lines and branches, and what they don't.
. "$(dirname "$0")/lib.sh"
scripts/setup.sh
build_preset coverage core_tests

# Counts of earlier runs, and the notes of sources that are gone, which gcovr stumbles over.
find build/coverage -name '*.gcda' -delete
quietly ninja -C build/coverage -t cleandead
find build/coverage -name '*.gcno' | while read -r notes; do [ -f "${notes%.gcno}.o" ] || rm "$notes"; done

quietly build/coverage/bin/core_tests --gtest_brief=1
report() {
  gcovr --root . --object-directory build/coverage --filter 'rc/' \
    --exclude-throw-branches --exclude-unreachable-branches --txt - "$@"
}
report
report --branches
