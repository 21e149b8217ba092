#!/usr/bin/env bash
# Prints how much of the RC engine the core's tests reach, by lines and branches, and what they don't.
. "$(dirname "$0")/lib.sh"
scripts/setup.sh
build_preset coverage core_tests
find build/coverage -name '*.gcda' -delete
quietly build/coverage/bin/core_tests --gtest_brief=1
gcovr --root . --object-directory build/coverage --filter 'rc/' \
  --exclude-throw-branches --exclude-unreachable-branches --branches --txt -
gcovr --root . --object-directory build/coverage --filter 'rc/' \
  --exclude-throw-branches --exclude-unreachable-branches --txt -
